#pragma once
// The skill page's two spreadsheet commands as the author meets them: the questions
// before the work, the commit of the page into the list in edit, and the folder shown
// afterwards. The work itself is database/skill_csv_exchange.h.

#include <filesystem>
#include <functional>
#include <string>

#include "database/skill.h"
#include "kernel/vector_class.h"

// "CSVファイルに保存": `skills` (the page's table) into the list's new file. `number` is
// the list's row plus 1, `listName` its name (CP932); `commit` carries the page into the
// list in edit. 1 when the file was written.
int SaveSkillCsvCommand(const VECTOR_CLASS<cSkill>& skills, int number, const std::string& listName,
                        const std::function<void()>& commit);
// "CSVファイルの読込": the list's file into `skills`; a refused file leaves them as
// they were. 1 when the table took the file.
int ReadSkillCsvCommand(VECTOR_CLASS<cSkill>& skills, int number, const std::string& listName,
                        const std::function<void()>& commit);

// Shows the folder of `path` in the desktop's file manager. A run without a desktop
// (the offscreen platform of tests and benches) shows nothing.
void OpenFolderOn(const std::filesystem::path& path);
