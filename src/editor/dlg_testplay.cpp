#include "editor/dlg_testplay.h"

#include <filesystem>

#include "project/test_play_labels.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "toolkit/file_helpers.h"

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

DLG_TESTPLAY::DLG_TESTPLAY(QWidget* parent) : DLG_CLASS(parent, "テストプレイの設定") {
  cTestPlay& t = g_TestPlay;
  cFormTable& F = Table();
  F.Group("テストプレイ用のゲームプログラムのパス");
  F.Check(kIdAutoFind, "自動で取得", &t.m_bAutoFind).Span(2).Row();
  // The path is the user's only while the program is not found by itself.
  F.EditStr(kIdGamePath, "", &t.m_strGamePath, {.nLimit = kGamePathBytes, .nLineLen = kGamePathBytes, .nMaxLines = 1})
      .DisableBy(kIdAutoFind);
  F.Button(kIdBrowse, "参照").Row();
  F.EndGroup();
  F.Group("テストプレイ時のみ有効な設定");
  F.Check(kIdNoRandomGrowth, "ランダム能力値成長を無効化", &t.m_bNoRandomGrowth).Row();
  F.Check(kIdNoRandomSense, "ランダムセンス上昇を無効化", &t.m_bNoRandomSense).Row();
  F.Combo(kIdRandomSkill, "ランダムスキル習得", &t.m_nRandomSkill, kTestRandomSkillLabels).LabelAbove().Row();
  F.Combo(kIdSkillLevel, "ランダムスキル習得におけるスキルの習得レベル", &t.m_nSkillLevel, kTestSkillLevelLabels)
      .LabelAbove()
      .Row();
  F.Combo(kIdTraining, "トレーニング", &t.m_nTraining, kTestTrainingLabels).LabelAbove().Row();
  F.EndGroup();
  F.OkCancel();
}

bool DLG_TESTPLAY::OnOk() {
  g_TestPlay.SaveFile(kTestPlayPath);
  return true;
}

void DLG_TESTPLAY::OnFormCommand(unsigned id, unsigned code) {
  if (id == kIdBrowse) Browse();
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
