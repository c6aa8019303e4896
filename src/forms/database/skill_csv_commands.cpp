#include "forms/database/skill_csv_commands.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

#include "database/skill_csv_exchange.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "platform/stored_path.h"

namespace {

// The question every command asks first, since the author is told that the whole
// database is saved; what follows is the commit of the page into the list in edit.
bool AgreedToCommit(const std::string& caption) {
  return MesBoxActive(CP932_TEXT("このコマンドを実行するには現在の設定（データベース全体）を保存する必要があります。\n\n保存しますか？"),
                      caption, MB_YESNO) == IDYES;
}

// The two questions of a command, with the commit between them; "中止しました。" after
// a No. `format` takes the list's name and the path, or with `pathFirst` the path and
// the name, and then the path again.
bool GoAhead(const std::string& caption, const std::function<void()>& commit, const std::string& format,
             bool pathFirst, const std::string& listName, const std::string& shown) {
  bool yes = AgreedToCommit(caption);
  if (yes) {
    commit();
    const std::string& first = pathFirst ? shown : listName;
    const std::string& second = pathFirst ? listName : shown;
    const std::string question =
        FormatIntoBuffer(kMessageBuffer, nullptr, format.c_str(), first.c_str(), second.c_str(), shown.c_str());
    yes = MesBoxActive(question, caption, MB_YESNO) == IDYES;
  }
  if (!yes) MesBoxActive(CP932_TEXT("中止しました。"), caption, MB_OK);
  return yes;
}

}  // namespace

void OpenFolderOn(const std::filesystem::path& path) {
  if (QGuiApplication::platformName() == QStringLiteral("offscreen")) return;
  const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(std::filesystem::absolute(folder).string())));
}

int SaveSkillCsvCommand(const VECTOR_CLASS<cSkill>& skills, int number, const std::string& listName,
                        const std::function<void()>& commit) {
  const std::string shown = SkillCsvStoredPath(number);
  if (!GoAhead(SkillCsvSaveCaption(), commit,
               CP932_TEXT("%sデータをCSV形式のファイル「%s」（相対パス）に保存します。\n\n※CSV形式のファイルはExcelで編集してください。\n\n「%s」に保存しますか？"),
               false, listName, shown))
    return 0;
  const std::filesystem::path path = NativePathOf(shown);
  std::error_code ec;
  std::filesystem::create_directories(path.parent_path(), ec);  // a project made before the folder existed
  const int saved = SaveSkillCsv(skills, SkillCsvTypeName(number), path, shown);
  OpenFolderOn(path);
  return saved;
}

int ReadSkillCsvCommand(VECTOR_CLASS<cSkill>& skills, int number, const std::string& listName,
                        const std::function<void()>& commit) {
  const std::string shown = SkillCsvStoredPath(number);
  if (!GoAhead(SkillCsvReadCaption(), commit,
               CP932_TEXT("CSV形式のファイル「%s」（相対パス）から%sデータを読み込んで更新します。\n\n※CSV形式のファイルはExcelで編集してください。\n※現在（読み込む前）のデータ数とCSVファイルのデータ数が一致しないと読み込みに失敗します。\n\n「%s」を読み込みますか？"),
               true, listName, shown))
    return 0;
  const std::filesystem::path path = NativePathOf(shown);
  if (!LoadSkillCsv(skills, SkillCsvTypeName(number), path, shown)) return 0;
  OpenFolderOn(path);
  return 1;
}
