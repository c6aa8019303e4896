#include "database/skill_csv_write.h"

#include <cstdint>

#include "database/csv_numbers.h"
#include "platform/cp932.h"

std::string CsvCellOf(const cCsvColumn& column, const cSkill& skill) {
  if (column.m_pField == nullptr) return {};
  // The accessor names a field of a mutable skill; the writer only reads through it.
  const void* field = column.m_pField(const_cast<cSkill&>(skill));
  switch (column.m_nType) {
    case CSVVALUETYPE_STRING: {
      const auto& text = *static_cast<const std::string*>(field);
      return text.find(',') == std::string::npos ? text : '"' + text + '"';
    }
    case CSVVALUETYPE_INT:
    case CSVVALUETYPE_UINT: return CsvIntText(*static_cast<const std::int32_t*>(field));
    case CSVVALUETYPE_SHORT: return CsvIntText(*static_cast<const std::int16_t*>(field));
    case CSVVALUETYPE_CHAR: return CsvIntText(*static_cast<const std::int8_t*>(field));
    case CSVVALUETYPE_BYTE: return CsvIntText(*static_cast<const std::uint8_t*>(field));
    case CSVVALUETYPE_DOUBLE: return CsvFixedText(*static_cast<const double*>(field), column.m_nDecimals);
    case CSVVALUETYPE_FLOAT: return CsvFixedText(*static_cast<const float*>(field), column.m_nDecimals);
    default: return {};
  }
}

void SkillsToGrid(CSV_GRID& grid, const VECTOR_CLASS<cSkill>& skills, const VECTOR_CLASS<cCsvColumn>& columns,
                  const std::string& typeName) {
  grid.clear();
  for (const std::string* cell : {&CP932_TEXT("テキストエディタではなくExcelで編集してください。"),
                                  &CP932_TEXT("※データ行より上（設定値以外）は原則編集禁止。データが読み込めなくなる可能性があります。"),
                                  &CP932_TEXT(""), &CP932_TEXT("データタイプ"), &typeName, &CP932_TEXT("")}) {
    grid.push_back(CSV_ROW{*cell});
  }
  const struct {
    const std::string& label;
    std::string cCsvColumn::*text;
  } kDescriptionRows[] = {{CP932_TEXT("ヒント→"), &cCsvColumn::m_strHint},
                          {CP932_TEXT("制限→"), &cCsvColumn::m_strLimit},
                          {CP932_TEXT("No."), &cCsvColumn::m_strName}};
  for (const auto& description : kDescriptionRows) {
    CSV_ROW& row = grid.emplace_back();
    row.push_back(description.label);
    for (const cCsvColumn& column : columns) row.push_back(column.*description.text);
  }
  for (std::size_t s = 1; s < skills.size(); ++s) {
    CSV_ROW& row = grid.emplace_back();
    row.reserve(columns.size() + 1);
    row.push_back(CsvIntText(static_cast<long long>(s)));
    for (const cCsvColumn& column : columns) row.push_back(CsvCellOf(column, skills[s]));
  }
}
