// The table of every text that differs by language.
#pragma once

#include <string_view>

namespace zefirondo {

enum class Language { English, Italian };

/// The text with this number, UTF-8. A number that is not in the table is a programming error.
[[nodiscard]] std::string_view MessageText(int id, Language language);

/// Italian on a system whose language is Italian, English on any other.
[[nodiscard]] Language SystemLanguage();

}  // namespace zefirondo
