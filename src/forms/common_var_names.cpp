#include "forms/common_var_names.h"

#include "event/event_names.h"
#include "forms/input_forms.h"
#include "platform/cp932.h"
#include "platform/prompt.h"
#include "project/project_files.h"
#include "project/project_globals.h"

const VECTOR_CLASS<std::string>& CommonVarLabels() {
  static VECTOR_CLASS<std::string> labels;
  BuildVarLabels(labels);
  return labels;
}

bool RenameCommonVar(DLG_CLASS& form, int row) {
  if (row <= 0 || row >= g_vecGValInfo.Count()) {
    CurrentPrompt().Beep();
    return false;
  }
  std::string name = g_vecGValInfo[row].m_strName;
  if (!InputText(&form, nullptr, &name, 12, true, CP932_TEXT("変数名の入力"))) return false;
  g_vecGValInfo[row].m_strName = name;
  kGValInfoFile.save(kGValInfoFile.path);
  return true;
}
