// The list control protocol over a record vector, without a display.

#include <functional>
#include <tuple>

#include "platform/main_window_link.h"
#include "kernel/test_records.h"
#include "support/test_env.h"
#include "toolkit/ctrl_types.h"
#include "toolkit/list_command.h"
#include "toolkit/list_ctrl.h"

namespace {

using cList = CTRL_LIST_CLASS<cTestItem>;

VECTOR_CLASS<cTestItem> Items(const std::string& names) {
  VECTOR_CLASS<cTestItem> v;
  for (char c : names) {
    v.emplace_back();
    v.back().m_strName = std::string(1, c);
    v.back().m_nValue = c;
  }
  return v;
}

std::string Names(const VECTOR_CLASS<cTestItem>& v) {
  std::string s;
  for (const cTestItem& t : v) s += (s.empty() ? "" : ",") + t.m_strName;
  return s;
}

class ListCtrlTest : public ProjectDirTest {
 protected:
  void TearDown() override {
    EXPECT_FALSE(g_bRunEnding) << "a vector was read out of range";
    ProjectDirTest::TearDown();
  }
  void Make(const std::string& names, cListInit<cTestItem> init = {}) {
    m_src = Items(names);
    init.nId = 5000;
    init.pSource = &m_src;
    init.pWork = &m_work;
    init.pEditRec = &m_edit;
    init.pfnRowText = [](std::string& out, int, const cTestItem& t) { out = t.m_strName; };
    m_list.Bind(init);
    m_list.Box().focus = true;
  }
  // The user selects `rows` (the caret on the first of them), as the widget reports it.
  int Click(std::initializer_list<int> rows) {
    cListBox& box = m_list.Box();
    if (box.multi) {
      box.sel.assign(box.Count(), 0);
      for (int r : rows) box.sel[r] = 1;
      box.caret = box.anchor = *rows.begin();
    } else {
      box.SetCurSel(*rows.begin());
    }
    return m_list.OnSelChange();
  }

  VECTOR_CLASS<cTestItem> m_src, m_work;
  cTestItem m_edit;
  cList m_list;
};

}  // namespace

TEST_F(ListCtrlTest, RowsShowNumbersBlankRowAndHideLeadingElements) {
  Make("abc", {.bRowNumbers = 1, .bBlankRow = 1});
  EXPECT_EQ(m_list.Box().rows, (VECTOR_CLASS<std::string>{"1 a", "2 b", "3 c", std::string(64, '-')}));
  EXPECT_EQ(std::tie(m_list.Box().curSel, m_edit.m_strName), std::make_tuple(0, "a"));

  Make(std::string(1000, 'x'), {.bRowNumbers = 1, .nMaxRows = 1000});
  EXPECT_EQ(m_list.Box().rows[0], "0001 x");

  Make("abc", {.bRowNumbers = 1, .nFirstRow = 1});
  EXPECT_EQ(m_list.Box().rows, (VECTOR_CLASS<std::string>{"1 b", "2 c"}));
  EXPECT_EQ(m_edit.m_strName, "b");
  Click({1});
  EXPECT_EQ(m_list.Delete(-1, 0), 1);
  m_list.Delete(-1, 0);
  EXPECT_EQ(std::make_tuple(Names(m_work), m_list.Box().Count()), std::make_tuple("a", 0));  // the hidden one never moves
}

TEST_F(ListCtrlTest, LimitsAndRefusals) {
  struct cCase {
    const char* name;
    cListInit<cTestItem> init;
    std::string rows;
    int click;
    std::function<int(cList&)> op;
    int result, beeps;
    std::string after;
  };
  auto paste = [](const std::string& names) { return [names](cList& l) { return l.Paste(Items(names)); }; };
  const cCase cases[] = {
      {"delete of the last row at minimum 1", {.nMinRows = 1}, "a", 0, [](cList& l) { return l.Delete(-1, 0); }, 0, 1, "a"},
      {"new at the maximum", {.nMaxRows = 2}, "ab", 0, [](cList& l) { return l.Append(); }, 0, 1, "a,b"},
      {"insert at the maximum", {.nMaxRows = 2}, "ab", 0, [](cList& l) { return l.Insert(); }, 0, 1, "a,b"},
      {"paste at the maximum", {.nMaxRows = 2}, "ab", 0, paste("x"), 0, 1, "a,b"},
      {"paste of 3 one short of the maximum", {.nMaxRows = 3}, "ab", 1, paste("xyz"), 1, 0, "a,x,y,z,b"},
      {"paste of nothing", {}, "ab", 1, paste(""), 1, 0, "a,b"},
      {"paste on the blank row appends", {.bBlankRow = 1}, "ab", 2, paste("x"), 1, 0, "a,b,x"},
      {"cut on the blank row", {.bBlankRow = 1}, "ab", 2, [](cList& l) { return l.Cut(); }, 0, 1, "a,b"},
      {"copy on the blank row", {.bBlankRow = 1}, "ab", 2, [](cList& l) { return l.Copy(); }, 0, 1, "a,b"},
      {"resize past the maximum", {.nMinRows = 1, .nMaxRows = 5}, "ab", 0, [](cList& l) { return l.Resize(6); }, 0, 1, "a,b"},
      {"clear keeps the rows", {}, "abc", 1, [](cList& l) { return l.Clear(); }, 1, 0, "a,,c"},
      {"cut removes the row", {}, "abc", 1, [](cList& l) { return l.Cut(); }, 1, 0, "a,c"},
  };
  for (const cCase& c : cases) {
    SCOPED_TRACE(c.name);
    Make(c.rows, c.init);
    Click({c.click});
    m_prompt.beeps = 0;
    const int result = c.op(m_list);
    EXPECT_EQ(std::make_tuple(result, m_prompt.beeps, Names(m_work)), std::make_tuple(c.result, c.beeps, c.after));
  }
}

TEST_F(ListCtrlTest, EditRecordFollowsTheRow) {
  Make("abc");
  Click({2});
  m_list.Delete(-1, 0);  // the last row: the one before it is selected
  EXPECT_EQ(std::tie(m_list.m_nCurSel, m_edit.m_strName), std::make_tuple(1, "b"));
  m_list.Clear();
  EXPECT_EQ(m_edit.m_nValue, 7);  // the record's defaults, not a reset

  Make("a");
  m_list.Delete(-1, 0);  // the only row: no selection and a reset edit record
  EXPECT_EQ(std::tie(m_list.m_nCurSel, m_edit.m_nValue), std::make_tuple(-1, 0));

  Make("a", {.bBlankRow = 1});
  m_list.Delete(-1, 0);  // a list with a blank row never stands without a selection
  EXPECT_EQ(m_list.Box().curSel, 0);

  Make("ab", {.bBlankRow = 1});
  EXPECT_EQ(Click({2}), 0);
  EXPECT_EQ(m_edit.m_nValue, 7);  // the blank row shows a default record
  m_edit.m_strName = "z";
  EXPECT_EQ(m_list.CommitRow(), 0);
  EXPECT_EQ(Names(m_work), "a,b");

  Make("abc");
  Click({2});
  EXPECT_EQ(m_list.Resize(2), 1);  // the selection fell off the end
  EXPECT_EQ(std::tie(m_list.m_nCurSel, m_edit.m_strName), std::make_tuple(0, "a"));
  m_list.Resize(4);
  EXPECT_EQ(Names(m_work), "a,b,,");
  m_list.Apply(true);
  EXPECT_EQ(Names(m_src), "a,b,c");
  m_list.Apply(false);
  EXPECT_EQ(Names(m_src), "a,b,,");
}

TEST_F(ListCtrlTest, MultiSelectionCopiesInRowOrderAndDeletes) {
  Make("abcd", {.bMulti = 1, .bBlankRow = 1});
  Click({3, 0, 4});  // the blank row too, and the caret on "d"
  EXPECT_EQ(m_list.m_nCurSel, 3);
  EXPECT_EQ(m_list.Copy(), 1);
  EXPECT_EQ(Names(m_list.m_vecClip), "a,d");
  EXPECT_EQ(m_list.Delete(-1, 0), 1);
  // On the blank row now, with a reset edit record.
  EXPECT_EQ(std::make_tuple(Names(m_work), m_list.m_nCurSel, m_edit.m_nValue, m_list.m_vecSelFlag),
            std::make_tuple("b,c", 2, 0, VECTOR_CLASS<int>{0, 0, 1}));

  m_list.Box().caret = 0;  // select the row "b" then paste the clipboard before it
  m_list.Box().sel = {1, 0, 0};
  m_list.OnSelChange();
  EXPECT_EQ(m_list.PasteClip(), 1);
  EXPECT_EQ(std::make_tuple(Names(m_work), m_edit.m_strName), std::make_tuple("a,d,b,c", "a"));

  const VECTOR_CLASS<int> before = m_list.m_vecSelFlag;
  m_list.Box().sel.assign(m_list.Box().Count(), 0);  // the user deselected everything
  m_list.OnSelChange();
  m_list.RedrawSel();  // the last selection comes back
  EXPECT_EQ(std::make_tuple(m_list.m_vecSelFlag, m_list.m_nCurSel), std::make_tuple(before, 0));
}

TEST_F(ListCtrlTest, KeysAndCommandIds) {
  Make("abc");
  using ids = std::vector<unsigned>;
  EXPECT_EQ(m_list.OnKey('I', true), (ids{40082, 40069}));  // a form sets only one of them
  EXPECT_EQ(m_list.OnKey('I', false), ids{});
  m_list.SetIdSet(kListIdSets[kListFirstFixed]);
  EXPECT_EQ(m_list.OnKey(0x2E, false), ids{40083});  // Delete clears a table's record
  EXPECT_EQ(m_list.OnKey('X', true), ids{40030});
  m_list.Box().focus = false;
  EXPECT_EQ(m_list.HandleKeyCommand(40082), 0);  // another list of the form has the focus
  EXPECT_EQ(Names(m_work), "a,b,c");
  m_list.Box().focus = true;
  EXPECT_EQ(m_list.HandleKeyCommand(40082), 1);
  EXPECT_EQ(m_list.HandleMenuCommand(40081), 1);
  EXPECT_EQ(Names(m_work), "a,b,c,");
  EXPECT_EQ(m_list.HandleMenuCommand(40070), 0);  // a fixed table has no insert
}

TEST_F(ListCtrlTest, AnOperationLeftToTheFormKeepsItsIdsButTheListDoesNotRunIt) {
  Make("abc");
  m_list.SetIdSet(kListIdSets[kListFirstFree]);
  m_list.LeaveToForm(kListDelete);
  EXPECT_EQ(m_list.OnKey(0x2E, false), std::vector<unsigned>{40034});
  m_list.Box().focus = false;  // the key was meant for another control of the form
  EXPECT_EQ(m_list.OnKey(0x2E, false), std::vector<unsigned>{});
  m_list.Box().focus = true;
  EXPECT_EQ(m_list.OpOf(40034), kListDelete);
  EXPECT_EQ(m_list.OpOf(40029), kListDelete);
  EXPECT_EQ(m_list.HandleKeyCommand(40034), 0);
  EXPECT_EQ(m_list.HandleMenuCommand(40029), 0);
  EXPECT_EQ(Names(m_work), "a,b,c");
  EXPECT_EQ(m_list.OpOf(40030), kListCut);
  EXPECT_EQ(m_list.OpOf(1), -1);
}

TEST_F(ListCtrlTest, AMovedRowTakesTheSelectionAlongAndStopsAtTheEnds) {
  Make("abc", {.bBlankRow = 1});
  Click({1});
  EXPECT_EQ(m_list.MoveRow(-1), 1);
  EXPECT_EQ(std::make_tuple(Names(m_work), m_list.m_nCurSel, m_edit.m_strName), std::make_tuple("b,a,c", 0, "b"));
  EXPECT_EQ(m_list.MoveRow(-1), 0);
  Click({2});
  EXPECT_EQ(m_list.MoveRow(1), 0) << "the blank row has no element to swap with";
  EXPECT_EQ(Names(m_work), "b,a,c");
}

TEST_F(ListCtrlTest, EndOfCommandKeepsRowEditRecordAndControlsInStep) {
  struct cHost : cListCommandHost {
    std::string log;
    std::function<void()> apply;
    void UpdateAllExcept(cListCtrlBase&) override { log += "update,"; }
    void UpdateEnable() override { log += "enable,"; }
    void ApplyControls() override {
      log += "apply,";
      apply();
    }
    void SheetChanged() override { log += "sheet,"; }
  } host;
  host.apply = [&] { m_edit.m_strName = "B"; };  // a control writes its field
  Make("abc");
  cListCtrlBase* lists[] = {&m_list};

  BeginListCommand(lists);
  m_list.Box().SetCurSel(1);  // the user clicked row 1
  EndListCommand(lists, {.id = 5000, .code = kNotifySelChange, .ready = true}, host);
  EXPECT_EQ(std::tie(host.log, m_edit.m_strName), std::make_tuple("update,enable,", "b"));
  EXPECT_FALSE(m_list.Box().frozen);

  host.log.clear();
  BeginListCommand(lists);
  EXPECT_TRUE(m_list.Box().frozen);
  EndListCommand(lists, {.id = 5100, .code = kNotifyEditUpdate, .ready = true, .changed = true, .page = true}, host);
  // The source waits for OK.
  EXPECT_EQ(std::make_tuple(host.log, Names(m_work), m_list.Box().rows[1], m_list.Box().curSel, Names(m_src)),
            std::make_tuple("enable,apply,sheet,", "a,B,c", "B", 1, "a,b,c"));
  EXPECT_FALSE(m_list.Box().frozen);
}

TEST_F(ListCtrlTest, OtherElementTypesAndADeadList) {
  VECTOR_CLASS<VECTOR_CLASS<int>> src{{1, 2}, {3}}, work;
  VECTOR_CLASS<int> edit;
  CTRL_LIST_CLASS<VECTOR_CLASS<int>> nested;
  nested.Bind({.pSource = &src, .pWork = &work, .pEditRec = &edit});
  nested.Box().focus = true;
  EXPECT_EQ(edit, (VECTOR_CLASS<int>{1, 2}));
  nested.Clear();
  EXPECT_TRUE(work[0].empty());

  // A list without a working vector takes no rows.
  VECTOR_CLASS<int> none;
  CTRL_LIST_CLASS<int> dead;
  dead.Bind({.pSource = &none});
  EXPECT_EQ(dead.Append(), 0);
  EXPECT_EQ(dead.Resize(0), 1);
  EXPECT_TRUE(none.empty());
}
