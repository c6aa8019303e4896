#include "editor/dlg_testplay.h"

#include <QTimer>
#include <filesystem>

#include "app/test_play_labels.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "toolkit/file_helpers.h"
#include "toolkit/form_layout.h"

DLG_TESTPLAY* g_pDlgTestPlay = nullptr;

bool GamePathOf(const std::string& native, std::string& stored) {
  std::string path = native;
  if (!MakeRelative(path)) return false;
  for (char& c : path)
    if (c == '/') c = '\\';
  std::string cp932;
  if (!Utf8ToCp932(path, cp932) || cp932.size() >= static_cast<std::size_t>(DLG_TESTPLAY::kGamePathBytes)) return false;
  stored = cp932;
  return true;
}

DLG_TESTPLAY::DLG_TESTPLAY(QWidget* parent) : DLG_CLASS(kTemplateId, parent) {
  g_pDlgTestPlay = this;
  cTestPlay& t = g_TestPlay;
  Declare(m_vecEditStr, {{.nId = kIdGamePath, .pStr = &t.m_strGamePath, .nLimit = kGamePathBytes, .nLineLen = kGamePathBytes, .nMaxLines = 1}});
  Declare(m_vecCheck, {{kIdAutoFind, &t.m_bAutoFind}, {kIdNoRandomGrowth, &t.m_bNoRandomGrowth}, {kIdNoRandomSense, &t.m_bNoRandomSense}});
  Declare(m_vecCombo, {{.nId = kIdRandomSkill, .pData = &t.m_nRandomSkill, .pLabels = kTestRandomSkillLabels},
                       {.nId = kIdSkillLevel, .pData = &t.m_nSkillLevel, .pLabels = kTestSkillLevelLabels},
                       {.nId = kIdTraining, .pData = &t.m_nTraining, .pLabels = kTestTrainingLabels}});
  Declare(m_vecButton, {{kIdBrowse}});
}

DLG_TESTPLAY::~DLG_TESTPLAY() {
  if (g_pDlgTestPlay == this) g_pDlgTestPlay = nullptr;
}

void DLG_TESTPLAY::Layout(cFormLayout& L) {
  L.Group("テストプレイ用のゲームプログラムのパス");
  L.Check(kIdAutoFind, "自動で取得", 2).Row();
  L.EditStr(kIdGamePath).Button(kIdBrowse, "参照").Row();
  L.EndGroup().Row();
  L.Group("テストプレイ時のみ有効な設定");
  L.Check(kIdNoRandomGrowth, "ランダム能力値成長を無効化").Row();
  L.Check(kIdNoRandomSense, "ランダムセンス上昇を無効化").Row();
  L.Text("ランダムスキル習得").Row().Combo(kIdRandomSkill).Row();
  L.Text("ランダムスキル習得におけるスキルの習得レベル").Row().Combo(kIdSkillLevel).Row();
  L.Text("トレーニング").Row().Combo(kIdTraining).Row();
  L.EndGroup().Row();
  L.OkCancel();
}

void DLG_TESTPLAY::OnInitDialog() {
  DLG_CLASS::OnInitDialog();
  m_hWnd->setWindowTitle(QStringLiteral("テストプレイの設定"));
  Bind(m_vecEditStr);
  Bind(m_vecCheck);
  Bind(m_vecCombo);
  Bind(m_vecButton);
  UpdateAll();
  UpdateEnable();
  m_bReady = 1;
}

// The path is the user's only while the program is not found by itself.
void DLG_TESTPLAY::UpdateEnable() {
  auto* autoFind = GetCtrl<cCheckCtrl>(kIdAutoFind);
  if (autoFind != nullptr) EnableCtrl(kIdGamePath, !autoFind->Checked());
}

void DLG_TESTPLAY::OnCommand(unsigned id, unsigned code) {
  DLG_CLASS::OnCommand(id, code);
  switch (id) {
    case kIdOk:
      ApplyAll();
      g_TestPlay.SaveFile(kTestPlayPath);
      End(1);
      return;
    case kIdCancel: End(0); return;
    case kIdBrowse: Browse(); break;
    default: break;
  }
  if (m_bReady && FindChanged(id, code)) UpdateEnable();
}

void DLG_TESTPLAY::Browse() {
  std::string chosen;
  // Programs of this platform carry no extension of their own.
  if (!OpenFileDialog(m_hWnd, chosen, ".", "", "ExeFile (*)", "")) return;
  std::string stored;
  if (!GamePathOf(chosen, stored)) return;
  g_TestPlay.m_strGamePath = stored;
  if (auto* edit = GetCtrl<CTRL_EDITSTR_CLASS>(kIdGamePath)) edit->SetText(stored);
}

int RunTestPlaySettings(QWidget* parent) {
  DLG_TESTPLAY form(parent);
  return form.DoModal();
}

void ShowTestPlaySettingsFor(const std::function<void(QWidget*)>& look) {
  DLG_TESTPLAY form(nullptr);
  QTimer::singleShot(300, [&form, &look] {
    if (form.m_hWnd != nullptr) look(form.m_hWnd);
    form.End(0);
  });
  form.DoModal();
}
