#pragma once
// Code page 932 text. Records hold raw CP932 bytes; conversion happens only at the
// edges (screen, file names, stderr), through these functions.

#include <cstddef>
#include <string>
#include <string_view>

// True for a byte that starts a double-byte character.
constexpr bool IsLeadByte(unsigned char c) { return (c >= 0x81 && c <= 0x9F) || (c >= 0xE0 && c <= 0xFC); }

// Number of characters, a double-byte character counting as one. A lead byte at the
// very end counts as one character on its own.
std::size_t Cp932CharCount(std::string_view text);

// The largest length <= maxBytes that does not cut a double-byte character in two.
std::size_t Cp932FitBytes(std::string_view text, std::size_t maxBytes);

// Strict conversions: false when a byte sequence does not decode, or a character has
// no CP932 form. `out` holds the converted text only on success.
bool Cp932ToUtf8(std::string_view cp932, std::string& out);
bool Utf8ToCp932(std::string_view utf8, std::string& out);

// Lossy conversions for display and logs: undecodable bytes become U+FFFD, characters
// without a CP932 form become '?'.
std::string Cp932ToUtf8Lossy(std::string_view cp932);
std::string Utf8ToCp932Lossy(std::string_view utf8);

// The text in UTF-8 between double quotes, every byte accounted for: the quote, the
// backslash and control characters are escaped (\" \\ \n \r \t, others \xNN), and so
// is each byte that does not decode, as \xNN; nothing is dropped or replaced.
std::string Cp932QuotedUtf8(std::string_view cp932);

// A UTF-8 source literal as CP932 data. Use through CP932_TEXT so that each literal is
// converted once.
std::string Cp932FromLiteral(const char* utf8);

#define CP932_TEXT(literal)                                            \
  ([]() -> const std::string& {                                         \
    static const std::string converted = Cp932FromLiteral(literal);     \
    return converted;                                                   \
  }())
