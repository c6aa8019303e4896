// The ten pages of the game-wide settings on a project made from the template: every
// labelled field of the record on some page, the record untouched until the sheet
// applies and then given exactly the edits, and the pages' own rules.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <map>
#include <set>

#include "forms/database/db_small_pages.h"
#include "forms/database/db_system_pages.h"
#include "gui/database_sheet_fixture.h"
#include "gui/form_probe.h"
#include "kernel/serial_file.h"
#include "platform/cp932.h"
#include "platform/file_io.h"

namespace {

constexpr const char* kSystemFile = "data/database/System.dat";
constexpr int kFirstSystemRow = 15;

std::vector<unsigned char> SavedBytes(cSystem& system) {
  SerialFilePtr file = OpenSerialWriteBuffer();
  system.Save(file.get());
  return file->Bytes();
}

std::vector<unsigned char> FileBytes(const char* path) {
  std::vector<unsigned char> bytes;
  ReadWholeFile(path, bytes);
  return bytes;
}

// The widget a screen reader calls `name` in `form`.
QWidget* Named(DLG_CLASS& form, const char* name) {
  for (QWidget* w : form.m_hWnd->findChildren<QWidget*>())
    if (w->accessibleName() == QString::fromUtf8(name)) return w;
  ADD_FAILURE() << "no control named " << name;
  return nullptr;
}

// Chooses row `row` of a combo box as the user does.
void Choose(QWidget* w, int row) {
  auto* combo = static_cast<QComboBox*>(w);
  combo->setCurrentIndex(row);
  emit combo->activated(row);
}

void Type(QWidget* w, const char* keys) {
  auto* edit = static_cast<QLineEdit*>(w);
  edit->setFocus();
  edit->selectAll();
  QTest::keyClicks(edit, keys);
}

std::vector<std::unique_ptr<cSystemPage>> AllSystemPages() {
  std::vector<std::unique_ptr<cSystemPage>> pages;
  for (int row = kFirstSystemRow; row < kDatabasePageCount; ++row)
    pages.emplace_back(static_cast<cSystemPage*>(DatabasePageRows()[static_cast<std::size_t>(row)].make().release()));
  return pages;
}

TEST(SystemPageTables, EveryLabelledFieldOfTheRecordAndEveryRowOfItsListsIsOnAPage) {
  std::map<std::string, std::set<int>> shown;
  for (const auto& page : AllSystemPages()) {
    EXPECT_EQ(page->Table().Problems(), std::vector<std::string>{}) << page->Title();
    for (const cSystemFieldUse& use : page->FieldUses()) shown[use.name].insert(use.row);
  }
  const std::vector<std::string>& unlabelled = SystemFieldsWithoutLabel();
  cSystem fresh;
  std::vector<std::string> missing;
  for (std::string_view field : SerialFieldNames(fresh, kCurrentFormatVersion)) {
    const std::string name(field);
    if (std::find(unlabelled.begin(), unlabelled.end(), name) != unlabelled.end()) continue;
    if (!shown.count(name)) missing.push_back(name);
  }
  EXPECT_EQ(missing, std::vector<std::string>{});
  // A list shown row by row has each of its rows somewhere, and no row twice.
  const std::map<std::string, int> rows = {
      {"m_vecTerm", kSystemTermCount},        {"m_vecSoundFile", kSystemSoundCount}, {"m_vecBgm", kSystemBgmCount},
      {"m_vecPredict", kSystemPredictCount},  {"m_vecParam", kSystemParamCount},     {"m_vecIni", kSystemIniCount},
      {"m_vecTitleMenu", 4},                  {"m_vecPartyMenu", 13},                {"m_vecTestMenu", 5}};
  for (const auto& [name, count] : rows) {
    std::set<int> all;
    for (int r = 0; r < count; ++r) all.insert(r);
    EXPECT_EQ(shown[name], all) << name;
  }
  std::size_t terms = 0;
  for (const auto& page : AllSystemPages())
    for (const cSystemFieldUse& use : page->FieldUses()) terms += use.name == "m_vecTerm";
  EXPECT_EQ(terms, static_cast<std::size_t>(kSystemTermCount));
}

class SystemPagesTest : public DatabaseSheetTest {
 protected:
  template <class Page>
  Page* System(int page) {
    return ShowPage<Page>(kFirstSystemRow + page - 1);
  }
  // One edit on each of the ten pages, through its widgets; `expected` takes the same.
  void EditEveryPage(cSystem& expected) {
    Type(Named(*System<DLG_DBSYSTEM>(1), "ゲーム名"), "Quest");
    expected.m_strGameName = "Quest";
    Type(Named(*System<DLG_DBSYSTEM_2>(2), "スキルの売値修正(%)"), "75");
    expected.m_nSkillSellRate = 75;
    Choose(System<DLG_DBSYSTEM_3>(3)->GetDlgItem(DLG_DBSYSTEM_3::kTurnMode), 1);
    expected.m_nTurnMode = 1;
    Choose(System<DLG_DBSYSTEM_4>(4)->GetDlgItem(DLG_DBSYSTEM_4::kFont), 62);
    expected.m_nFont = 62;
    static_cast<QAbstractButton*>(System<DLG_DBSYSTEM_5>(5)->GetDlgItem(DLG_DBSYSTEM_5::kPredict))->click();
    expected.m_bPredict = !expected.m_bPredict;
    Type(Named(*System<DLG_DBSYSTEM_6>(6), "ウィンドウの色"), "120");
    expected.m_shWindowHue = 120;
    static_cast<QAbstractButton*>(Named(*System<DLG_DBSYSTEM_7>(7), "戦闘開始"))->click();
    expected.m_vecTrainingMenu[0].m_bEnabled = !expected.m_vecTrainingMenu[0].m_bEnabled;
    Type(Named(*System<DLG_DBSYSTEM_8>(8), "勝利条件"), "WIN");
    expected.m_vecTerm[33].m_strText = "WIN";
    Type(Named(*System<DLG_DBSYSTEM_9>(9), "フレームレート(FPS) デフォルト値"), "30");
    expected.m_vecIni[3].m_nDefault = 30;
    System<DLG_DBSYSTEM_10>(10);
  }
};

TEST_F(SystemPagesTest, CancelAfterEditsOnAllTenPagesLeavesTheRecordAndApplyWritesExactlyTheEdits) {
  const std::vector<unsigned char> file = FileBytes(kSystemFile);
  cSystem before;
  before.Copy(g_System);
  cSystem expected;
  expected.Copy(g_System);
  EditEveryPage(expected);
  EXPECT_TRUE(Compare(g_System, before)) << "a page wrote the record before the apply";
  SheetButton("キャンセル")->click();
  EXPECT_EQ(FileBytes(kSystemFile), file);
  EXPECT_TRUE(Compare(g_System, before));

  m_pSheet = OpenDatabaseSheet(nullptr, {});
  ASSERT_NE(m_pSheet, nullptr);
  expected.Copy(before);
  EditEveryPage(expected);
  SheetButton("適用")->click();
  EXPECT_EQ(FileBytes(kSystemFile), SavedBytes(expected));
}

TEST_F(SystemPagesTest, ARenamedPartyVariableReachesTheComboOfPageOneOnlyAfterTheApply) {
  const int row = g_System.m_nScoutVal;
  ASSERT_GT(row, 0);
  auto* combo = static_cast<QComboBox*>(System<DLG_DBSYSTEM>(1)->GetDlgItem(DLG_DBSYSTEM::kScoutVal));
  const QString before = combo->currentText();
  auto* vars = ShowPage<DLG_DB_PTVAL>(6);
  Click(ListOf(*vars, DLG_DB_PTVAL::kList), row - 1);
  TypeInto(*vars, DLG_DB_PTVAL::kName, "Z");
  System<DLG_DBSYSTEM>(1);
  EXPECT_EQ(combo->currentText(), before);
  SheetButton("適用")->click();
  ShowPage<DLG_DB_PTVAL>(6);
  System<DLG_DBSYSTEM>(1);
  EXPECT_EQ(combo->currentText(), before + "Z");
  EXPECT_EQ(g_System.m_nScoutVal, row);
}

TEST_F(SystemPagesTest, EveryControlOfTheTenPagesIsBoundAndNamed) {
  for (int page = 1; page <= 10; ++page) {
    DLG_CLASS* shown = ShowPage<DLG_CLASS>(kFirstSystemRow + page - 1);
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(ProbeOpenForm(*shown), std::vector<std::string>{}) << page;
    const QSize least = shown->m_hWnd->minimumSizeHint();
    EXPECT_LE(least.height(), 768 - 100) << page << " " << least.width() << "x" << least.height();
  }
  const QSize least = m_pSheet->m_hWnd->minimumSizeHint();
  EXPECT_LE(least.width(), 1024);
  EXPECT_LE(least.height(), 768 - 40) << "and room for a title bar";
}

TEST_F(SystemPagesTest, TheScoutAndRandomChangeChecksEnableTheirControls) {
  auto* page = System<DLG_DBSYSTEM>(1);
  for (auto [check, controls] : {std::pair{DLG_DBSYSTEM::kScout, std::vector<unsigned>{DLG_DBSYSTEM::kScoutVal}},
                                 std::pair{DLG_DBSYSTEM::kRandomChange,
                                           std::vector<unsigned>{DLG_DBSYSTEM::kChangeValue, DLG_DBSYSTEM::kChangeCount}}}) {
    auto* box = static_cast<QAbstractButton*>(page->GetDlgItem(check));
    for (int click = 0; click < 2; ++click) {
      box->click();
      for (unsigned id : controls) EXPECT_EQ(page->GetDlgItem(id)->isEnabled(), box->isChecked()) << id;
    }
  }
}

TEST_F(SystemPagesTest, TheTurnModeSwitchesItsColumnsAndTheReferenceValuesFollowTheControls) {
  auto* page = System<DLG_DBSYSTEM_3>(3);
  const auto text = [page](unsigned id) { return static_cast<QLabel*>(page->GetDlgItem(id))->text().toStdString(); };
  const unsigned timeIds[] = {DLG_DBSYSTEM_3::kBattleTime, DLG_DBSYSTEM_3::kInitAction, DLG_DBSYSTEM_3::kSpeedRate2,
                              DLG_DBSYSTEM_3::kSpeedBase, DLG_DBSYSTEM_3::kWaitAttacker};
  const unsigned simpleIds[] = {DLG_DBSYSTEM_3::kOrderType, DLG_DBSYSTEM_3::kBaseActions, DLG_DBSYSTEM_3::kSpeedGap2,
                                DLG_DBSYSTEM_3::kMaxActions};
  // The template's timing, by the battle time formula.
  ASSERT_EQ(g_System.m_nTurnMode, 0);
  double actions[2];
  ComputeReferenceActions(g_System, actions);
  char expected[16];
  std::snprintf(expected, sizeof expected, "%.1f", actions[0]);
  EXPECT_EQ(text(DLG_DBSYSTEM_3::kActions), expected);
  Type(page->GetDlgItem(DLG_DBSYSTEM_3::kBattleTime), "54");
  cSystem timing;
  timing.Copy(g_System);
  timing.m_nBattleTime = 54;
  ComputeReferenceActions(timing, actions);
  std::snprintf(expected, sizeof expected, "%.1f", actions[1]);
  EXPECT_EQ(text(DLG_DBSYSTEM_3::kActions2), expected);

  Choose(page->GetDlgItem(DLG_DBSYSTEM_3::kTurnMode), 1);
  for (unsigned id : timeIds) EXPECT_FALSE(page->GetDlgItem(id)->isEnabled()) << id;
  for (unsigned id : simpleIds) EXPECT_TRUE(page->GetDlgItem(id)->isEnabled()) << id;
  Type(page->GetDlgItem(DLG_DBSYSTEM_3::kBaseActions), "2");
  Type(page->GetDlgItem(DLG_DBSYSTEM_3::kBaseActions2), "3");
  EXPECT_EQ(text(DLG_DBSYSTEM_3::kActions), "2.0");
  EXPECT_EQ(text(DLG_DBSYSTEM_3::kActions2), "3.0");

  Choose(page->GetDlgItem(DLG_DBSYSTEM_3::kTurnMode), 0);
  for (unsigned id : timeIds) EXPECT_TRUE(page->GetDlgItem(id)->isEnabled()) << id;
  for (unsigned id : simpleIds) EXPECT_FALSE(page->GetDlgItem(id)->isEnabled()) << id;
}

TEST_F(SystemPagesTest, TheForecastCheckRestoresEachTermBoxFromItsSubCheckAndTheTitleMenuFollowsTheImage) {
  auto* page = System<DLG_DBSYSTEM_5>(5);
  const auto button = [page](unsigned id) { return static_cast<QAbstractButton*>(page->GetDlgItem(id)); };
  if (!button(DLG_DBSYSTEM_5::kPredict)->isChecked()) button(DLG_DBSYSTEM_5::kPredict)->click();
  // Sub-checks 0 and 2 on, 1 and 3 off.
  for (unsigned row = 0; row < kSystemPredictCount; ++row)
    if (button(DLG_DBSYSTEM_5::kPredictShow + row)->isChecked() != (row % 2 == 0))
      button(DLG_DBSYSTEM_5::kPredictShow + row)->click();
  button(DLG_DBSYSTEM_5::kPredict)->click();
  for (unsigned row = 0; row < kSystemPredictCount; ++row) {
    EXPECT_FALSE(page->GetDlgItem(DLG_DBSYSTEM_5::kPredictShow + row)->isEnabled());
    EXPECT_FALSE(page->GetDlgItem(DLG_DBSYSTEM_5::kPredictTerm + row)->isEnabled());
  }
  button(DLG_DBSYSTEM_5::kPredict)->click();
  for (unsigned row = 0; row < kSystemPredictCount; ++row) {
    EXPECT_TRUE(page->GetDlgItem(DLG_DBSYSTEM_5::kPredictShow + row)->isEnabled());
    EXPECT_EQ(page->GetDlgItem(DLG_DBSYSTEM_5::kPredictTerm + row)->isEnabled(), row % 2 == 0) << row;
  }

  QWidget* first = Named(*page, "初めからの表示");
  QAbstractButton* offered = static_cast<QAbstractButton*>(Named(*page, "初めから"));
  const bool image = button(DLG_DBSYSTEM_5::kGameModeImage)->isChecked();
  if (!offered->isChecked()) offered->click();
  EXPECT_EQ(first->isEnabled(), !image);
  button(DLG_DBSYSTEM_5::kGameModeImage)->click();
  EXPECT_EQ(first->isEnabled(), image);
  offered->click();
  EXPECT_FALSE(first->isEnabled());
}

TEST_F(SystemPagesTest, ACountBelowTheElementListCutsItFromTheEndAndAMusicRowAtZeroPlaysNothing) {
  auto* page = System<DLG_DBSYSTEM_4>(4);
  QListWidget* list = ListOf(*page, DLG_DBSYSTEM_4::kElemList);
  const int shown = g_System.m_vecElem.Count() - 1;
  ASSERT_GE(shown, 3);
  const VECTOR_CLASS<cElem> elems = g_System.m_vecElem;
  AnswerNumber(2);
  page->SendCommand(kIdListCount, kNotifyClicked);
  EXPECT_EQ(list->count(), 2 + 1);  // and the blank row
  EXPECT_EQ(list->item(1)->text().toStdString().find(Cp932ToUtf8Lossy(elems[2].m_strName)) != std::string::npos, true);
  EXPECT_EQ(g_System.m_vecElem.Count(), elems.Count()) << "the record waits for the apply";
  SheetButton("適用")->click();
  ASSERT_EQ(g_System.m_vecElem.Count(), 3);
  EXPECT_TRUE(Compare(g_System.m_vecElem[2], elems[2]));

  // Nothing to play at row 0: no message, no music.
  auto* music = static_cast<QComboBox*>(page->GetDlgItem(DLG_DBSYSTEM_4::kBgm));
  music->setCurrentIndex(0);
  page->SendCommand(DLG_DBSYSTEM_4::kBgm + 1, kNotifyClicked);
  EXPECT_TRUE(m_prompt.shown.empty());
}

}  // namespace
