#include "editor/dlg_battle_mode.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "app/battle_mode.h"
#include "project/project_globals.h"
#include "project/system_labels.h"

DLG_BATTLEMODE::DLG_BATTLEMODE() : DLG_CLASS(nullptr, "戦闘モードの選択"), m_nMode(g_System.m_nBattleMode) {
  cFormTable& F = Table();
  F.Text("オルタルーンへようこそ！").Row();
  F.Text("はじめに、このプロジェクトの戦闘モードを選んでください。").Row();
  F.Text("マニュアル：戦闘に入ると、戦闘画面でキャラクターごとに戦闘コマンドを選びます。").Row();
  F.Text("オート：マップ上で戦闘コマンドを選び、戦闘そのものは自動で進みます。").Row();
  F.Text("この設定は、あとからデータベースの「システム3」ページで変更できます。").Row();
  F.Combo(kIdMode, "戦闘モード", &m_nMode, kBattleModeLabels).LabelAbove().Row();
  F.OkOnly();
}

void DLG_BATTLEMODE::OnReady() {
  // Centred on the desktop, with the pointer resting on OK once the window stands.
  RunSoon([this] {
    if (QScreen* screen = QGuiApplication::primaryScreen()) m_hWnd->move(CentreOn(screen->availableGeometry(), m_hWnd->frameSize()));
    if (QWidget* ok = GetDlgItem(kIdOk)) QCursor::setPos(ok->mapToGlobal(ok->rect().center()));
  });
}

bool DLG_BATTLEMODE::OnOk() {
  ApplyBattleMode(m_nMode < 0 ? 0 : m_nMode);
  return true;
}

int RunBattleModeDialog() {
  DLG_BATTLEMODE form;
  return form.DoModal();
}
