// The pages of the manual as a test reads them: tags, links, anchors and the bare text.
#pragma once

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "core/messages.h"
#include "support/desk.h"

namespace zefirondo {

using Names = std::vector<std::string>;

inline std::filesystem::path ManualFolder() { return ZEFIRONDO_MANUAL; }
inline const char* FolderName(Language language) { return language == Language::Italian ? "it" : "en"; }

/// A text with each run of blanks and line ends as one blank, and none at its ends.
inline std::string Simplified(std::string_view text) {
  std::string simple;
  for (const char c : text) {
    const bool blank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
    if (!blank) simple += c;
    if (blank && !simple.empty() && simple.back() != ' ') simple += ' ';
  }
  if (!simple.empty() && simple.back() == ' ') simple.pop_back();
  return simple;
}

inline std::string Replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

/// A text of the program as the manual writes it: without marks of mnemonics.
inline std::string Written(const std::string& caption) { return Simplified(Replaced(caption, "&", "")); }

struct ManualText {
  std::string html;

  /// The groups that a pattern with one group finds, in their order.
  [[nodiscard]] Names All(const char* pattern) const {
    const std::regex expression(pattern);
    Names found;
    for (std::sregex_iterator match(html.begin(), html.end(), expression), end; match != end; ++match) {
      found.push_back((*match)[1].str());
    }
    return found;
  }

  [[nodiscard]] Names Anchors() const { return All("<a name=\"([^\"]*)\">"); }
  [[nodiscard]] Names Links() const { return All("<a href=\"([^\"]*)\">"); }
  [[nodiscard]] Names Files() const {
    return All("<(?:img src|link rel=\"stylesheet\" type=\"text/css\" href)=\"([^\"]*)\"");
  }

  /// What a reader sees, on one line.
  [[nodiscard]] std::string Text() const {
    std::string rest = html.substr(std::min(html.find("<body>"), html.size()));
    for (const char* const cell : {"</td>", "</th>", "<br>"}) rest = Replaced(rest, cell, " ");
    std::string text;
    bool tag = false;
    for (const char c : rest) {
      if (c == '<') tag = true;
      if (!tag) text += c;
      if (c == '>') tag = false;
    }
    for (const auto& [entity, character] : {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&nbsp;", " "}, {"&amp;", "&"}}) {
      text = Replaced(text, entity, character);
    }
    return Simplified(text);
  }
};

using Manual = std::map<std::string, ManualText>;

inline Manual ReadManual(Language language) {
  Manual manual;
  for (const auto& entry : std::filesystem::directory_iterator(ManualFolder() / FolderName(language))) {
    manual[entry.path().filename().string()] = {ReadFileBytes(entry.path())};
  }
  return manual;
}

/// The bare text of all pages.
inline std::string WholeText(const Manual& manual) {
  std::string text;
  for (const auto& [file, page] : manual) text += page.Text() + '\n';
  return text;
}

inline bool Holds(const Names& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace zefirondo
