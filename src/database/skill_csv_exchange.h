#pragma once
// The work of the skill page's two spreadsheet commands once the author has agreed:
// writing a list's skills to a new file, and reading a file back into them. Both tell
// their outcome in a box titled with the command; the page asks its questions before.

#include <filesystem>
#include <string>

#include "database/skill.h"
#include "kernel/vector_class.h"

// `number` is the list's number as the author sees it, its row plus 1.
// "スキル01": the type name the file carries and is checked against.
std::string SkillCsvTypeName(int number);
// "csv\Skill01.csv": where the commands keep a list's file, relative to the project.
std::string SkillCsvStoredPath(int number);

// Caption of the boxes of each command.
const std::string& SkillCsvSaveCaption();
const std::string& SkillCsvReadCaption();

// The grid of `skills` written to `path`. 1, or 0 when the file cannot be written.
int WriteSkillsCsv(const VECTOR_CLASS<cSkill>& skills, const std::string& typeName, const std::filesystem::path& path);

// The save command: an existing file is never overwritten. `shownPath` is the path as
// the messages name it (CP932). 1 when the file was written.
int SaveSkillCsv(const VECTOR_CLASS<cSkill>& skills, const std::string& typeName, const std::filesystem::path& path,
                 const std::string& shownPath);

// The read command: the file read whole, the table backed up, the grid taken into it,
// and the backup put back when the file is refused. 1 when the table took the file.
int LoadSkillCsv(VECTOR_CLASS<cSkill>& skills, const std::string& typeName, const std::filesystem::path& path,
                 const std::string& shownPath);
