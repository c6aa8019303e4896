#include "database/compati_type.h"

#include <algorithm>

#include "database/label_table.h"
#include "database/table_rows.h"
#include "kernel/serial_fields.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

// The row count of the table that the type now being read belongs to. The kernel reads
// a list aside and swaps it in at the end, so the table of g_Database still holds what
// it held before (nothing at start-up). Types are only ever stored in the list that
// opens their file, CompatiType.dat or the old single database file, so the count of
// that table is the one behind the version header.
int RowsOfTableBeingRead(const cSerialFile* file) {
  constexpr std::size_t kCountAt = sizeof(std::uint32_t);
  std::uint32_t count = 0;
  if (!file->PeekHead(kCountAt, &count, sizeof count)) return 0;
  return count > static_cast<std::uint32_t>(INT32_MAX) ? INT32_MAX : static_cast<int>(count);
}

}  // namespace

int cInfl::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cInfl>(other);
  SERIAL_FIELD(SerialInt(op, m_nTarget, OTHER(m_nTarget), file));
  SERIAL_FIELD(SerialInt(op, m_nWhat, OTHER(m_nWhat), file));
  SERIAL_FIELD(SerialInt(op, m_nOp, OTHER(m_nOp), file));
  SERIAL_FIELD(SerialInt(op, m_nValue, OTHER(m_nValue), file));
  return 1;
}

int cCompatiType::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cCompatiType>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecInfl, OTHER(m_vecInfl), file));
  return 1;
}

int cCompatiType::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  FixRefs(RowsOfTableBeingRead(file));
  return 1;
}

int cCompatiType::Save(cSerialFile* file) {
  FixRefs();
  return cSerial::Save(file);
}

void cCompatiType::FixRefs() { FixRefs(CompatiTypeRows()); }

void cCompatiType::FixRefs(int rows) {
  std::erase_if(m_vecInfl, [rows](const cInfl& infl) { return infl.m_nTarget < 0 || infl.m_nTarget >= rows; });
}

void cCompatiType::SetDefault() {
  Reset();
  m_vecInfl.clear();
  m_vecInfl.insert(m_vecInfl.begin(), cInfl());
}

std::string SummaryInfl(const cInfl& infl) { return SummaryInfl(infl, g_Database.m_vecCompatiType); }

std::string SummaryInfl(const cInfl& infl, const VECTOR_CLASS<cCompatiType>& types) {
  // A target outside the table has no name; FixRefs drops such a rule at the next save.
  const bool known = infl.m_nTarget >= 0 && infl.m_nTarget < types.Count();
  std::string text = known ? types[infl.m_nTarget].m_strName : std::string();
  text += CP932_TEXT(" に対して ");
  text += LabelText(INFLWHAT, infl.m_nWhat);
  text += ' ';
  text += LabelText(INFLOP, infl.m_nOp);
  text += ' ';
  text += std::to_string(infl.m_nValue);
  return text;
}
