// The lines of a script: words, and texts in quotes.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zefirondo {

using Words = std::span<const std::string>;

/// Splits a line into words. A word in double quotes may hold blanks and the escapes \" \\ \n \r \t. A comment
/// or an empty line has no words. Throws `ScriptError` for a broken quote.
[[nodiscard]] std::vector<std::string> SplitWords(std::string_view line);

/// The words with a blank between each two.
[[nodiscard]] std::string Joined(Words words);

/// A number of a script, and one that counts points. Both throw `ScriptError` for other words.
[[nodiscard]] double ReadScriptNumber(const std::string& word);
[[nodiscard]] double ReadIndex(const std::string& word);

/// A text in double quotes, with the same escapes.
[[nodiscard]] std::string Quoted(std::string_view text);

/// A number with up to 17 significant digits and a point.
[[nodiscard]] std::string NumberText(double value);

}  // namespace zefirondo
