#pragma once
// DLG_MOVEAITEMPLATE, the project's move rule templates by name: their order, their
// names and descriptions, and deletion. It works on a copy of the templates that its
// caller made; OK makes the copy the project's templates and saves them at once.

#include "database/move_ai.h"
#include "toolkit/dlg_class.h"
#include "toolkit/live_instance.h"

class DLG_MOVEAITEMPLATE : public DLG_CLASS, public cLiveInstance<DLG_MOVEAITEMPLATE> {
 public:
  enum : unsigned { kIdList = 1070, kIdUp = 1071, kIdDown = 1072, kIdDelete = 1073, kIdName = 1074, kIdDesc = 1076 };

  // In `newMode` the last template is the new one, and it is selected at the start.
  DLG_MOVEAITEMPLATE(VECTOR_CLASS<cMoveAITemplate>& templates, bool newMode, QWidget* parent);

  CTRL_LIST_CLASS<cMoveAITemplate> m_List;
  VECTOR_CLASS<cMoveAITemplate>& m_vecTemplates;
  VECTOR_CLASS<cMoveAITemplate> m_vecWork;
  cMoveAITemplate m_Edit;

 protected:
  void OnReady() override;
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  bool m_bNewMode;
};

// The form on `templates`; on OK they are the project's and saved. The form's result.
int RunMoveAITemplates(VECTOR_CLASS<cMoveAITemplate>& templates, bool newMode, QWidget* parent);
