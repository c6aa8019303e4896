#include "database/media_tables.h"

#include "kernel/serial_fields.h"
#include "platform/stored_path.h"

int cEdMediaFile::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEdMediaFile>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialInt(op, m_bSameName, OTHER(m_bSameName), file));
  SERIAL_FIELD(SerialString(op, m_strPath, OTHER(m_strPath), file));
  return 1;
}

int cEdBgm::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEdBgm>(other);
  SERIAL_FIELD(cEdMediaFile::Serialize(op, other, file, version));
  // Older files keep the constructor's full volume.
  if (version >= 100) SERIAL_FIELD(SerialInt(op, m_nVolume, OTHER(m_nVolume), file));
  return 1;
}

int cEdBack::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEdBack>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialInt(op, m_nKind, OTHER(m_nKind), file));
  SERIAL_FIELD(SerialInt(op, m_nChipW, OTHER(m_nChipW), file));
  SERIAL_FIELD(SerialInt(op, m_nChipH, OTHER(m_nChipH), file));
  SERIAL_FIELD(SerialString(op, m_strPath, OTHER(m_strPath), file));
  SERIAL_FIELD(SerialByte(op, m_byRed, OTHER(m_byRed), file));
  SERIAL_FIELD(SerialByte(op, m_byGreen, OTHER(m_byGreen), file));
  SERIAL_FIELD(SerialByte(op, m_byBlue, OTHER(m_byBlue), file));
  SERIAL_FIELD(SerialDouble(op, m_dScrollX, OTHER(m_dScrollX), file));
  SERIAL_FIELD(SerialDouble(op, m_dScrollY, OTHER(m_dScrollY), file));
  return 1;
}

int cPtVal::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cPtVal>(other);
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialString(op, m_strUnit, OTHER(m_strUnit), file));
  SERIAL_FIELD(SerialInt(op, m_nCommonVar, OTHER(m_nCommonVar), file));
  SERIAL_FIELD(SerialInt(op, m_nMin, OTHER(m_nMin), file));
  SERIAL_FIELD(SerialInt(op, m_nMax, OTHER(m_nMax), file));
  SERIAL_FIELD(SerialInt(op, m_bShowParty, OTHER(m_bShowParty), file));
  if (version >= 31) SERIAL_FIELD(SerialInt(op, m_bShowSave, OTHER(m_bShowSave), file));
  SERIAL_FIELD(SerialInt(op, m_nReserved, OTHER(m_nReserved), file));
  return 1;
}

bool NameFromPath(std::string_view path, std::string& name) {
  const std::string_view file = path.substr(FileNameOffset(path));
  // '.' is never a trail byte, so the last one is the extension's dot.
  const std::size_t dot = file.rfind('.');
  if (dot == std::string_view::npos) return false;
  name.assign(file.substr(0, dot));
  return true;
}
