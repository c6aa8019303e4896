#pragma once
// Names of the rows that event pages and actions refer to, and the numbered labels of
// the combos that choose them. Names are CP932 record text; a row that does not exist
// has an empty name.

#include <string>

#include "kernel/vector_class.h"

enum class eNamedTable { Picture, Sound, Bgm, Land, SkillList, Friend, CommonVar };

int RowCount(eNamedTable table);
// The first text field of the row's record.
std::string RowName(eNamedTable table, int row);
// Skill `skill` of skill list `list`.
std::string SkillName(int list, int skill);
// The name of status `status` of the status action.
std::string StatusName(int status);

// "%s %s": the number in three zero-padded digits, a blank, the name.
std::string NumberedLabel(int number, const std::string& name);

// The rows of `table` from `first` on as numbered labels, after `head` when it is given.
void BuildNumberedLabels(VECTOR_CLASS<std::string>& out, eNamedTable table, int first, const char* headUtf8 = nullptr);

// 999 rows for the variables 1 to 999: row r stands for variable r + 1.
void BuildVarLabels(VECTOR_CLASS<std::string>& out);
// 1000 rows: "コモン変数条件なし", then the variables; row r stands for variable r.
void BuildVarLabelsWithNone(VECTOR_CLASS<std::string>& out);
