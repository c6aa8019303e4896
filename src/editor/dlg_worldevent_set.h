#pragma once
// DLG_WORLDEVENT_SET, the form of one event of the world map: its name and its pages,
// each page saying when it appears, what it shows and which stage it opens. The form
// edits a working copy; its OK always makes an undo step of the world map before the
// event takes the edits, whether the event stands on the map, is a template of the
// palette or is about to be placed.

#include <string>

#include "stage/world_event.h"
#include "toolkit/live_instance.h"
#include "toolkit/record_form.h"

class DLG_WORLDEVENT_SET : public cRecordForm<cWorldEvent>, public cLiveInstance<DLG_WORLDEVENT_SET> {
 public:
  enum : unsigned {
    kIdName = 1300,
    kIdInsert,
    kIdDelete,
    kIdPages,
    kIdCondStage,
    kIdCondStageSpin,
    kIdCondVar,
    kIdCondVarRename,
    kIdCondValue,
    kIdCondValueSpin,
    kIdCondCmp,
    kIdGraphic,
    kIdPreview,
    kIdType,
    kIdStageName,
    kIdStagePath,
    kIdBrowse,
    kIdVariation,
    kIdVarNo,
    kIdVarRename,
    kIdVarValue,
    kIdVarValueSpin,
    kIdStageNo,
    kIdStageNoSpin,
    kIdPassable,
    kIdReplay,
    kIdGameClear,
  };
  static constexpr int kMaxPages = 99;

  DLG_WORLDEVENT_SET(cWorldEvent& target, QWidget* parent);

  CTRL_LIST_CLASS<cWorldEventPage> m_Pages;
  VECTOR_CLASS<cWorldEventPage> m_vecPages;  // the working list
  cWorldEventPage m_Page;                    // the selected page, which the controls show

 protected:
  void OnReady() override;
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;

 private:
  void ShowPreview();
  void RefillVariables();
  cWorldEvent& m_rTarget;
  VECTOR_CLASS<std::string> m_vecCondVarRows, m_vecVarRows, m_vecGraphicRows;
};

// The form on `event`, modal; its result. On OK the world map has its undo step and
// `event` the edits.
int RunWorldEventSet(cWorldEvent& event, QWidget* parent);

// Rows of the sheet "image\WorldEvent.*", one a graphic: its height in 32-pixel cells,
// at least one.
int WorldEventGraphicRows();
