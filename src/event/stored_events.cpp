#include "event/stored_events.h"

#include "kernel/record_vector_file.h"
#include "platform/cp932.h"

int cGValInfo::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cGValInfo>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  return 1;
}

int cEventActPlt::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEventActPlt>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialString(op, m_strDesc, OTHER(m_strDesc), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecAct, OTHER(m_vecAct), file));
  return 1;
}

void FitCommonVarNames(VECTOR_CLASS<cGValInfo>& names) {
  if (names.Count() != kCommonVarRows) names.resize(kCommonVarRows);
}

void UseFallbackEventPalette(VECTOR_CLASS<cEvent>& palette) {
  VECTOR_CLASS<cEvent> fallback;
  // The palette list needs a row: a fallback file without events does not replace it.
  if (LoadVector(fallback, kDefaultEventPltPath) && !fallback.empty()) {
    palette.swap(fallback);
    return;
  }
  palette.assign(1, cEvent());
  palette[0].m_strName = CP932_TEXT("デフォルト");
}
