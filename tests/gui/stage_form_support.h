#pragma once
// Helpers of the stage form tests: a project of small tables with an open stage, and
// the user's clicks and choices in a form.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>

#include "gui/modal_support.h"
#include "kernel/serial_file.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "support/test_env.h"
#include "toolkit/dlg_class.h"

class StageFormTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    ResetProjectGlobals();
    g_vecEnemy.resize(3);
    g_Database.m_vecBgm.resize(2);
    g_Database.m_vecBack.resize(3);
    g_Database.m_vecPtVal.resize(3);
    g_Stage.Init();
    g_EditState = cEditState{};
    g_EditState.Reset();
    g_EditState.m_bStageOpen = 1;
    g_EditConfig.m_nUndoDepth = 3;
  }
  void TearDown() override {
    g_EditState = cEditState{};
    ResetProjectGlobals();
    ProjectDirTest::TearDown();
  }

 private:
  cGlobalsGuard<cEditConfig> m_config{g_EditConfig};
};

inline std::vector<unsigned char> SavedBytes(cSerial& record) {
  SerialFilePtr file = OpenSerialWriteBuffer();
  record.Save(file.get());
  return file->Bytes();
}

inline void Click(DLG_CLASS& form, unsigned id) { static_cast<QAbstractButton*>(form.GetDlgItem(id))->click(); }

// The user picks row `row` of a combo.
inline void Choose(DLG_CLASS& form, unsigned id, int row) {
  auto* combo = static_cast<QComboBox*>(form.GetDlgItem(id));
  combo->setCurrentIndex(row);
  emit combo->activated(row);
}
