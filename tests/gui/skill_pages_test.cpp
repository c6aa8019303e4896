// The skill list page and the skill sheet on the template's project: the list row's own
// clearing, the sheet that edits one list's skills and gives them back to the page's
// row only, the kind table as the page shows it, the spreadsheet round trip, and the
// database sheet's Cancel after all of it.

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>

#include "app/idle_frame.h"
#include "database/skill_csv_exchange.h"
#include "forms/animated_previews.h"
#include "forms/database/db_skill_list_page.h"
#include "forms/database/db_skill_page.h"
#include "gui/database_sheet_fixture.h"
#include "gui/form_probe.h"
#include "kernel/record_vector_file.h"
#include "kernel/serial_file.h"
#include "platform/prompt.h"
#include "project/project_files.h"
#include "project/project_globals.h"

namespace fs = std::filesystem;

namespace {

using D = DLG_DBSKILL;

constexpr int kMagicRow = 10;   // "ファイア" of the template's list
constexpr int kWeaponRow = 21;  // "銅の剣"

template <class T>
std::vector<unsigned char> Saved(const T& record) {
  SerialFilePtr file = OpenSerialWriteBuffer();
  T copy = record;
  copy.Save(file.get());
  return file->Bytes();
}

class SkillPagesTest : public DatabaseSheetTest {
 protected:
  void BeforeOpening() override {
    ASSERT_TRUE(SaveAllDatabaseFiles());
    m_Saved = DatabaseFiles();
  }
  void TearDown() override {
    if (m_pLists != nullptr && m_pLists->SkillSheet() != nullptr) m_pLists->SkillSheet()->Cancel();
    DatabaseSheetTest::TearDown();
  }
  DLG_DBSKILLLIST* Lists() {
    if (m_pLists == nullptr) m_pLists = ShowPage<DLG_DBSKILLLIST>(3);
    return m_pLists;
  }
  // The skill sheet over the list page's row 0, on skill row `row`.
  DLG_DBSKILL* OpenSkills(int row = 1) {
    Click(ListOf(*Lists(), DLG_DBSKILLLIST::kList), 0);
    Lists()->SendCommand(DLG_DBSKILLLIST::kEditSkills, kNotifyClicked);
    if (Lists()->SkillSheet() == nullptr) return nullptr;
    DLG_DBSKILL* page = Lists()->SkillSheet()->Page();
    Select(*page, row);
    return page;
  }
  static void Select(DLG_DBSKILL& page, int row) {
    Click(ListOf(page, D::kList), row - 1);
    page.SendCommand(D::kList, kNotifySelChange);
  }
  static void Choose(DLG_CLASS& form, unsigned id, int index) {
    static_cast<QComboBox*>(form.GetDlgItem(id))->setCurrentIndex(index);
    form.SendCommand(id, kNotifySelChange);
  }
  static void Toggle(DLG_CLASS& form, unsigned id) { static_cast<QAbstractButton*>(form.GetDlgItem(id))->click(); }
  static bool Enabled(DLG_CLASS& form, unsigned id) { return form.GetDlgItem(id)->isEnabled(); }

  Files m_Saved;
  DLG_DBSKILLLIST* m_pLists = nullptr;
};

TEST_F(SkillPagesTest, ClearingAListRowLeavesZerosAndEmptyVectorsThatThePageShowsAsBlanks) {
  DLG_DBSKILLLIST* page = Lists();
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(ProbeOpenForm(*page), std::vector<std::string>{});
  Click(ListOf(*page, DLG_DBSKILLLIST::kList), 0);
  page->SendCommand(DLG_DBSKILLLIST::kIdClear, kNotifyClicked);
  const cSkillList& row = page->m_vecWork[0];
  EXPECT_EQ(row.m_nSlotType, 0) << "not the constructed 1";
  EXPECT_EQ(row.m_nReserveMax, 0) << "the box's range is not written over the cleared row";
  EXPECT_TRUE(row.m_vecSkill.empty() && row.m_vecCateg.empty() && row.m_vecScene.empty() && row.m_vecMenuCmd.empty());
  EXPECT_FALSE(static_cast<QAbstractButton*>(page->GetDlgItem(DLG_DBSKILLLIST::kScene))->isChecked());

  // A menu entry the row lacks is added when the user gives it a value, with those
  // before it as the screen shows them; the rest stays empty.
  Toggle(*page, DLG_DBSKILLLIST::kMenuOn + 2);
  TypeInto(*page, DLG_DBSKILLLIST::kMenuName + 2, "X");
  const VECTOR_CLASS<cCmd>& menu = page->m_vecWork[0].m_vecMenuCmd;
  ASSERT_EQ(menu.Count(), 3);
  EXPECT_EQ(menu[2].m_strName, "X");
  EXPECT_EQ(menu[0].m_bEnabled + menu[1].m_bEnabled + menu[2].m_bEnabled, 1);
  EXPECT_TRUE(page->m_vecWork[0].m_vecScene.empty());

  // The skill sheet of a list without skills opens on the one usable row it adds.
  DLG_DBSKILL* skills = OpenSkills();
  ASSERT_NE(skills, nullptr);
  EXPECT_EQ(skills->m_vecWork.Count(), 2);
}

TEST_F(SkillPagesTest, TheSkillSheetDisablesTheDatabaseSheetAndItsCancelLeavesTheRowAsItWas) {
  DLG_DBSKILL* page = OpenSkills(kMagicRow);
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(ProbeOpenForm(*page), std::vector<std::string>{});
  EXPECT_FALSE(m_pSheet->m_hWnd->isEnabled()) << "every other window waits for the skill sheet";
  const std::vector<unsigned char> before = Saved(Lists()->m_Edit);
  TypeInto(*page, D::kName, "Z");
  EXPECT_TRUE(page->m_vecWork[kMagicRow].m_strName.ends_with("Z"));
  Lists()->SkillSheet()->Cancel();
  EXPECT_EQ(Lists()->SkillSheet(), nullptr);
  EXPECT_TRUE(m_pSheet->m_hWnd->isEnabled());
  EXPECT_EQ(Saved(Lists()->m_Edit), before);

  // Apply reaches the list page's row and nothing beyond it.
  const std::vector<unsigned char> table = Saved(g_vecSkillList[0]);
  page = OpenSkills(kMagicRow);
  TypeInto(*page, D::kName, "Y");
  Lists()->SkillSheet()->Apply();
  EXPECT_TRUE(Lists()->m_Edit.m_vecSkill[kMagicRow].m_strName.ends_with("Y"));
  EXPECT_TRUE(Lists()->m_vecWork[0].m_vecSkill[kMagicRow].m_strName.ends_with("Y"));
  EXPECT_EQ(Saved(g_vecSkillList[0]), table);
  EXPECT_EQ(DatabaseFiles(), m_Saved);
}

// The font the editor sets for its whole run, for the tests of what fits the screen:
// the platform of the tests would lay the sheets out in its own wider default.
class cEditorFont {
 public:
  cEditorFont() {
    if (QFontDatabase::hasFamily(QStringLiteral("IPAPGothic"))) QApplication::setFont(QFont(QStringLiteral("IPAPGothic"), 9));
  }
  ~cEditorFont() { QApplication::setFont(m_Saved); }

 private:
  QFont m_Saved = QApplication::font();
};

TEST_F(SkillPagesTest, BothSheetsFitAScreenOf1024By768) {
  const cEditorFont font;
  ASSERT_NE(OpenSkills(), nullptr);
  for (QWidget* sheet : {m_pSheet->m_hWnd.data(), Lists()->SkillSheet()->m_hWnd.data()}) {
    const QSize least = sheet->minimumSizeHint();
    EXPECT_LE(least.width(), 1024);
    EXPECT_LE(least.height(), 768 - 40) << "and room for a title bar";
  }
}

// The skill page shows every field at once: it has no scroll bars, and at the sheet's
// least size no text is cut, in its labels, checks, buttons or combos, and nothing
// stands beyond the page's edge, for a magic attack and for a weapon alike.
TEST_F(SkillPagesTest, TheSkillPageShowsEveryFieldWholeAtItsLeastSize) {
  const cEditorFont font;
  DLG_DBSKILL* page = OpenSkills();
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->ScrollArea(), nullptr);
  QWidget* sheet = Lists()->SkillSheet()->m_hWnd;
  sheet->resize(sheet->minimumSizeHint());
  for (int row : {kMagicRow, kWeaponRow}) {
    Select(*page, row);
    QApplication::processEvents();
    const QRect inside = page->m_hWnd->rect();
    for (QWidget* w : page->m_hWnd->findChildren<QWidget*>()) {
      if (!w->isVisible()) continue;
      const std::string name = w->accessibleName().toStdString();
      EXPECT_TRUE(inside.contains(QRect(w->mapTo(page->m_hWnd, QPoint(0, 0)), w->size()))) << name << " on row " << row;
      int need = 0;
      if (auto* label = qobject_cast<QLabel*>(w)) need = label->minimumSizeHint().width();
      else if (auto* check = qobject_cast<QCheckBox*>(w)) need = check->sizeHint().width();
      else if (auto* button = qobject_cast<QPushButton*>(w)) need = button->sizeHint().width();
      else if (auto* combo = qobject_cast<QComboBox*>(w)) need = combo->fontMetrics().horizontalAdvance(combo->currentText()) + 24;
      EXPECT_GE(w->width(), need) << "cut: " << name << " \"" << w->property("text").toString().toStdString() << "\" on row " << row;
    }
  }
}

TEST_F(SkillPagesTest, ThePreviewRunsOnTheIdleFramesWhileTheSkillSheetIsOpen) {
  DLG_DBSKILL* page = OpenSkills(kMagicRow);
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(AnimatedPreviewCount(), 1);
  EXPECT_TRUE(AnyAnimatedPreviewLive());
  // The pattern's frames follow one another; some frame of a second differs.
  const auto& shown = page->GetCtrl<CTRL_PICTURE_CLASS>(D::kPreview)->m_Surface.m_vecBits;
  const auto first = shown;
  bool moved = false;
  for (int frame = 0; frame < kIdleFramesPerSecond && !moved; ++frame) {
    GiveAnimatedPreviewFrames();
    moved = shown != first;
  }
  EXPECT_TRUE(moved);
  Lists()->SkillSheet()->Cancel();
  EXPECT_EQ(AnimatedPreviewCount(), 0);
  EXPECT_FALSE(AnyAnimatedPreviewLive()) << "the idle frames stop with the sheet";
}

TEST_F(SkillPagesTest, ArmourHasTheTargetSelfAndItsFiveUseFlagsCleared) {
  DLG_DBSKILL* page = OpenSkills(kMagicRow);
  ASSERT_NE(page, nullptr);
  page->m_vecWork[kMagicRow].m_bUseMapSkill = page->m_vecWork[kMagicRow].m_bUseMapStock = 1;
  Select(*page, kMagicRow);
  Choose(*page, D::kKind, kSkillArmour);
  const cSkill& row = page->m_vecWork[kMagicRow];
  EXPECT_EQ(row.m_nTarget, 0);
  EXPECT_EQ(row.m_bUseMapSkill + row.m_bUseMapStock + row.m_bUseBattleSkill + row.m_bUseBattleQuick +
                row.m_bUseBattleStock,
            0);
  EXPECT_EQ(static_cast<QComboBox*>(page->GetDlgItem(D::kTarget))->currentIndex(), 0);
  EXPECT_FALSE(static_cast<QAbstractButton*>(page->GetDlgItem(D::kUseBattleSkill))->isChecked());
}

// The enabled controls of each kind, with every take-from-weapon flag off and the
// resource SP: '1' enabled, kinds 0 to 9 from the left.
struct cKindRow {
  std::vector<unsigned> ids;
  const char* kinds;
};
const cKindRow kKindTable[] = {
    {{D::kResource, D::kCostSP}, "1111111000"},
    {{D::kUseLimit, D::kUnlimited}, "0000000000"},
    {{D::kWeapon}, "1111111000"},
    {{D::kUseBattleSkill, D::kUseBattleStock}, "1111111000"},
    {{D::kUseBattleQuick}, "1111011000"},
    {{D::kUseMapSkill, D::kUseMapStock}, "0010000000"},
    {{D::kEffectValue}, "1111101110"},
    {{D::kNoStatus, D::kDamageRate}, "1111000000"},
    {{D::kCompati}, "1100000110"},
    {{D::kCompatiOfWeapon}, "1100000000"},
    {{D::kElem}, "1111010111"},
    {{D::kElemOfWeapon}, "1111010000"},
    {{D::kElemValue}, "0000000001"},
    {{D::kHitRate}, "1111111110"},
    {{D::kHitOfWeapon}, "1111010000"},
    {{D::kCritical}, "1111010110"},
    {{D::kCriticalAdd}, "1111010000"},
    {{D::kSubA, D::kSubA + 8}, "1111010111"},
    {{D::kSubB, D::kSubB + 8}, "1111111000"},
    {{D::kSubAPercent}, "0000000111"},
    {{D::kSubBPercent}, "1111111000"},
    {{D::kVanish}, "1111111000"},
    {{D::kEffectOfWeapon}, "1111111000"},
    {{D::kEffect, D::kEffectList, D::kEffectAnim, D::kCharaAnim, D::kScale, D::kAlpha, D::kHue, D::kSat, D::kVal,
      D::kSound},
     "1111111110"},
    {{D::kTarget}, "0000000000"},
};

TEST_F(SkillPagesTest, EachKindEnablesWhatItsRowOfTheTableAllows) {
  DLG_DBSKILL* page = OpenSkills(1);
  ASSERT_NE(page, nullptr);
  cSkill& row = page->m_vecWork[1];
  row.m_nResourceType = 0;
  row.m_bCompatiOfWeapon = row.m_bElemOfWeapon = row.m_bHitOfWeapon = row.m_bEffectOfWeapon = 0;
  Select(*page, 1);
  for (int kind = kSkillKindCount - 1; kind >= 0; --kind) {
    Choose(*page, D::kKind, kind);
    for (const cKindRow& r : kKindTable)
      for (unsigned id : r.ids)
        EXPECT_EQ(Enabled(*page, id), r.kinds[kind] == '1') << "kind " << kind << ", control " << id;
  }
}

TEST_F(SkillPagesTest, TheWeaponFlagsAndTheResourceTurnTheirFieldsOnAndOff) {
  DLG_DBSKILL* page = OpenSkills(1);
  ASSERT_NE(page, nullptr);
  Choose(*page, D::kKind, kSkillPhysicalAttack);
  Choose(*page, D::kResource, 0);
  ASSERT_TRUE(Enabled(*page, D::kCompati));
  Toggle(*page, D::kCompatiOfWeapon);
  EXPECT_FALSE(Enabled(*page, D::kCompati)) << "the weapon's type, not its own";
  Toggle(*page, D::kEffectOfWeapon);
  EXPECT_FALSE(Enabled(*page, D::kHue));

  Choose(*page, D::kResource, 1);
  EXPECT_FALSE(Enabled(*page, D::kCostSP));
  EXPECT_TRUE(Enabled(*page, D::kUseLimit) && Enabled(*page, D::kUnlimited));
  if (static_cast<QAbstractButton*>(page->GetDlgItem(D::kUnlimited))->isChecked()) Toggle(*page, D::kUnlimited);
  Toggle(*page, D::kUnlimited);
  EXPECT_FALSE(Enabled(*page, D::kUseLimit));

  // A kind that clears a flag the row holds clears it in the row.
  Choose(*page, D::kKind, kSkillTime);
  EXPECT_EQ(page->m_vecWork[1].m_bCompatiOfWeapon, 0);
  EXPECT_FALSE(static_cast<QAbstractButton*>(page->GetDlgItem(D::kCompatiOfWeapon))->isChecked());

  Toggle(*page, D::kSortOn);
  EXPECT_EQ(Enabled(*page, D::kSortNumber), page->m_vecWork[1].m_bSortNumber != 0);
}

// The spreadsheet commands of the skill page, with the author's answers scripted.
class SkillCsvTest : public SkillPagesTest {
 protected:
  void Run(DLG_DBSKILL& page, unsigned command, std::vector<int> answers) {
    m_prompt.answers = std::move(answers);
    m_prompt.shown.clear();
    page.SendCommand(command, kNotifyClicked);
  }
  std::string LastText() const { return m_prompt.shown.empty() ? "" : m_prompt.shown.back().text; }
  // Cell `cell` of the first skill's line takes `value`.
  static void EditFirstSkill(int cell, const std::string& value) {
    std::string text = FileText(kPath);
    std::size_t line = 0;
    for (int n = 0; n < 9; ++n) line = text.find('\n', line) + 1;
    std::size_t begin = line;
    for (int c = 0; c < cell; ++c) begin = text.find(',', begin) + 1;
    const std::size_t end = text.find(',', begin);
    text.replace(begin, end - begin, value);
    WriteBytes(kPath, std::vector<unsigned char>(text.begin(), text.end()));
  }
  static constexpr const char* kPath = "csv/Skill01.csv";
};

TEST_F(SkillCsvTest, AnEditedFileReachesTheSkillFileThroughApplyAndARefusedOneChangesNothing) {
  DLG_DBSKILL* page = OpenSkills(1);
  ASSERT_NE(page, nullptr);
  Run(*page, D::kCsvSave, {IDNO});
  EXPECT_EQ(LastText(), CP932_TEXT("中止しました。"));
  EXPECT_FALSE(fs::exists(kPath));
  Run(*page, D::kCsvSave, {IDYES, IDYES});
  ASSERT_TRUE(fs::exists(kPath));
  EXPECT_EQ(LastText(), CP932_TEXT("保存完了！"));

  EditFirstSkill(3, "1234");  // 値段_d
  Run(*page, D::kCsvRead, {IDYES, IDYES});
  EXPECT_EQ(page->m_vecWork[1].m_nPrice, 1234);
  EXPECT_EQ(static_cast<QLineEdit*>(page->GetDlgItem(D::kPrice))->text(), "1234") << "the row on the screen follows";

  // A file of another list is refused whole.
  const std::vector<unsigned char> work = Saved(page->m_vecWork[1]);
  std::string text = FileText(kPath);
  text.replace(text.find(SkillCsvTypeName(1)), SkillCsvTypeName(1).size(), SkillCsvTypeName(2));
  WriteBytes(kPath, std::vector<unsigned char>(text.begin(), text.end()));
  Run(*page, D::kCsvRead, {IDYES, IDYES});
  EXPECT_EQ(Saved(page->m_vecWork[1]), work);

  Lists()->SkillSheet()->Ok();
  SheetButton("適用")->click();
  VECTOR_CLASS<cSkillList> lists;
  ASSERT_TRUE(LoadVector(lists, "data/database/Skill.dat"));
  EXPECT_EQ(lists[0].m_vecSkill[1].m_nPrice, 1234);
}

TEST_F(SkillCsvTest, TheSkillSheetsCancelDropsAnAcceptedFile) {
  DLG_DBSKILL* page = OpenSkills(1);
  ASSERT_NE(page, nullptr);
  const int price = page->m_vecWork[1].m_nPrice;
  Run(*page, D::kCsvSave, {IDYES, IDYES});
  EditFirstSkill(3, std::to_string(price + 5));
  Run(*page, D::kCsvRead, {IDYES, IDYES});
  ASSERT_EQ(page->m_vecWork[1].m_nPrice, price + 5);
  EXPECT_EQ(m_prompt.shown.back().text.rfind(CP932_TEXT("読み込み完了！"), 0), 0u);
  Lists()->SkillSheet()->Cancel();
  EXPECT_EQ(Lists()->m_Edit.m_vecSkill[1].m_nPrice, price);

  // A second save never overwrites the file.
  page = OpenSkills(1);
  Run(*page, D::kCsvSave, {IDYES, IDYES});
  EXPECT_NE(LastText().find(CP932_TEXT("は既に存在します。")), std::string::npos);
}

TEST_F(SkillPagesTest, CancelOfTheDatabaseSheetAfterEditsOnTheSkillPagesLeavesEveryFileAsItWas) {
  const std::vector<unsigned char> lists = Saved(g_vecSkillList[0]);
  TypeInto(*Lists(), DLG_DBSKILLLIST::kName, "L");
  TypeInto(*Lists(), DLG_DBSKILLLIST::kMenuName, "M");
  DLG_DBSKILL* page = OpenSkills(kWeaponRow);
  ASSERT_NE(page, nullptr);
  Choose(*page, D::kKind, kSkillMagicAttack);
  TypeInto(*page, D::kDesc, "D");
  Lists()->SkillSheet()->Ok();
  EXPECT_EQ(Lists()->m_vecWork[0].m_vecSkill[kWeaponRow].m_nKind, kSkillMagicAttack);
  SheetButton("キャンセル")->click();
  EXPECT_EQ(DatabaseFiles(), m_Saved);
  EXPECT_EQ(Saved(g_vecSkillList[0]), lists);
}

}  // namespace
