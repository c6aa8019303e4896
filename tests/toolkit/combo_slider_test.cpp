// Combo rows and values, and the slider with its mirror.

#include <gtest/gtest.h>

#include <tuple>

#include "platform/cp932.h"
#include "toolkit/combo_rules.h"
#include "toolkit/slider_rules.h"

namespace {
const char* const kLabels[] = {"none", "fire", "ice", "wind", ""};
}

TEST(ComboRulesTest, RowsAndStoredValues) {
  int field = 0;
  VECTOR_CLASS<int> values{10, 20, 20};
  cComboRules offset, table;
  offset.Bind({2001, &field, kLabels, nullptr, 1, nullptr});
  table.Bind({2002, &field, kLabels, nullptr, 0, &values});
  ASSERT_EQ(offset.Rows().size(), 4u);
  // value -> row
  const std::pair<int, int> byOffset[] = {{1, 0}, {4, 3}, {0, -1}, {5, -1}};
  for (auto [value, row] : byOffset) EXPECT_EQ(offset.RowOfValue(value), row) << value;
  const std::pair<int, int> byTable[] = {{10, 0}, {20, 1}, {15, -1}};
  for (auto [value, row] : byTable) EXPECT_EQ(table.RowOfValue(value), row) << value;
  // row -> value; a row past the value table and no row store -1
  const std::pair<int, int> toOffset[] = {{0, 1}, {3, 4}, {-1, -1}};
  for (auto [row, value] : toOffset) EXPECT_EQ(offset.ValueOfRow(row), value) << row;
  const std::pair<int, int> toTable[] = {{2, 20}, {3, -1}, {-1, -1}};
  for (auto [row, value] : toTable) EXPECT_EQ(table.ValueOfRow(row), value) << row;

  // A value no row stands for stays in the field; an empty box stores -1.
  field = 15;
  EXPECT_EQ(table.Update(), -1);
  table.Apply(table.Update(), true);
  EXPECT_EQ(field, 15);
  table.Apply(table.Update(), false);
  EXPECT_EQ(field, 15);
  const VECTOR_CLASS<std::string> none;
  cComboRules empty;
  empty.Bind({2004, &field, nullptr, &none, 0, nullptr});
  empty.Apply(empty.Update(), false);
  EXPECT_EQ(field, -1);
  // A form may keep a field that no row stands for, where -1 would point at nothing.
  field = 15;
  table.Bind({2002, &field, kLabels, nullptr, 0, &values, 1});
  table.Apply(table.Update(), false);
  EXPECT_EQ(field, 15);
  table.Apply(1, false);
  EXPECT_EQ(field, 20);
}

TEST(ComboRulesTest, NewLabelsKeepTheValueWhereTheyCan) {
  int field = 0;
  VECTOR_CLASS<std::string> names{CP932_TEXT("01 剣"), "02 b", "03 c", "04 d"};
  VECTOR_CLASS<std::string> fewer{"01 a", "02 b"};
  VECTOR_CLASS<int> values{5, 6}, other{7, 8};
  cComboRules c;
  c.Bind({2003, &field, nullptr, &names, 1, nullptr});
  EXPECT_EQ(c.Rows()[0], "01 剣");
  EXPECT_EQ(c.SetLabels(fewer, nullptr, 3), 1);   // value 4 past the rows: the last row
  EXPECT_EQ(c.SetLabels(kLabels, nullptr, -1), 0);  // none: the offset's row
  EXPECT_EQ(c.SetLabels(kLabels, nullptr, 2), 2);
  EXPECT_EQ(c.SetLabels(fewer, &values, 1), 0);   // a new value table starts at row 0
  EXPECT_EQ(c.SetLabels(fewer, &values, 1), 1);   // the same table keeps the value 6
  EXPECT_EQ(c.SetLabels(fewer, &other, 1), 0);
}

TEST(SliderRulesTest, MirrorShowsThePositionAndApplyStoresIt) {
  short field = 500;
  cSliderRules<short> s;
  cEditBox mirror;
  s.Bind({3001, &field, 0, 100, 10, 1, 3002}, mirror);
  EXPECT_EQ(s.Position(), 100);  // the field is past the range
  EXPECT_EQ(mirror.text, "100");
  s.OnScroll(42, mirror);
  EXPECT_EQ(std::tie(mirror.text, field), std::make_tuple("42", 500));
  s.Apply(false);
  EXPECT_EQ(field, 42);

  int wide = 0;
  cSliderRules<int> w;
  w.Bind({3003, &wide, -70000, 70000, 10, 1, 0}, mirror);
  EXPECT_EQ(w.Range(), std::make_pair(-32768, 32767));
}
