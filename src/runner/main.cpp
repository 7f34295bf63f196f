// zefirondo-run: the whole program without a screen, driven by a script.

#include <charconv>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "runner/script.h"

namespace {

constexpr int kRan = 0;
constexpr int kBadUsage = 2;
constexpr int kBadLine = 3;

constexpr std::string_view kUsage =
    "usage: zefirondo-run [--language en|it] [--folder DIR] [--today dd/mm/yyyy] [--screen-width PIXELS] [FILE]\n";

zefirondo::Date SystemDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_mday, local.tm_mon + 1, local.tm_year + 1900};
}

template <class T>
bool ReadWhole(std::string_view text, T& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() && !text.empty();
}

int DaysInMonth(int month, int year) {
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  if (month == 2) return leap ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

std::optional<zefirondo::Date> ReadDate(std::string_view text) {
  zefirondo::Date date;
  if (text.size() != 10 || text[2] != '/' || text[5] != '/' || text[6] == '-') return std::nullopt;
  if (!ReadWhole(text.substr(0, 2), date.day) || !ReadWhole(text.substr(3, 2), date.month) ||
      !ReadWhole(text.substr(6), date.year)) {
    return std::nullopt;
  }
  if (date.month < 1 || date.month > 12 || date.day < 1 || date.day > DaysInMonth(date.month, date.year)) {
    return std::nullopt;
  }
  return date;
}

struct Arguments {
  zefirondo::ScriptOptions options;
  std::string file = "-";
};

bool TakeOption(std::string_view option, const std::string& value, zefirondo::ScriptOptions& options) {
  if (option == "--language") {
    options.language = value == "it" ? zefirondo::Language::Italian : zefirondo::Language::English;
    return value == "it" || value == "en";
  }
  if (option == "--folder") {
    options.folder = value;
    return !value.empty();
  }
  if (option == "--today") {
    const auto date = ReadDate(value);
    if (date) options.today = *date;
    return date.has_value();
  }
  int pixels = 0;
  if (option != "--screen-width" || !ReadWhole(value, pixels)) return false;
  options.screen_width = pixels;
  return pixels >= 0;
}

std::optional<Arguments> ReadArguments(const std::vector<std::string>& words) {
  Arguments arguments;
  arguments.options.language = zefirondo::SystemLanguage();
  arguments.options.today = SystemDate();
  arguments.options.folder = ".";
  bool file_given = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i].starts_with("--")) {
      if (i + 1 == words.size() || !TakeOption(words[i], words[i + 1], arguments.options)) return std::nullopt;
      ++i;
    } else if (!file_given) {
      arguments.file = words[i];
      file_given = true;
    } else {
      return std::nullopt;
    }
  }
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::absolute(arguments.options.folder, error).lexically_normal();
  arguments.options.folder = folder.has_filename() ? folder : folder.parent_path();
  return arguments;
}

std::optional<std::string> ReadScript(const std::string& file) {
  if (file == "-") return std::string(std::istreambuf_iterator<char>(std::cin), {});
  std::error_code error;
  if (std::filesystem::is_directory(file, error)) return std::nullopt;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

}  // namespace

int main(int count, char** words) {
  const auto arguments = ReadArguments({words + 1, words + count});
  if (!arguments) {
    std::cerr << kUsage;
    return kBadUsage;
  }
  const auto script = ReadScript(arguments->file);
  if (!script) {
    std::cerr << "zefirondo-run: the script " << arguments->file << " cannot be read\n";
    return kBadUsage;
  }
  const zefirondo::ScriptResult result = zefirondo::RunScript(*script, arguments->options);
  std::fwrite(result.out.data(), 1, result.out.size(), stdout);
  if (result.error.empty()) return kRan;
  std::fflush(stdout);
  std::cerr << result.error << "\n";
  return kBadLine;
}
