// Texts are UTF-8 inside the program; files hold the single-byte code page 1252.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zefirondo {

/// How many characters a UTF-8 text has.
[[nodiscard]] std::size_t CharacterCount(std::string_view text);

/// The byte at which a character begins; the end of the text for a character behind it.
[[nodiscard]] std::size_t ByteOffset(std::string_view text, std::size_t character);

/// A character as UTF-8; "?" for what is no character.
[[nodiscard]] std::string Utf8(int code_point);

/// The characters of a UTF-8 text; a broken sequence gives "?".
[[nodiscard]] std::u32string Characters(std::string_view text);

/// Code page 1252 to UTF-8 and back; what the code page cannot hold becomes "?".
[[nodiscard]] std::string FromCodePage(std::string_view bytes);
[[nodiscard]] std::string ToCodePage(std::string_view text);

}  // namespace zefirondo
