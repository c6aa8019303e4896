#include "event/event_names.h"

#include "event/event_act_info.h"
#include "event/format_number.h"
#include "event/stored_events.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

template <class Row>
std::string NameIn(const VECTOR_CLASS<Row>& rows, int row) {
  return row >= 0 && row < rows.Count() ? rows[static_cast<std::size_t>(row)].m_strName : std::string();
}

template <class Fn>
auto WithTable(eNamedTable table, Fn&& fn) {
  switch (table) {
    case eNamedTable::Picture: return fn(g_Database.m_vecPicture);
    case eNamedTable::Sound: return fn(g_Database.m_vecSound);
    case eNamedTable::Bgm: return fn(g_Database.m_vecBgm);
    case eNamedTable::Land: return fn(g_vecLand);
    case eNamedTable::SkillList: return fn(g_vecSkillList);
    case eNamedTable::Friend: return fn(g_vecFriend);
    case eNamedTable::CommonVar: break;
  }
  return fn(g_vecGValInfo);
}

}  // namespace

int RowCount(eNamedTable table) {
  return WithTable(table, [](const auto& rows) { return rows.Count(); });
}

std::string RowName(eNamedTable table, int row) {
  return WithTable(table, [row](const auto& rows) { return NameIn(rows, row); });
}

std::string SkillName(int list, int skill) {
  if (list < 0 || list >= g_vecSkillList.Count()) return {};
  return NameIn(g_vecSkillList[static_cast<std::size_t>(list)].m_vecSkill, skill);
}

std::string StatusName(int status) {
  return status >= 0 && status < kStatusInfoCount ? g_aStatusInfo[status].name : "";
}

std::string NumberedLabel(int number, const std::string& name) { return FormatNumber(number, 3, 1, 0) + " " + name; }

void BuildNumberedLabels(VECTOR_CLASS<std::string>& out, eNamedTable table, int first, const char* headUtf8) {
  out.clear();
  if (headUtf8 != nullptr) out.push_back(Cp932FromLiteral(headUtf8));
  for (int row = first; row < RowCount(table); ++row) out.push_back(NumberedLabel(row, RowName(table, row)));
}

void BuildVarLabels(VECTOR_CLASS<std::string>& out) {
  out.clear();
  for (int n = 1; n < kCommonVarRows; ++n) out.push_back(NumberedLabel(n, RowName(eNamedTable::CommonVar, n)));
}

void BuildVarLabelsWithNone(VECTOR_CLASS<std::string>& out) {
  VECTOR_CLASS<std::string> vars;
  BuildVarLabels(vars);
  out.assign(1, CP932_TEXT("コモン変数条件なし"));
  out.insert(out.end(), vars.begin(), vars.end());
}
