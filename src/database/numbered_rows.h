#pragma once
// The rows of a combo over numbered records, in CP932: each record's number, padded
// with zeros to a width, a blank and its name ("%03d %s" for the enemies, "%d %s" for a
// width of 0). Rows start at a record number, so that a reserved record 0 stays out.
// Records listed by name alone take NameRows.

#include <cstdio>
#include <string>

#include "kernel/vector_class.h"

inline std::string NumberedRow(int number, int width, const std::string& name) {
  char digits[16];
  std::snprintf(digits, sizeof digits, "%0*d ", width, number);
  return digits + name;
}

template <class Row>
VECTOR_CLASS<std::string> NumberedRows(const VECTOR_CLASS<Row>& records, int first, int width) {
  VECTOR_CLASS<std::string> rows;
  for (int i = first; i < records.Count(); ++i) rows.push_back(NumberedRow(i, width, records[i].m_strName));
  return rows;
}

template <class Row>
VECTOR_CLASS<std::string> NameRows(const VECTOR_CLASS<Row>& records) {
  VECTOR_CLASS<std::string> rows;
  for (const Row& record : records) rows.push_back(record.m_strName);
  return rows;
}
