#include "support/desk.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "program/assembly.h"
#include "runner/names.h"

namespace zefirondo {
namespace {

std::filesystem::path MakeFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "zefirondo-test-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  return pattern;
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(MakeFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TemporaryFolder::Write(const std::string& name, std::string_view bytes) const {
  std::filesystem::path file = path_ / name;
  std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file;
}

std::string ReadFileBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

Desk::Desk(Language language, double screen_width)
    : platform(out, {20, 11, 2026}, screen_width),
      program(platform, language, folder.path()),
      state(program.state),
      sheet(program.windows.frmthsm) {
  ConnectProgram(program);
  program.windows.mdithsm.window.width = screen_width * 15;
  program.windows.mdithsm.window.height = screen_width * 15 * 9 / 16;
}

void Desk::Begin(const std::string& command_line) { Start(program, command_line); }

void Desk::BeginParameters() {
  Begin();
  Choose("mdithsm.mnuinsmanuale");
}

void Desk::BeginImpedance() {
  Begin();
  Choose("mdithsm.mnuthisma");
}

void Desk::FillWoofer() {
  using Row = std::pair<const char*, const char*>;
  for (const auto& [field, text] :
       {Row{"txtpotenza", "100"}, {"txtimpedenza", "8"}, {"txtsensibilita", "90"}, {"txtxmax", "5"}}) {
    Set(field, text);
  }
  Tab("dim");
  for (const auto& [field, text] : {Row{"txtforo", "230"},
                                    {"txtprof", "110"},
                                    {"txtlagmagne", "140"},
                                    {"txtprofmag", "50"},
                                    {"txtesterno", "260"},
                                    {"txtspesbordo", "8"},
                                    {"txtdiambob", "38"}}) {
    Set(field, text);
  }
  Focus("txtvolume");
  Tab("par");
  for (const auto& [field, text] : {Row{"txtfs", "35"},
                                    {"txtrvc", "5.6"},
                                    {"txtqmesin", "4.2"},
                                    {"txtbl", "9.5"},
                                    {"txtd", "210"},
                                    {"txtqes", "0.45"},
                                    {"txtqts", "0.41"},
                                    {"txtmms", "0.038"}}) {
    Set(field, text);
  }
}

void Desk::DesignVented() {
  BeginParameters();
  FillWoofer();
  platform.answers.push_back(Answer::Yes);
  Click("cmdcalcola");
}

void Desk::DesignClosed() {
  BeginParameters();
  FillWoofer();
  Set("txtqes", "0.9");
  platform.answers.push_back(Answer::Yes);
  Click("cmdcalcola");
}

Control& Desk::operator[](std::string_view name) { return FindControl(program, name); }

Outcome Desk::Choose(std::string_view entry) { return zefirondo::Choose(program, (*this)[entry]); }

Outcome Desk::Set(std::string_view field, const std::string& text) { return Paste(program, (*this)[field], text); }

Outcome Desk::Type(std::string_view field, std::string_view keys) {
  Outcome outcome = BeginTyping(program, (*this)[field]);
  for (const char c : keys) {
    if (!outcome.Done()) return outcome;
    outcome = PressKey(program, c == '\n' ? 13 : static_cast<unsigned char>(c));
  }
  return outcome;
}

Outcome Desk::Pick(std::string_view combo, const std::string& item) {
  return zefirondo::Pick(program, (*this)[combo], item);
}

Outcome Desk::Click(std::string_view control) { return zefirondo::Click(program, (*this)[control]); }
Outcome Desk::Focus(std::string_view control) { return zefirondo::Focus(program, (*this)[control]); }
Outcome Desk::Leave() { return zefirondo::Leave(program); }
Outcome Desk::Tab(std::string_view key) { return ClickTab(program, key); }

std::string Desk::TakeOut() { return std::exchange(out, {}); }

}  // namespace zefirondo
