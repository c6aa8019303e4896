#include "editor/dlg_event.h"

#include <algorithm>

#include "forms/event/dlg_event_set.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"

namespace {

constexpr int kMinSide = 100, kMaxWidth = 640, kMaxHeight = 480;

}  // namespace

DLG_EVENT::DLG_EVENT(QWidget* owner, std::function<void(int)> keys, std::function<void()> mapChanged)
    : cPaletteWindow(owner, "イベントパレット", g_EditConfig.m_PosEvent, std::move(keys)),
      m_fnMapChanged(std::move(mapChanged)) {
  cFormTable& F = Table();
  F.Check(cEventPalette::kIdEditIfPlaced, "配置済みなら編集", &g_EditConfig.m_bEditIfPlaced).Span(4).Row();
  F.Check(cEventPalette::kIdEditBeforePut, "配置直前に編集", &g_EditConfig.m_bEditBeforePut).Span(4).Row();
  F.List(cEventPalette::kIdList, "イベント", m_Palette.m_List, m_Palette.Init(), kListFirstFree, 16).LabelAbove().Span(4).Row();
  F.Button(cEventPalette::kIdInsert, "挿入");
  F.Button(cEventPalette::kIdEdit, "編集");
  F.Button(cEventPalette::kIdDelete, "削除");
  F.Button(kIdListCount, "ﾃﾞｰﾀ数").Row();

  m_Palette.m_fnEditEvent = [this](cEvent& event) {
    const bool confirmed = RunEventSet(event, eEventTarget::kTemplate, m_hWnd) == 1;
    if (confirmed && m_fnMapChanged) m_fnMapChanged();
    return confirmed;
  };
  m_Palette.m_fnAskCount = [this](int& count) {
    return InputValue(this, nullptr, &count, 1, 999, CP932_TEXT("データ数")) == 1;
  };

  // The author sizes it within its limits; it opens at the size it was left at.
  if (m_Place.m_bValid)
    SetMetrics(std::clamp(m_Place.m_nWidth, kMinSide, kMaxWidth), std::clamp(m_Place.m_nHeight, kMinSide, kMaxHeight),
               kMinSide, kMinSide, kMaxWidth, kMaxHeight);
  else
    SetMetrics(0, 0, kMinSide, kMinSide, kMaxWidth, kMaxHeight);
}

DLG_EVENT::~DLG_EVENT() { End(0); }

// The row chosen the last time the palette stood is chosen again.
void DLG_EVENT::OnReady() {
  m_Palette.m_List.SelectOnly(std::max(g_EditState.m_nListSel, 0), 0);
  m_Palette.SyncPaletteSelection();
  RedrawLists();
}

void DLG_EVENT::OnFormCommand(unsigned id, unsigned code) { m_Palette.Command(id, code); }
