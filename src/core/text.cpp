#include "core/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zefirondo {
namespace {

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

// The characters of code page 1252 at 0x80 to 0x9F; 0 where it has none. The rest is as in Latin-1.
constexpr std::array<char32_t, 32> kHighControls{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t FromByte(unsigned char byte) {
  if (byte < 0x80 || byte > 0x9F) return byte;
  const char32_t mapped = kHighControls[byte - 0x80U];
  return mapped != 0 ? mapped : byte;  // an unused place keeps its number, so that it survives a round trip
}

char ToByte(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(kHighControls.begin(), kHighControls.end(), character);
  if (found != kHighControls.end()) return static_cast<char>(0x80 + (found - kHighControls.begin()));
  const bool unused_place = character <= 0x9F && kHighControls[character - 0x80U] == 0;
  return unused_place ? static_cast<char>(character) : '?';
}

void AppendUtf8(std::string& text, char32_t c) {
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0U | (c >> 6U));
    text += static_cast<char>(0x80U | (c & 0x3FU));
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0U | (c >> 12U));
    text += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
    text += static_cast<char>(0x80U | (c & 0x3FU));
  } else {
    text += static_cast<char>(0xF0U | (c >> 18U));
    text += static_cast<char>(0x80U | ((c >> 12U) & 0x3FU));
    text += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
    text += static_cast<char>(0x80U | (c & 0x3FU));
  }
}

/// The length of the sequence that a first byte announces, and the bits it carries itself.
struct Lead {
  std::size_t length = 1;
  char32_t bits = U'?';
  char32_t smallest = 0;  // below it the sequence is longer than it needs to be, and so broken
};

Lead ReadLead(unsigned char byte) {
  if (byte < 0x80U) return {1, byte, 0};
  if ((byte & 0xE0U) == 0xC0U) return {2, byte & 0x1FU, 0x80};
  if ((byte & 0xF0U) == 0xE0U) return {3, byte & 0x0FU, 0x800};
  if ((byte & 0xF8U) == 0xF0U) return {4, byte & 0x07U, 0x10000};
  return {};
}

bool IsCharacter(char32_t c) { return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF); }

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuation(c); }));
}

std::size_t ByteOffset(std::string_view text, std::size_t character) {
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    if (IsContinuation(text[at])) continue;
    if (character-- == 0) return at;
  }
  return at;
}

std::string Utf8(int code_point) {
  std::string text;
  const auto c = static_cast<char32_t>(code_point);
  AppendUtf8(text, IsCharacter(c) ? c : U'?');
  return text;
}

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  for (std::size_t at = 0; at < text.size();) {
    const Lead lead = ReadLead(static_cast<unsigned char>(text[at]));
    char32_t c = lead.bits;
    std::size_t taken = 1;
    while (taken < lead.length && at + taken < text.size() && IsContinuation(text[at + taken])) {
      c = (c << 6U) | (static_cast<unsigned char>(text[at + taken]) & 0x3FU);
      ++taken;
    }
    const bool whole = taken == lead.length && c >= lead.smallest && IsCharacter(c);
    characters += whole ? c : U'?';
    at += taken;
  }
  return characters;
}

std::string FromCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(text, FromByte(static_cast<unsigned char>(byte)));
  return text;
}

std::string ToCodePage(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char32_t c : Characters(text)) bytes += ToByte(c);
  return bytes;
}

}  // namespace zefirondo
