#pragma once
// DLG_EVENT_SET, the form of one event: its name, its pages, and the conditions, the
// timing and the action list of the selected page. It works on a copy of the event;
// the page list stands on that copy's pages, the page's controls on the page list's
// edit record, and the action list on the edit record's own actions, so that a change
// of page shows that page's actions and a change of an action reaches the page row by
// the page list's commit. OK writes the copy back (after the stage's undo step), or,
// for the project's start event, writes it and saves its file.

#include <QMenu>
#include <QPointer>

#include "event/event.h"
#include "event/stored_events.h"
#include "toolkit/dlg_class.h"
#include "toolkit/live_instance.h"


// What the form edits: an event of the stage or a template of the event palette (OK
// makes an undo step of the stage either way, which also ends what Redo could bring
// back), or the project's start event (OK saves its file and makes no step; its page
// controls stay off and only the kinds it allows can be chosen).
enum class eEventTarget { kStage, kTemplate, kStart };

class DLG_EVENT_SET : public DLG_CLASS, public cLiveInstance<DLG_EVENT_SET> {
 public:
  enum : unsigned {
    kIdName = 1201,
    kIdHeld = 1202,
    kIdPageList = 1254,
    kIdPageInsert = 1066,
    kIdPageDelete = 1067,
    kIdGraphic = 1511,
    kIdGraphicSpin = 1512,
    kIdGraphicList = 1510,
    kIdPreview = 1070,
    kIdTurnA = 1210,
    kIdTurnABase = 1211,
    kIdTurnABaseSpin = 1212,
    kIdPlus = 1213,
    kIdTurnAStep = 1214,
    kIdTurnAStepSpin = 1215,
    kIdMultiple = 1216,
    kIdTurnB = 1217,
    kIdTurnBMin = 1218,
    kIdTurnBMinSpin = 1219,
    kIdTilde = 1220,
    kIdTurnBMax = 1221,
    kIdTurnBMaxSpin = 1222,
    kIdEventVar = 1223,
    kIdEventVarValue = 1224,
    kIdEventVarValueSpin = 1225,
    kIdEventVarCmp = 1226,
    kIdCommonVar = 1227,
    kIdRename = 1250,
    kIdCommonVarValue = 1228,
    kIdCommonVarValueSpin = 1229,
    kIdCommonVarCmp = 1230,
    kIdFirstTry = 1231,
    kIdTiming = 1232,
    kIdCommand = 1233,
    kIdRange = 1234,
    kIdChara = 1235,
    kIdExist = 1236,
    kIdPosGroup = 1237,
    kIdFriend = 1238,
    kIdEnemyGroupCheck = 1239,
    kIdEnemyGroup = 1242,
    kIdEnemyGroupSpin = 1243,
    kIdEnemyIdCheck = 1244,
    kIdEnemyId = 1245,
    kIdEnemyIdSpin = 1246,
    kIdChain = 1247,
    kIdActList = 1266,
    kIdActInsert = 1068,
    kIdActEdit = 1265,
    kIdActDelete = 1069,
  };
  // The action list's insert key and menu item, which open the chooser.
  enum : unsigned { kIdActInsertKey = 40071, kIdActInsertMenu = 40078 };

  DLG_EVENT_SET(cEvent& target, eEventTarget kind, QWidget* parent);

  // The action flows: the chooser on the selected action, and a new action inserted
  // at the selection (gone again if the chooser is declined).
  void EditAction();
  void InsertAction();
  // The action palette's commands of the action list's menu.
  void PasteFromPalette(int entry);
  void SaveToNewEntry();
  void OverwriteEntry(int entry);
  void SortPalette();
  // The two submenus again, one row per palette entry.
  void RebuildPaletteMenu();
  // The submenus' rows as the user sees them (UTF-8), for whoever looks.
  QMenu* PasteMenu() const { return m_pPasteMenu; }
  QMenu* OverwriteMenu() const { return m_pOverwriteMenu; }

  cEvent& m_Target;
  const bool m_bStartEvent;
  cEvent m_Event;        // the working copy; its pages are the page list's rows
  cEventPage m_PageEdit;  // the selected page, bound to the page controls
  CTRL_LIST_CLASS<cEventPage> m_PageList;
  CTRL_LIST_CLASS<cEventAct> m_ActList;
  VECTOR_CLASS<cEventActPlt> m_vecPaletteWork;
  int m_bNewAct = 0;

 protected:
  void OnReady() override;
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;
  void UpdateAllExcept(unsigned id) override;
  using DLG_CLASS::UpdateAllExcept;

 private:
  void DeclarePageControls(cFormTable& F);
  void BuildPaletteMenu();
  void RenameCommonVar();
  void ChooseGraphic();
  void DrawPreview();
  QWidget* ActListWidget() const { return GetDlgItem(kIdActList); }
  bool RealActSelected() const { return m_ActList.IsReal(m_ActList.GetSel()); }

  VECTOR_CLASS<std::string> m_vecVarLabels;
  VECTOR_CLASS<std::string> m_vecGroupLabels;
  VECTOR_CLASS<std::string> m_vecFriendLabels;
  QPointer<QMenu> m_pPasteMenu;
  QPointer<QMenu> m_pOverwriteMenu;
  int m_nPreviewGraphic = -1;
};

// The form on `event`, with the other windows disabled while it is open; its result.
int RunEventSet(cEvent& event, eEventTarget kind, QWidget* parent);
