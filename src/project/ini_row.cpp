#include "project/ini_row.h"

#include "kernel/serial_fields.h"

int cIni::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cIni>(other);
  SERIAL_FIELD(SerialInt(op, m_nValue, OTHER(m_nValue), file));
  SERIAL_FIELD(SerialString(op, m_strKey, OTHER(m_strKey), file));
  SERIAL_FIELD(SerialInt(op, m_nDefault, OTHER(m_nDefault), file));
  SERIAL_FIELD(SerialString(op, m_strText, OTHER(m_strText), file));
  return 1;
}

VECTOR_CLASS<cIni> DefaultIniRows() {
  static const struct {
    const char* key;
    int value;
  } kRows[] = {{"WindowMode", 2}, {"Color", 0},   {"VSync", 2},           {"FrameRate", 60},
               {"ShowFps", 2},    {"English", 0}, {"Midi_DirectMusic", 1}};
  VECTOR_CLASS<cIni> rows(std::size(kRows));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].m_strKey = kRows[i].key;
    rows[i].m_nDefault = kRows[i].value;
  }
  return rows;
}
