// Project files that went wrong in every way: each ends in the message or in an opened project.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "core/messages.h"
#include "files/sample_project.h"

namespace zefirondo {
namespace {

const std::string kLogarithmFailure =
    R"(message stop "Error" "Error, logarithm of a number less than or equal to zero" [OK] -> OK)";

bool IsOpenFailure(const std::string& message) {
  for (const int number : {5, 6, 9, 11, 62}) {
    if (message == OpenFailure(number)) return true;
  }
  return false;
}

/// Opens the bytes and tells what was wrong with the end; empty when it was one of the ends that are told.
std::string Judge(std::string_view bytes) {
  Desk desk;
  OpenBytes(desk, bytes);
  const Lines messages = MessagesOf(desk.TakeOut());
  if (desk.program.run == RunState::EndedByFailure) {
    // A level without a logarithm ends the program wherever it comes up.
    return !messages.empty() && messages.back() == kLogarithmFailure ? "" : "ended by " + FileOf(messages);
  }
  if (desk.program.run != RunState::Running) return "ended";
  if (!desk.sheet.window.open) return "no sheet";
  if (!desk.state.ProjectLoaded || !desk.state.HasProjectPath) return "not loaded";
  if (!messages.empty()) {
    return messages.size() == 1 && IsOpenFailure(messages[0]) ? "" : "odd messages " + FileOf(messages);
  }
  if (desk.state.ProjectModified || desk["cmdcalcola"].enabled || !desk["mnustampa"].enabled) return "half open";
  return "";
}

/// The values that a line is given in turn.
Lines AbsurdValues() {
  return {"",
          "0",
          "-1",
          "-12345.678",
          "0.0000001",
          "1e308",
          "-1e308",
          "1e-308",
          "1e99999",
          "32768",
          "99999999999999999999999999999999",
          "text",
          "nan",
          "inf",
          "1,5",
          "\"",
          std::string("\0\0\0", 3),
          std::string("\x80\xFF\x1A\x07", 4),
          std::string(20000, '9'),
          std::string(20000, 'x')};
}

Lines Replaced(Lines lines, std::size_t at, const std::string& value) {
  const std::size_t equals = lines[at].find('=');
  if (equals == std::string::npos) {
    lines[at] = value;
  } else {
    lines[at].replace(equals + 1, std::string::npos, value);
  }
  return lines;
}

class DamagedProject : public testing::TestWithParam<Lines (*)()> {};

TEST_P(DamagedProject, WithAnAbsurdValueAtEachLine) {
  const Lines good = GetParam()();
  ASSERT_EQ(Judge(FileOf(good)), "");
  for (std::size_t at = 0; at < good.size(); ++at) {
    for (const std::string& value : AbsurdValues()) {
      EXPECT_EQ(Judge(FileOf(Replaced(good, at, value))), "")
          << "line " << at + 1 << " " << good[at] << " as " << value.substr(0, 40);
    }
  }
}

TEST_P(DamagedProject, WithALineMissingOrTwiceOrForeign) {
  const Lines good = GetParam()();
  for (std::size_t at = 0; at < good.size(); ++at) {
    const auto place = static_cast<std::ptrdiff_t>(at);
    Lines missing = good;
    missing.erase(missing.begin() + place);
    EXPECT_EQ(Judge(FileOf(missing)), "") << "line " << at + 1 << " missing";
    Lines twice = good;
    twice.insert(twice.begin() + place, good[at]);
    EXPECT_EQ(Judge(FileOf(twice)), "") << "line " << at + 1 << " twice";
    Lines foreign = good;
    foreign.insert(foreign.begin() + place, "nothing of this format");
    EXPECT_EQ(Judge(FileOf(foreign)), "") << "foreign line before " << at + 1;
  }
}

TEST_P(DamagedProject, CutAtEachByte) {
  const std::string good = FileOf(GetParam()());
  for (std::size_t size = 0; size < good.size(); size += 7) {
    EXPECT_EQ(Judge(std::string_view(good).substr(0, size)), "") << size << " bytes";
  }
}

TEST_P(DamagedProject, WithBytesChangedAtRandom) {
  const std::string good = FileOf(GetParam()());
  std::mt19937 random(20261120);  // the same files in every run
  for (int file = 0; file < 300; ++file) {
    std::string bytes = good;
    for (int change = 0; change < 1 + file % 20; ++change) {
      bytes[random() % bytes.size()] = static_cast<char>(random() % 256);
    }
    EXPECT_EQ(Judge(bytes), "") << "file " << file;
  }
}

INSTANTIATE_TEST_SUITE_P(Closed, DamagedProject, testing::Values(&ClosedFile));
INSTANTIATE_TEST_SUITE_P(Longest, DamagedProject, testing::Values(&LongestFile));

TEST(NoProject, OfNoise) {
  std::mt19937 random(8);
  for (const std::size_t size : {1U, 100U, 5000U, 1000000U}) {
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % 256);
    EXPECT_EQ(Judge(bytes), "") << size;
  }
}

TEST(NoProject, OfNulBytesAlone) { EXPECT_EQ(Judge(std::string(100000, '\0')), ""); }

TEST(NoProject, OfLineEndsAlone) {
  EXPECT_EQ(Judge(std::string(10, '\n')), "");
  EXPECT_EQ(Judge(std::string(100000, '\n')), "");
  EXPECT_EQ(Judge(std::string(100000, '\r')), "");
}

TEST(NoProject, OfOneEndlessLine) { EXPECT_EQ(Judge(std::string(20000000, '7')), ""); }

TEST(NoProject, InTheOtherTextEncoding) {
  std::string wide = "\xFF\xFE";
  for (const char c : FileOf(VentedFile())) wide += std::string(1, c) + std::string(1, '\0');
  EXPECT_EQ(Judge(wide), "");
}

}  // namespace
}  // namespace zefirondo
