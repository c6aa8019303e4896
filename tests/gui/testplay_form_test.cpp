// The test play settings form: its one enabling rule, OK and Cancel.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <tuple>

#include "editor/dlg_testplay.h"
#include "toolkit/file_helpers.h"
#include "project/project_globals.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

class TestPlayFormTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    fs::create_directories("e_data");
    g_TestPlay.Init();
  }
  // Runs the form with `user` acting on it once it is up; the form's result.
  int Run(std::function<void(DLG_TESTPLAY&)> user) {
    QTimer::singleShot(0, [user] { user(*DLG_TESTPLAY::Live()); });
    return RunTestPlaySettings(nullptr);
  }
  static QWidget* Item(DLG_TESTPLAY& form, unsigned id) { return form.GetDlgItem(id); }
  static void Click(DLG_TESTPLAY& form, unsigned id) { qobject_cast<QAbstractButton*>(Item(form, id))->click(); }
};

TEST_F(TestPlayFormTest, PathIsEditableOnlyWithoutAutomaticSearchAndOkSavesTheRecord) {
  int result = Run([](DLG_TESTPLAY& form) {
    QWidget* path = Item(form, DLG_TESTPLAY::kIdGamePath);
    EXPECT_FALSE(path->isEnabled());
    Click(form, DLG_TESTPLAY::kIdAutoFind);
    EXPECT_TRUE(path->isEnabled());
    EXPECT_EQ(g_TestPlay.m_bAutoFind, 1) << "nothing is committed before OK";
    path->setFocus();
    QTest::keyClicks(path, "game\\play");
    qobject_cast<QComboBox*>(Item(form, DLG_TESTPLAY::kIdTraining))->setCurrentIndex(1);
    Click(form, kIdOk);
  });
  EXPECT_EQ(std::tie(result, g_TestPlay.m_bAutoFind, g_TestPlay.m_strGamePath, g_TestPlay.m_nTraining),
            std::make_tuple(1, 0, "game\\play", 1));
  cTestPlay saved;
  ASSERT_EQ(saved.LoadFile(kTestPlayPath), 1);
  EXPECT_EQ(Compare(saved, g_TestPlay), 1);

  // Opened again, the check is off and so the path is open to editing.
  Run([](DLG_TESTPLAY& form) {
    EXPECT_TRUE(Item(form, DLG_TESTPLAY::kIdGamePath)->isEnabled());
    Click(form, kIdCancel);
  });
}

TEST_F(TestPlayFormTest, BrowsedProgramGoesIntoTheRecordAtOnceRelativeWithBackslashes) {
  const std::string chosen = (m_dir / "game" / "bin" / "play").string();
  m_prompt.files = {{chosen}};
  Run([](DLG_TESTPLAY& form) {
    Click(form, DLG_TESTPLAY::kIdBrowse);
    EXPECT_EQ(qobject_cast<QLineEdit*>(Item(form, DLG_TESTPLAY::kIdGamePath))->text(), QStringLiteral("game\\bin\\play"));
    Click(form, kIdCancel);
  });
  ASSERT_EQ(m_prompt.fileAsks.size(), 1u);
  EXPECT_EQ(m_prompt.fileAsks[0].initialDir, ".");
  EXPECT_EQ(g_TestPlay.m_strGamePath, "game\\bin\\play");
  EXPECT_FALSE(fs::exists("e_data/Testplay.dat"));
  std::string stored = "old";
  ASSERT_TRUE(GamePathOf("game/bin/play", stored));
  EXPECT_EQ(stored, "game\\bin\\play");
}

}  // namespace
