#pragma once
// The columns of the spreadsheet exchange of a skill table. One descriptor per column
// drives both the writer and the reader: which field, its type and range, and what the
// file prints above the data as hint and limit.

#include <string>

#include "database/skill.h"
#include "kernel/vector_class.h"

enum eCsvValueType : int {
  CSVVALUETYPE_STRING = 0,
  CSVVALUETYPE_INT = 1,
  CSVVALUETYPE_SHORT = 2,
  CSVVALUETYPE_CHAR = 3,
  CSVVALUETYPE_BYTE = 4,
  CSVVALUETYPE_UINT = 5,
  CSVVALUETYPE_DOUBLE = 6,
  CSVVALUETYPE_FLOAT = 7,
  CSVVALUETYPE_MEMO = 8,
};

// The address of the column's field in a skill. Its C++ type is the one `m_nType`
// names: std::string, int32, int16, int8, uint8, uint32, double or float.
using CSV_FIELD = void* (*)(cSkill& skill);

struct cCsvColumn {
  std::string m_strName;   // header, CP932; the reader matches it exactly
  std::string m_strHint;   // CP932
  std::string m_strLimit;  // CP932, made from the range when the column is declared
  int m_nType = CSVVALUETYPE_MEMO;
  double m_dMin = 0;
  double m_dMax = 0;
  int m_nDecimals = 0;  // of the two floating types
  int m_nMaxChars = 0;  // of a string column
  CSV_FIELD m_pField = nullptr;
};

// Column declarations; names and hints are UTF-8 source text.
cCsvColumn CsvStringColumn(const std::string& name, const std::string& hint, int maxChars, CSV_FIELD field);
// A numeric column declared with the string or memo type is a defect of the program:
// it is reported and the run ends; the column then reads and writes nothing.
cCsvColumn CsvNumberColumn(const std::string& name, const std::string& hint, int type, double min, double max,
                           int decimals, CSV_FIELD field);
cCsvColumn CsvMemoColumn(const std::string& name, const std::string& hint);

bool IsCsvFloatType(int type);

// The 42 columns of a skill, in file order.
void BuildSkillColumns(VECTOR_CLASS<cCsvColumn>& columns);
// The same table, built once for the run.
const VECTOR_CLASS<cCsvColumn>& SkillColumns();
