#include "editor/dlg_enemy.h"

#include <algorithm>

#include "editor/dlg_enemy_set.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "stage/edit_state.h"
#include "stage/enemy_palette.h"

DLG_ENEMY::DLG_ENEMY(QWidget* owner, std::function<void(int)> keys, std::function<void()> mapChanged)
    : cPaletteForm(owner, "敵パレット", std::move(keys), g_EditConfig.m_PosEnemy) {
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
}

DLG_ENEMY::~DLG_ENEMY() { End(0); }

void DLG_ENEMY::OnReady() {
  m_hWnd->setFixedSize(m_hWnd->sizeHint());
  m_Enemies.Show(std::max(g_EditState.m_nListSel, 0));
  RedrawLists();
}

void DLG_ENEMY::OnFormCommand(unsigned id, unsigned code) { m_Enemies.Command(id, code); }

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
