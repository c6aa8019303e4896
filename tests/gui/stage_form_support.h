#pragma once
// Helpers of the stage form tests: a project of small tables with an open stage, and a
// way to act on the modal form that the next call opens.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTimer>
#include <functional>

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

// Runs `during` on the modal form that opens next, once it stands. A missing form
// fails the test and closes whatever is open.
inline void DuringModal(std::function<void(DLG_CLASS&)> during) {
  QTimer::singleShot(0, [during] {
    QWidget* w = QApplication::activeModalWidget();
    DLG_CLASS* form = DLG_CLASS::FromWidget(w);
    if (form == nullptr) {
      ADD_FAILURE() << "no modal form";
      if (w != nullptr) w->close();
      return;
    }
    during(*form);
  });
}

inline void Click(DLG_CLASS& form, unsigned id) { static_cast<QAbstractButton*>(form.GetDlgItem(id))->click(); }

// The user picks row `row` of a combo.
inline void Choose(DLG_CLASS& form, unsigned id, int row) {
  auto* combo = static_cast<QComboBox*>(form.GetDlgItem(id));
  combo->setCurrentIndex(row);
  emit combo->activated(row);
}
