#pragma once
// DLG_GROUPPOS, the list of the stage's position groups, numbered from 1 (group 0 is
// never shown). It works on a copy: OK gives the stage the edited groups, Cancel drops
// them, those confirmed in DLG_GROUPPOS_SET too. Rows go only by cut and "ﾃﾞｰﾀ数"; a
// delete clears a group, so that references to its number stay.

#include "stage/stage_records.h"
#include "toolkit/dlg_class.h"
#include "toolkit/live_instance.h"

class DLG_GROUPPOS : public DLG_CLASS, public cLiveInstance<DLG_GROUPPOS> {
 public:
  enum : unsigned { kIdList = 1080, kIdNew = 1081, kIdEdit = 1082, kIdClear = 1083 };

  // A stage with group 0 alone gets a first visible group at once, whether or not the
  // form is confirmed. `main` is the main window, where the group form opens.
  DLG_GROUPPOS(QWidget* parent, QWidget* main);

  CTRL_LIST_CLASS<cGroupPos> m_List;
  VECTOR_CLASS<cGroupPos> m_vecWork;

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  void Edit();
  void DataCount();
  QWidget* m_pMain;
};

// The command "位置グループの設定": the form, modal. Its result.
int RunPositionGroups(QWidget* main);
