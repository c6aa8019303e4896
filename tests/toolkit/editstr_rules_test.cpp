// Character counting and the wrap of the text edit.

#include <gtest/gtest.h>

#include <tuple>

#include "platform/cp932.h"
#include "toolkit/char_count.h"
#include "toolkit/editstr_rules.h"

namespace {

std::string Sjis(const char* utf8) { return Cp932FromLiteral(utf8); }

struct cWrapCase {
  const char* name;
  int lineLen, maxLines;
  std::string last;  // the text as accepted before the edit
  std::string typed;
  int caret;
  std::string shown;
  int caretAfter;
  bool backspace = false;
};

}  // namespace

TEST(CharCountTest, CountsAsTheGameDoes) {
  const std::pair<std::string, int> cases[] = {
      {"abc", 3},        {Sjis("あい"), 2},  {"#P12.", 1},    {"#p3x", 2},     {"#P", 2},
      {"#Px1", 4},       {"#C12.", 5},       {"a\r\nb", 3},   {"#P1.2.3", 2},  {"a\x82", 2},
      {Sjis("あ#P01.い"), 3}, {"", 0},
  };
  for (const auto& [text, count] : cases) EXPECT_EQ(CharCount(text), count) << text;
  EXPECT_EQ(LineCount(""), 0);
  EXPECT_EQ(LineCount("a"), 1);
  EXPECT_EQ(LineCount("a\r\nb\r\n"), 3);
}

TEST(EditStrRulesTest, WrapFlowAndRefusal) {
  const std::string a30(30, 'a');
  const cWrapCase cases[] = {
      {"31st character wraps", 30, 29, a30, a30 + "b", 31, a30 + "\r\nb", 33},
      {"paragraph flows on", 30, 29, a30 + "\r\nbbb", "X" + a30 + "\r\nbbb", 1, "X" + std::string(29, 'a') + "\r\nabbb", 1},
      {"full box refuses", 3, 2, "abc\r\ndef", "abc\r\ndefg", 9, "abc\r\ndef", 8},
      {"paste needing a second line", 4, 1, "ab", "abcdefg", 7, "ab", 2},
      {"double-byte kept whole", 3, 5, "", Sjis("あいうえ"), 8, Sjis("あいう") + "\r\n" + Sjis("え"), 10},
      {"escape at line end", 3, 5, "", "ab#P12.c", 8, "ab#P12.\r\nc", 10},
      {"backspace join that fits", 3, 5, "ab\r\nc", "abc", 2, "abc", 2, true},
      {"backspace join that does not", 3, 5, "abc\r\nd", "abcd", 3, "abc\r\nd", 3, true},
  };
  for (const cWrapCase& c : cases) {
    SCOPED_TRACE(c.name);
    std::string field = c.last;
    cEditStrRules r;
    cEditBox box;
    r.Bind({4001, &field, 0, c.lineLen, c.maxLines, 1}, box);
    ASSERT_EQ(box.text, c.last);
    box = {c.typed, c.caret, c.caret};
    r.OnChange(box, c.backspace);
    EXPECT_EQ(std::tie(box.text, box.selStart), std::make_tuple(c.shown, c.caretAfter));
    EXPECT_EQ(r.Last(), c.shown);
  }
}

TEST(EditStrRulesTest, ProgramTextIsTrimmedToWhatFits) {
  std::string name = "abcdefg", message = "abcdefgh";
  cEditStrRules one, lines;
  cEditBox box1, box2;
  one.Bind({4002, &name, 5, 4, 1, 1}, box1);
  EXPECT_EQ(box1.text, "abcd");
  lines.Bind({4003, &message, 0, 3, 2, 1}, box2);
  EXPECT_EQ(box2.text, "abc\r\ndef");  // the lines that fit stay

  // The field of another row shows; a refused edit goes back to it, not to the old one.
  name = "xy";
  one.Update(box1);
  box1 = {"xyzzzzzz", 8, 8};
  one.OnChange(box1, false);
  EXPECT_EQ(box1.text, "xy");
}

TEST(EditStrRulesTest, ApplyReadsAtMostTheLimit) {
  std::string field;
  cEditStrRules r;
  cEditBox box;
  r.Bind({4004, &field, 3, 0, 1, 1}, box);
  EXPECT_EQ(r.ReadLimit(), 5);
  box.text = Sjis("あいう");
  r.Apply(box, true);
  EXPECT_EQ(field, "");
  r.Apply(box, false);
  EXPECT_EQ(field, Sjis("あい"));  // 5 bytes would split the third character
}

TEST(EditBoxTest, ScreenTextAndPositions) {
  cEditBox box;
  ASSERT_TRUE(EditBoxFromScreen("あ\nb", 2, 3, box));
  EXPECT_EQ(std::tie(box.text, box.selStart, box.selEnd), std::make_tuple(Sjis("あ") + "\r\nb", 4, 5));
  std::string utf8;
  int s = 0, e = 0;
  ScreenFromEditBox(box, utf8, s, e);
  EXPECT_EQ(std::tie(utf8, s, e), std::make_tuple("あ\nb", 2, 3));
  EXPECT_FALSE(EditBoxFromScreen("a\xF0\x9F\x98\x80", 0, 0, box));  // no CP932 form: refused
  EXPECT_EQ(box.text, Sjis("あ") + "\r\nb");
}
