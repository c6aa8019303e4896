#include "database/skill_csv_read.h"

#include <cstdint>

#include "platform/diagnostics.h"
#include "database/csv_numbers.h"
#include "platform/cp932.h"

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Bytes of the character at `i`, and how many characters it counts for.
struct cTextUnit {
  std::size_t bytes;
  int chars;
};

cTextUnit UnitAt(const std::string& text, std::size_t i) {
  if (text[i] == '\n') return {1, 0};
  if (text[i] == '#' && i + 2 < text.size() && (text[i + 1] == 'P' || text[i + 1] == 'p') && IsDigit(text[i + 2])) {
    std::size_t end = i + 2;
    while (end < text.size() && IsDigit(text[end])) ++end;
    if (end < text.size() && text[end] == '.') ++end;
    return {end - i, 1};
  }
  return {IsLeadByte(static_cast<unsigned char>(text[i])) && i + 1 < text.size() ? 2u : 1u, 1};
}

bool HasTypeCell(const CSV_GRID& grid, const std::string& typeName) {
  const std::string& typeLabel = CP932_TEXT("データタイプ");
  for (std::size_t r = 0; r + 1 < grid.size(); ++r) {
    for (std::size_t c = 0; c < grid[r].size(); ++c) {
      if (grid[r][c] == typeLabel && c < grid[r + 1].size() && grid[r + 1][c] == typeName) return true;
    }
  }
  return false;
}

// Row of the first cell "No.", or the row count when there is none.
std::size_t HeaderRow(const CSV_GRID& grid) {
  for (std::size_t r = 0; r < grid.size(); ++r) {
    for (const std::string& cell : grid[r]) {
      if (cell == "No.") return r;
    }
  }
  return grid.size();
}

const cCsvColumn* ColumnNamed(const VECTOR_CLASS<cCsvColumn>& columns, const std::string& name) {
  for (const cCsvColumn& column : columns) {
    if (column.m_strName == name) return &column;
  }
  return nullptr;
}

void TellRepaired(const cSkill& skill, const cCsvColumn& column, const std::string& value) {
  MSP(CP932_TEXT("「%s」の「%s」が定められた範囲にありません。値は「%s」になります。").c_str(), skill.m_strName.c_str(),
      column.m_strName.c_str(), value.c_str());
}

template <class T>
void StoreInteger(const cCsvColumn& column, cSkill& skill, const std::string& cell) {
  int value = CsvAtoi(cell);
  const int low = static_cast<int>(column.m_dMin);
  const int high = static_cast<int>(column.m_dMax);
  if (value < low || value > high) {
    value = value < low ? low : high;
    // The byte type prints its value unsigned; in range, every type prints the same.
    TellRepaired(skill, column, CsvIntText(value));
  }
  *static_cast<T*>(column.m_pField(skill)) = static_cast<T>(value);
}

template <class T>
void StoreFloating(const cCsvColumn& column, cSkill& skill, const std::string& cell) {
  // A float column compares in float.
  T value = static_cast<T>(CsvAtof(cell));
  const T low = static_cast<T>(column.m_dMin);
  const T high = static_cast<T>(column.m_dMax);
  if (value < low || value > high) {
    value = value < low ? low : high;
    TellRepaired(skill, column, CsvFixedText(value, 6));
  }
  *static_cast<T*>(column.m_pField(skill)) = value;
}

void StoreText(const cCsvColumn& column, cSkill& skill, const std::string& cell) {
  std::string text = cell;
  if (CsvTextChars(text) > column.m_nMaxChars) {
    text = CsvCutText(text, column.m_nMaxChars);
    MSP(CP932_TEXT("「%s」の「%s」の文字数がオーバーしています。値は「%s」になります。").c_str(), skill.m_strName.c_str(),
        column.m_strName.c_str(), text.c_str());
  }
  *static_cast<std::string*>(column.m_pField(skill)) = std::move(text);
}

void StoreCell(const cCsvColumn& column, cSkill& skill, std::string& cell) {
  if (column.m_pField == nullptr) return;
  if (column.m_nType != CSVVALUETYPE_STRING && column.m_nType != CSVVALUETYPE_MEMO) NormaliseCsvNumber(cell);
  switch (column.m_nType) {
    case CSVVALUETYPE_STRING: StoreText(column, skill, cell); break;
    case CSVVALUETYPE_INT: StoreInteger<std::int32_t>(column, skill, cell); break;
    case CSVVALUETYPE_UINT: StoreInteger<std::uint32_t>(column, skill, cell); break;
    case CSVVALUETYPE_SHORT: StoreInteger<std::int16_t>(column, skill, cell); break;
    case CSVVALUETYPE_CHAR: StoreInteger<std::int8_t>(column, skill, cell); break;
    case CSVVALUETYPE_BYTE: StoreInteger<std::uint8_t>(column, skill, cell); break;
    case CSVVALUETYPE_DOUBLE: StoreFloating<double>(column, skill, cell); break;
    case CSVVALUETYPE_FLOAT: StoreFloating<float>(column, skill, cell); break;
    default: break;
  }
}

}  // namespace

int CsvTextChars(const std::string& text) {
  int chars = 0;
  for (std::size_t i = 0; i < text.size();) {
    cTextUnit unit = UnitAt(text, i);
    chars += unit.chars;
    i += unit.bytes;
  }
  return chars;
}

std::string CsvCutText(const std::string& text, int maxChars) {
  int chars = 0;
  std::size_t i = 0;
  while (i < text.size()) {
    cTextUnit unit = UnitAt(text, i);
    if (chars + unit.chars > maxChars) break;
    chars += unit.chars;
    i += unit.bytes;
  }
  return text.substr(0, i);
}

int GridToSkills(VECTOR_CLASS<cSkill>& skills, CSV_GRID& grid, const VECTOR_CLASS<cCsvColumn>& columns,
                 const std::string& typeName) {
  if (!HasTypeCell(grid, typeName)) {
    MSP("%s", CP932_TEXT("不正なファイルです。データタイプのセルが不正です。").c_str());
    return 0;
  }
  const std::size_t header = HeaderRow(grid);
  if (header == grid.size()) {
    MSP("%s", CP932_TEXT("不正なファイルです。「No.」セルがありません。").c_str());
    return 0;
  }
  // Data rows run to the end of the grid, so a spreadsheet's trailing row of empty cells
  // fails here rather than being taken for data.
  int rows = 0;
  for (std::size_t r = header + 1; r < grid.size() && !grid[r].empty(); ++r) {
    if (CsvAtoi(grid[r][0]) != rows + 1) {
      MSP("%s", CP932_TEXT("不正なファイルです。「No.」列が1列目にないかデータ番号が昇順（1～X）に並んでいない可能性があります。")
                    .c_str());
      return 0;
    }
    ++rows;
  }
  if (rows != skills.Count() - 1) {
    MSP(CP932_TEXT("不正なファイルです。データ数が一致しません。（csvファイルのデータ %d個 ≠ ゲームのデータ %d個）").c_str(), rows,
        skills.Count() - 1);
    return 0;
  }
  // Column by column, in the file's order: a header given twice is applied twice, the
  // later one winning.
  for (std::size_t c = 0; c < grid[header].size(); ++c) {
    const cCsvColumn* column = ColumnNamed(columns, grid[header][c]);
    if (column == nullptr) continue;
    for (std::size_t s = 1; s < skills.size(); ++s) {
      const std::size_t r = header + s;
      if (r >= grid.size() || c >= grid[r].size()) break;
      StoreCell(*column, skills[s], grid[r][c]);
    }
  }
  return 1;
}
