#include "editor/dlg_event.h"

#include <QTimer>
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
    : DLG_CLASS(owner, "イベントパレット"), m_fnKeys(std::move(keys)), m_fnMapChanged(std::move(mapChanged)) {
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

  // Where the author left it, else beside the main window's right edge, 10 pixels down.
  const cWndPosInfo& stored = g_EditConfig.m_PosEvent;
  if (stored.m_bValid) {
    m_nX = stored.m_nX, m_nY = stored.m_nY;
    SetMetrics(std::clamp(stored.m_nWidth, kMinSide, kMaxWidth), std::clamp(stored.m_nHeight, kMinSide, kMaxHeight),
               kMinSide, kMinSide, kMaxWidth, kMaxHeight);
  } else {
    SetMetrics(0, 0, kMinSide, kMinSide, kMaxWidth, kMaxHeight);
    if (owner != nullptr) {
      const QRect frame = owner->frameGeometry();
      m_nX = frame.right() + 1, m_nY = frame.top() + 10;
    }
  }
}

DLG_EVENT::~DLG_EVENT() { End(0); }

// A palette window; its flags are set before it is placed, since a change of flags
// forgets the window's place.
void DLG_EVENT::OnInitDialog() {
  m_hWnd->setWindowFlag(Qt::Tool);
  DLG_CLASS::OnInitDialog();
}

// The row chosen the last time the palette stood is chosen again.
void DLG_EVENT::OnReady() {
  m_Palette.m_List.SelectOnly(std::max(g_EditState.m_nListSel, 0), 0);
  m_Palette.SyncPaletteSelection();
  RedrawLists();
}

void DLG_EVENT::OnFormCommand(unsigned id, unsigned code) { m_Palette.Command(id, code); }

void DLG_EVENT::OnKeyDown(int key, bool bCtrl) {
  const int qtKey = key == 0x20 ? Qt::Key_Space : key == 0x74 ? Qt::Key_F5 : 0;
  if (qtKey == 0 || !m_fnKeys || m_hParent == nullptr) return DLG_CLASS::OnKeyDown(key, bCtrl);
  // A change of palette takes this window away: it runs once the key has been handled.
  QTimer::singleShot(0, m_hParent, [keys = m_fnKeys, qtKey] { keys(qtKey); });
}

void DLG_EVENT::OnDestroy() {
  if (m_hWnd) g_EditConfig.m_PosEvent.Set(m_hWnd->x(), m_hWnd->y(), m_hWnd->width(), m_hWnd->height());
}
