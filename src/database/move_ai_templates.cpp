#include "database/move_ai_templates.h"

#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "project/project_files.h"
#include "project/project_globals.h"

namespace {

bool Chosen(int chosen) {
  if (chosen >= 0 && chosen < g_vecMoveAITemplate.Count()) return true;
  ErrorBox(CP932_TEXT("テンプレートが選択されていません！"));
  return false;
}

bool Yes(const std::string& question, const std::string& caption) {
  return MesBox(nullptr, question, caption, MB_YESNO) == IDYES;
}

}  // namespace

bool LoadMoveAITemplate(int chosen, VECTOR_CLASS<cMoveAI>& rules) {
  if (!Chosen(chosen)) return false;
  if (!rules.empty() &&
      !Yes(CP932_TEXT("現在の設定は破棄されます。\nよろしいですか？\n"), CP932_TEXT("移動AIテンプレートの読込")))
    return false;
  rules = g_vecMoveAITemplate[chosen].m_vecMoveAI;
  return true;
}

bool OverwriteMoveAITemplate(int chosen, const VECTOR_CLASS<cMoveAI>& rules) {
  if (!Chosen(chosen)) return false;
  cMoveAITemplate& target = g_vecMoveAITemplate[chosen];
  const std::string question =
      CP932_TEXT("「") + target.m_strName + CP932_TEXT("」を上書きします。\nよろしいですか？\n");
  if (!Yes(question, CP932_TEXT("移動AIテンプレートの上書き保存"))) return false;
  target.m_vecMoveAI = rules;
  kMoveAITemplateFile.save(kMoveAITemplateFile.path);
  return true;
}

bool StartMoveAITemplate(const VECTOR_CLASS<cMoveAI>& rules, VECTOR_CLASS<cMoveAITemplate>& copy) {
  if (g_vecMoveAITemplate.Count() >= kMaxMoveAITemplates) {
    MSP(CP932_TEXT("%d個までしか保存できません！").c_str(), kMaxMoveAITemplates);
    return false;
  }
  if (rules.empty()) return false;
  copy = g_vecMoveAITemplate;
  copy.emplace_back();
  copy.back().m_vecMoveAI = rules;
  return true;
}

int StoreMoveAITemplates(const VECTOR_CLASS<cMoveAITemplate>& copy) {
  g_vecMoveAITemplate = copy;
  return kMoveAITemplateFile.save(kMoveAITemplateFile.path);
}
