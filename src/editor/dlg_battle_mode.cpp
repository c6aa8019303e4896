#include "editor/dlg_battle_mode.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include "app/battle_mode.h"
#include "project/project_globals.h"
#include "project/system_labels.h"
#include "toolkit/form_layout.h"

DLG_BATTLEMODE* g_pDlgBattleMode = nullptr;

DLG_BATTLEMODE::DLG_BATTLEMODE() : DLG_CLASS(kTemplateId, nullptr), m_nMode(g_System.m_nBattleMode) {
  g_pDlgBattleMode = this;
  Declare(m_vecCombo, {{.nId = kIdMode, .pData = &m_nMode, .pLabels = kBattleModeLabels}});
}

DLG_BATTLEMODE::~DLG_BATTLEMODE() {
  if (g_pDlgBattleMode == this) g_pDlgBattleMode = nullptr;
}

void DLG_BATTLEMODE::Layout(cFormLayout& L) {
  L.Text("オルタルーンへようこそ！").Row();
  L.Text("はじめに、このプロジェクトの戦闘モードを選んでください。").Row();
  L.Text("マニュアル：戦闘に入ると、戦闘画面でキャラクターごとに戦闘コマンドを選びます。").Row();
  L.Text("オート：マップ上で戦闘コマンドを選び、戦闘そのものは自動で進みます。").Row();
  L.Text("この設定は、あとからデータベースの「システム3」ページで変更できます。").Row();
  L.Combo(kIdMode).Row();
  L.Button(kIdOk, "OK");
}

void DLG_BATTLEMODE::OnInitDialog() {
  DLG_CLASS::OnInitDialog();
  m_hWnd->setWindowTitle(QStringLiteral("戦闘モードの選択"));
  Bind(m_vecCombo);
  UpdateAll();
  m_bReady = 1;
  // Centred on the desktop, with the pointer resting on OK once the window stands.
  QTimer::singleShot(0, m_hWnd, [this] {
    if (m_hWnd == nullptr) return;
    if (QScreen* screen = QGuiApplication::primaryScreen()) m_hWnd->move(CentreOn(screen->availableGeometry(), m_hWnd->frameSize()));
    if (QWidget* ok = GetDlgItem(kIdOk)) QCursor::setPos(ok->mapToGlobal(ok->rect().center()));
  });
}

void DLG_BATTLEMODE::OnCommand(unsigned id, unsigned code) {
  DLG_CLASS::OnCommand(id, code);
  if (id != kIdOk) return;
  ApplyAll();
  ApplyBattleMode(m_nMode < 0 ? 0 : m_nMode);
  End(1);
}

int RunBattleModeDialog() {
  DLG_BATTLEMODE form;
  return form.DoModal();
}
