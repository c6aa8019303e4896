#include "editor/dlg_enemy.h"

#include <QTimer>
#include <algorithm>

#include "editor/dlg_enemy_set.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/enemy_palette.h"

DLG_ENEMY::DLG_ENEMY(QWidget* owner, std::function<void(int)> keys, std::function<void()> mapChanged)
    : DLG_CLASS(owner, "敵パレット"), m_fnKeys(std::move(keys)) {
  cFormTable& F = Table();
  F.Group("敵一覧");
  F.List(cEnemyList::kIdList, "", m_Enemies.m_List, m_Enemies.Init(), kListFirstFree, 20).Span(4).FixedPitch(38).Row();
  F.Button(cEnemyList::kIdInsert, "挿入");
  F.Button(cEnemyList::kIdEdit, "編集");
  F.Button(cEnemyList::kIdDelete, "削除");
  F.Button(kIdListCount, "ﾃﾞｰﾀ数").Row();
  F.EndGroup();

  m_Enemies.m_fnEditEntry = [this] { return RunEnemySet(m_hWnd) == 1; };
  m_Enemies.m_fnAskCount = [this](int& count) {
    return InputValue(this, nullptr, &count, 1, kMaxPutEnemies, CP932_TEXT("データ数")) == 1;
  };
  m_Enemies.m_fnMapChanged = std::move(mapChanged);

  // Where the author left it, else beside the main window's right edge, 10 pixels down.
  const cWndPosInfo& stored = g_EditConfig.m_PosEnemy;
  if (stored.m_bValid) {
    m_nX = stored.m_nX, m_nY = stored.m_nY;
  } else if (owner != nullptr) {
    const QRect frame = owner->frameGeometry();
    m_nX = frame.right() + 1, m_nY = frame.top() + 10;
  }
}

DLG_ENEMY::~DLG_ENEMY() { End(0); }

// A palette window; its flags are set before it is placed, since a change of flags
// forgets the window's place.
void DLG_ENEMY::OnInitDialog() {
  m_hWnd->setWindowFlag(Qt::Tool);
  DLG_CLASS::OnInitDialog();
}

void DLG_ENEMY::OnReady() {
  m_hWnd->setFixedSize(m_hWnd->sizeHint());
  m_Enemies.Show(std::max(g_EditState.m_nListSel, 0));
  RedrawLists();
}

void DLG_ENEMY::OnFormCommand(unsigned id, unsigned code) { m_Enemies.Command(id, code); }

void DLG_ENEMY::OnKeyDown(int key, bool bCtrl) {
  const int qtKey = key == 0x20 ? Qt::Key_Space : key == 0x74 ? Qt::Key_F5 : 0;
  if (qtKey == 0 || !m_fnKeys || m_hParent == nullptr) return DLG_CLASS::OnKeyDown(key, bCtrl);
  // A change of palette takes this window away: it runs once the key has been handled.
  QTimer::singleShot(0, m_hParent, [keys = m_fnKeys, qtKey] { keys(qtKey); });
}

void DLG_ENEMY::OnDestroy() {
  if (m_hWnd) g_EditConfig.m_PosEnemy.Set(m_hWnd->x(), m_hWnd->y(), m_hWnd->width(), m_hWnd->height());
}

void DLG_ENEMY::Refresh() {
  m_Enemies.m_List.Redraw();
  RedrawLists();
}

void DLG_ENEMY::ShowRow(int row) {
  m_Enemies.Show(row);
  RedrawLists();
}

void DLG_ENEMY::EditRow(int row) {
  ShowRow(row);
  SendCommand(cEnemyList::kIdEdit, kNotifyClicked);
}
