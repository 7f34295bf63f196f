#include "runner/words.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>

#include "runner/script_error.h"

namespace zefirondo {
namespace {

struct Escape {
  char letter;
  char meaning;
};

constexpr std::array<Escape, 5> kEscapes{{{'"', '"'}, {'\\', '\\'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}}};

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

char Unescape(char letter) {
  for (const Escape& escape : kEscapes) {
    if (escape.letter == letter) return escape.meaning;
  }
  throw ScriptError(std::string("unknown escape \\") + letter);
}

std::string TakeQuoted(std::string_view line, std::size_t& at) {
  std::string word;
  for (++at; at < line.size(); ++at) {
    if (line[at] == '"') {
      ++at;
      if (at < line.size() && !IsBlank(line[at])) throw ScriptError("a blank is missing behind a quoted word");
      return word;
    }
    if (line[at] == '\\' && at + 1 < line.size()) {
      word += Unescape(line[++at]);
    } else {
      word += line[at];
    }
  }
  throw ScriptError("a quote is not closed");
}

}  // namespace

std::vector<std::string> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  std::size_t at = 0;
  while (true) {
    while (at < line.size() && IsBlank(line[at])) ++at;
    if (at == line.size() || (words.empty() && line[at] == '#')) return words;
    if (line[at] == '"') {
      words.push_back(TakeQuoted(line, at));
      continue;
    }
    const std::size_t begin = at;
    while (at < line.size() && !IsBlank(line[at])) ++at;
    words.emplace_back(line.substr(begin, at - begin));
  }
}

std::string Joined(Words words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

double ReadScriptNumber(const std::string& word) {
  double value = 0.0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc() || end != word.data() + word.size() || !std::isfinite(value)) {
    throw ScriptError(word + " is no number");
  }
  return value;
}

double ReadIndex(const std::string& word) {
  const double index = ReadScriptNumber(word);
  if (index < 0 || index != std::floor(index)) throw ScriptError(word + " is no index");
  return index;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    bool escaped = false;
    for (const Escape& escape : kEscapes) {
      if (escape.meaning != c) continue;
      quoted += '\\';
      quoted += escape.letter;
      escaped = true;
    }
    if (!escaped) quoted += c;
  }
  return quoted + "\"";
}

std::string NumberText(double value) {
  std::array<char, 40> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), "%.17g", value);
  return {buffer.data(), static_cast<std::size_t>(length)};
}

}  // namespace zefirondo
