// Texts between the program (UTF-8, lines ended by "\r\n") and Qt (UTF-16, lines ended by "\n").
#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

namespace zefirondo::screens {

[[nodiscard]] QString ToQt(std::string_view text);
[[nodiscard]] std::string FromQt(const QString& text);

/// A program text as a field shows it, and back.
[[nodiscard]] QString ToField(std::string_view text);
[[nodiscard]] std::string FromField(const QString& text);

/// The place in a field of the character with this number in the program's text, and back. Places beyond the
/// end become the end.
[[nodiscard]] int ToFieldPlace(std::string_view text, std::size_t character);
[[nodiscard]] std::size_t FromFieldPlace(const QString& field, int place);

/// A caption without its mnemonic marks and outer blanks, as an assistive tool reads it.
[[nodiscard]] QString Spoken(std::string_view caption);

}  // namespace zefirondo::screens
