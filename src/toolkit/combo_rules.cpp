#include "toolkit/combo_rules.h"

#include "platform/cp932.h"

void cComboRules::FillRows(const char* const* labels, const VECTOR_CLASS<std::string>* labelVector) {
  m_vecRows.clear();
  if (labels != nullptr) {
    for (int i = 0; labels[i][0] != '\0'; ++i) m_vecRows.emplace_back(labels[i]);
  } else if (labelVector != nullptr) {
    for (const std::string& s : *labelVector) m_vecRows.push_back(Cp932ToUtf8Lossy(s));
  }
}

void cComboRules::Bind(const cComboInit& init) {
  m_Init = init;
  FillRows(init.pLabels, init.pLabelVector);
}

int cComboRules::RowOfValue(int value) const {
  int row = -1;
  if (m_Init.pValues != nullptr) {
    for (int i = 0; i < m_Init.pValues->Count(); ++i)
      if ((*m_Init.pValues)[i] == value) {
        row = i;
        break;
      }
  } else {
    // A stored value may lie anywhere in the int's range: no row, not an overflow.
    const long long offsetRow = static_cast<long long>(value) - m_Init.nOffset;
    row = offsetRow >= 0 && offsetRow < static_cast<long long>(m_vecRows.size()) ? static_cast<int>(offsetRow) : -1;
  }
  return row >= 0 && row < static_cast<int>(m_vecRows.size()) ? row : -1;
}

int cComboRules::ValueOfRow(int row) const {
  if (row < 0) return -1;
  if (m_Init.pValues != nullptr) return row < m_Init.pValues->Count() ? (*m_Init.pValues)[row] : -1;
  return row + m_Init.nOffset;
}

int cComboRules::Reselect(int value, const VECTOR_CLASS<int>* pValues) {
  if (pValues != m_Init.pValues) {
    m_Init.pValues = pValues;
    return m_vecRows.empty() ? -1 : 0;
  }
  if (pValues != nullptr) return RowOfValue(value);
  const int last = static_cast<int>(m_vecRows.size()) - 1;
  int row = value - m_Init.nOffset;
  if (row < 0) row = 0;
  if (row > last) row = last;
  return row;
}

int cComboRules::SetLabels(const char* const* labels, const VECTOR_CLASS<int>* pValues, int curRow) {
  const int value = ValueOfRow(curRow);
  m_Init.pLabels = labels;
  m_Init.pLabelVector = nullptr;
  FillRows(labels, nullptr);
  return Reselect(value, pValues);
}

int cComboRules::SetLabels(const VECTOR_CLASS<std::string>& labels, const VECTOR_CLASS<int>* pValues, int curRow) {
  const int value = ValueOfRow(curRow);
  m_Init.pLabels = nullptr;
  m_Init.pLabelVector = &labels;
  FillRows(nullptr, &labels);
  return Reselect(value, pValues);
}
