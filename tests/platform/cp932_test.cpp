#include "platform/cp932.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(Cp932, LeadBytesAndCharacterCounts) {
  // Half-width katakana, 0xA0 to 0xDF, are single bytes.
  for (int byte : {0x81, 0x9F, 0xE0, 0xFC}) EXPECT_TRUE(IsLeadByte(byte)) << byte;
  for (int byte : {0x80, 0xA0, 0xDF, 0xFD}) EXPECT_FALSE(IsLeadByte(byte)) << byte;

  const std::string text = "a\x83\x5C\xB1z";  // a, ソ, ｱ, z
  EXPECT_EQ(Cp932CharCount(text), 4u);
  EXPECT_EQ(Cp932CharCount("\x83"), 1u);  // a dangling lead byte is one character
  EXPECT_EQ(std::make_tuple(Cp932FitBytes(text, 2), Cp932FitBytes(text, 3), Cp932FitBytes(text, 99)),
            std::make_tuple(1u, 3u, text.size()));  // never half of ソ
}

TEST(Cp932, ConvertsWithTheWindowsMappingAndRefusesWhatHasNoForm) {
  std::string utf8;
  ASSERT_TRUE(Cp932ToUtf8("\x81\x60\x81\x7C", utf8));
  EXPECT_EQ(utf8, "\xEF\xBD\x9E\xEF\xBC\x8D");  // U+FF5E and U+FF0D, where Shift_JIS gives U+301C, U+2212

  std::string back;
  ASSERT_TRUE(Utf8ToCp932(utf8, back));
  EXPECT_EQ(back, "\x81\x60\x81\x7C");
  EXPECT_EQ(CP932_TEXT("エラー"), "\x83\x47\x83\x89\x81\x5B");

  std::string untouched = "keep";
  EXPECT_FALSE(Utf8ToCp932("\xF0\x9F\x98\x80", untouched));  // an emoji has no CP932 form
  EXPECT_EQ(untouched, "keep");
  EXPECT_EQ(Utf8ToCp932Lossy("a\xF0\x9F\x98\x80" "b"), "a?b");

  EXPECT_FALSE(Cp932ToUtf8("\x81\x20", utf8));  // a lead byte with no valid trail
  EXPECT_EQ(Cp932ToUtf8Lossy("x\x81"), "x\xEF\xBF\xBD");
}

TEST(Cp932, QuotedTextKeepsEveryByte) {
  // ソ ends in 0x5C, which is no backslash there; the specials of ASCII are escaped.
  EXPECT_EQ(Cp932QuotedUtf8("\x83\x5C" "a\"b\\c\r\n\t\x01"), "\"ソa\\\"b\\\\c\\r\\n\\t\\x01\"");
  // A byte that decodes to nothing, a lead byte before a quote, a lead byte at the end.
  EXPECT_EQ(Cp932QuotedUtf8("\xFD" "x\x81\"\x83"), "\"\\xFDx\\x81\\\"\\x83\"");
  EXPECT_EQ(Cp932QuotedUtf8(""), "\"\"");
}
