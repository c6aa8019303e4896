#include "forms/event/action_palette.h"

#include <cstdio>

#include "event/event_act_info.h"
#include "platform/cp932.h"

namespace {

int EntryOfRange(unsigned id, unsigned first) {
  return id >= first && id < first + kPaletteMenuReach ? static_cast<int>(id - first) : -1;
}

}  // namespace

int PalettePasteEntry(unsigned id) { return EntryOfRange(id, IDM_ACTPLT_PASTE); }
int PaletteOverwriteEntry(unsigned id) { return EntryOfRange(id, IDM_ACTPLT_OVERWRITE); }

std::string PaletteMenuRowText(int index, const cEventActPlt& entry) {
  char number[16];
  std::snprintf(number, sizeof number, "%0.2d ", index + 1);
  return number + entry.m_strName;
}

std::string PaletteContentsText(const cEventActPlt& entry) {
  std::string text = CP932_TEXT("内容： ");
  for (int i = 0; i < entry.m_vecAct.Count(); ++i) {
    if (i > 0) text += CP932_TEXT(" → ");
    text += EventActLabelText(entry.m_vecAct[i].m_nKind);
  }
  return text;
}

VECTOR_CLASS<cEventAct> StartEventActs(const VECTOR_CLASS<cEventAct>& acts) {
  VECTOR_CLASS<cEventAct> allowed;
  for (const cEventAct& act : acts)
    if (EventActInfoOf(act.m_nKind).m_bStartEventOk) allowed.push_back(act);
  return allowed;
}
