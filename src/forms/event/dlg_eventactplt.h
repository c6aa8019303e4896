#pragma once
// DLG_EVENTACTPLT, the action palette's own form: its entries in order, moved up and
// down, deleted, named and described, with the kinds of the selected entry's actions
// on one line. It edits a copy; OK makes that the palette and saves it.

#include "event/stored_events.h"
#include "toolkit/dlg_class.h"
#include "toolkit/live_instance.h"

class DLG_EVENTACTPLT : public DLG_CLASS, public cLiveInstance<DLG_EVENTACTPLT> {
 public:
  enum : unsigned {
    kIdList = 1600,
    kIdUp = 1601,
    kIdDown = 1602,
    kIdDelete = 1603,
    kIdName = 1604,
    kIdDesc = 1605,
    kIdContents = 1606,
  };
  // `palette` is the working copy; row `sel` is selected when the form opens.
  DLG_EVENTACTPLT(VECTOR_CLASS<cEventActPlt>& palette, int sel, QWidget* parent);

  VECTOR_CLASS<cEventActPlt>& m_vecPalette;
  cEventActPlt m_Edit;
  CTRL_LIST_CLASS<cEventActPlt> m_List;

 protected:
  void OnReady() override;
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;

 private:
  int m_nFirstSel;
};

// The form on `palette`, a copy of g_vecEventActPlt; its result.
int RunEventActPalette(VECTOR_CLASS<cEventActPlt>& palette, int sel, QWidget* parent);
