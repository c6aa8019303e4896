// The number edit's text rules, driven as the widget binding drives them.

#include <gtest/gtest.h>

#include <tuple>

#include <climits>

#include "platform/cp932.h"
#include "toolkit/editval_rules.h"

namespace {

struct cBoxCase {
  eValKind kind;
  double min, max, step;
  const char* typed;  // the box's text after the user's edit
  const char* shown;  // what the box shows after the rules ran
  double applied;     // what Apply would store
};

cEditValCore Rules(const cBoxCase& c) {
  cEditValCore r;
  r.Setup(c.kind, c.min, c.max, c.step);
  return r;
}

}  // namespace

TEST(EditValRulesTest, TypedTextIsKeptOrRewrittenAsTheRulesSay) {
  const cBoxCase cases[] = {
      {kValInt, -5, 10, 1, "", "", 0},                 // empty stays empty while focused
      {kValInt, 5, 10, 1, "", "", 5},
      {kValInt, -5, 10, 1, "-", "-", 0},               // "-" stays so a digit can follow
      {kValInt, 5, 10, 1, "-", "-", 5},
      {kValInt, -5, 10, 1, "-0", "-0", 0},
      {kValInt, -5, 10, 1, "-00", "-0", 0},
      {kValInt, -5, 10, 1, "-05", "-5", -5},
      {kValUChar, 0, 255, 1, "300", "255", 255},       // third digit lands: byte limit
      {kValUChar, 0, 100, 1, "300", "100", 100},
      {kValUChar, 0, 255, 1, "-5", "0", 0},
      {kValInt, 0, 10, 1, "1.", "1", 1},               // no "." in an integer box
      {kValInt, 5, 10, 1, "1", "5", 5},                // clamped at once
      {kValInt, 0, 9999, 1, "99999999999", "9999", 9999},
      {kValInt, INT_MIN, INT_MAX, 1, "99999999999", "2147483647", INT_MAX},
      {kValInt, INT_MIN, INT_MAX, 1, "-99999999999", "-2147483648", INT_MIN},
      {kValShort, -32768, 32767, 1, "40000", "32767", 32767},
      {kValInt, 0, 100, 1, "1a2-", "12", 12},          // pasted junk is cleaned
      {kValDouble, 0, 100, 0.01, "1.", "1.", 1},
      {kValDouble, 0, 100, 0.01, "1.234", "1.234", 1.23},  // read at the places shown
      {kValDouble, 0, 100, 0.5, "200", "100.0", 100},
      {kValDouble, -1, 1, 0.1, "-", "-", 0},
  };
  for (const cBoxCase& c : cases) {
    SCOPED_TRACE(c.typed);
    cEditValCore r = Rules(c);
    cEditBox box{c.typed, 2, 2};
    r.OnChange(box);
    EXPECT_EQ(box.text, c.shown);
    EXPECT_EQ(r.ReadClamped(box), c.applied);
  }
}

TEST(EditValRulesTest, LeavingTheBoxNormalisesItsText) {
  const cBoxCase cases[] = {
      {kValInt, 5, 10, 1, "", "5", 5},       {kValInt, 0, 10, 1, "", "0", 0},
      {kValInt, -5, 10, 1, "", "0", 0},      {kValInt, -5, 10, 1, "-", "0", 0},
      {kValInt, -5, 10, 1, "-0", "0", 0},    {kValInt, 0, 10, 1, "15", "10", 10},
      {kValDouble, 0, 10, 0.5, "1.", "1.0", 1}, {kValDouble, 0, 10, 0.25, "", "0.00", 0},
  };
  for (const cBoxCase& c : cases) {
    SCOPED_TRACE(c.typed);
    cEditValCore r = Rules(c);
    cEditBox box{c.typed};
    r.OnChange(box);
    r.OnKillFocus(box);
    EXPECT_EQ(box.text, c.shown);
    EXPECT_FALSE(r.IsEmpty());
  }
}

TEST(EditValRulesTest, SpinCountsFromTheBox) {
  const cBoxCase cases[] = {
      {kValInt, 5, 10, 1, "", "6", 6},            // empty counts from the minimum
      {kValInt, 0, 10, 1, "", "1", 1},
      {kValUChar, 0, 255, 1, "255", "255", 255},  // no wrap past the byte
      {kValDouble, 0, 10, 0.25, "1", "1.25", 1.25},
      {kValInt, -5, 10, 1, "-", "1", 1},
  };
  for (const cBoxCase& c : cases) {
    SCOPED_TRACE(c.typed);
    cEditValCore r = Rules(c);
    cEditBox box{c.typed};
    r.OnChange(box);
    r.OnSpin(+1, box);
    EXPECT_EQ(box.text, c.shown);
  }
}

TEST(EditValRulesTest, FieldMovesOnlyThroughApplyAndUpdateDropsHalfTypedText) {
  unsigned char field = 42;
  cEditValRules<unsigned char> r;
  cEditBox box;
  r.Bind({1001, &field, 10, 200, 0, 1}, box);
  EXPECT_EQ(box.text, "42");
  box.text = "-";
  r.OnChange(box);
  EXPECT_EQ(std::tie(box.text, field), std::make_tuple("-", 42));
  r.Apply(box, true);  // the form is updating: nothing written back
  EXPECT_EQ(field, 42);
  r.Update(box);       // another row's value shows, not the "-"
  EXPECT_EQ(box.text, "42");
  box.text = "7";
  r.OnChange(box);
  r.Apply(box, false);
  EXPECT_EQ(field, 10);
}

TEST(EditValRulesTest, TheWidestTextOfARangeGivesTheBoxItsRoom) {
  EXPECT_EQ(EditValWidestText(-359, 359, 0), "-359");
  EXPECT_EQ(EditValWidestText(0, 999999, 0), "999999");
  EXPECT_EQ(EditValWidestText(0, 100, PlacesOfStep(0.5)), "100.0");
  EXPECT_EQ(EditValWidestText(-1e30, 1e30, 2).size(), 12u) << "a huge range does not take the whole screen";
}
