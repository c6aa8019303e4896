#include "database/skill_csv_exchange.h"

#include "platform/diagnostics.h"
#include "database/csv_file.h"
#include "database/csv_numbers.h"
#include "database/skill_csv_read.h"
#include "database/skill_csv_write.h"
#include "platform/cp932.h"

namespace {

std::string TwoDigits(int number) {
  std::string digits = CsvIntText(number);
  return number >= 0 && number < 10 ? "0" + digits : digits;
}

void Tell(const std::string& caption, const std::string& format, const std::string& path) {
  MesBoxActive(FormatIntoBuffer(kMessageBuffer, nullptr, format.c_str(), path.c_str()), caption, MB_OK);
}

}  // namespace

std::string SkillCsvTypeName(int number) { return CP932_TEXT("スキル") + TwoDigits(number); }

std::string SkillCsvStoredPath(int number) { return "csv\\Skill" + TwoDigits(number) + ".csv"; }

const std::string& SkillCsvSaveCaption() { return CP932_TEXT("CSVファイルの保存"); }
const std::string& SkillCsvReadCaption() { return CP932_TEXT("CSVファイルの読込"); }

int WriteSkillsCsv(const VECTOR_CLASS<cSkill>& skills, const std::string& typeName, const std::filesystem::path& path) {
  CSV_GRID grid;
  SkillsToGrid(grid, skills, SkillColumns(), typeName);
  return WriteCsv(path, grid);
}

int SaveSkillCsv(const VECTOR_CLASS<cSkill>& skills, const std::string& typeName, const std::filesystem::path& path,
                 const std::string& shownPath) {
  std::error_code ec;
  if (std::filesystem::exists(path, ec) || ec) {
    Tell(SkillCsvSaveCaption(),
         CP932_TEXT("保存に失敗しました。\n「%s」は既に存在します。\n新しいCSVファイルを保存するために既存ファイルを削除するかファイル名を変更してから、再度このコマンドを実行して下さい。"),
         shownPath);
    return 0;
  }
  if (!WriteSkillsCsv(skills, typeName, path)) {
    Tell(SkillCsvSaveCaption(), CP932_TEXT("「%s」の保存に失敗しました。\nExcelなどで使用中の可能性があります。"), shownPath);
    return 0;
  }
  MesBoxActive(CP932_TEXT("保存完了！"), SkillCsvSaveCaption(), MB_OK);
  return 1;
}

int LoadSkillCsv(VECTOR_CLASS<cSkill>& skills, const std::string& typeName, const std::filesystem::path& path,
                 const std::string& shownPath) {
  CSV_GRID grid;
  if (!ReadCsv(path, grid)) {
    Tell(SkillCsvReadCaption(),
         CP932_TEXT("「%s」の読み込みに失敗しました。\nファイルが存在しない、またはExcelなどで使用中の可能性があります。"),
         shownPath);
    return 0;
  }
  VECTOR_CLASS<cSkill> backup = skills;
  if (!GridToSkills(skills, grid, SkillColumns(), typeName)) {
    skills.swap(backup);
    return 0;
  }
  MesBoxActive(CP932_TEXT("読み込み完了！\n念のため設定値に問題がないか確認してください。\n問題があった場合、「キャンセル」ボタンを押すことで読み込む前の設定に戻せます。"),
               SkillCsvReadCaption(), MB_OK);
  return 1;
}
