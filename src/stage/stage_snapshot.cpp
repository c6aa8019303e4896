#include "stage/stage_snapshot.h"

#include "kernel/serial_fields.h"
#include "stage/stage.h"

std::uint64_t cStageSnapshot::EstimateBytes() const {
  std::uint64_t bytes = 4 * static_cast<std::uint64_t>(m_Stage.m_vecMap.size());
  for (const cPutEnemy& enemy : m_Stage.m_vecPutEnemy) bytes += 56 + 24 * enemy.m_vecMoveAI.size();
  for (const cEvent& event : m_Stage.m_vecEvent) bytes += 80 + 24 * event.m_vecPage.size();
  return bytes;
}

void cStageSnapshot::Take(std::vector<unsigned char>& out) const {
  SerialFilePtr file = OpenSerialWriteBuffer();
  SerialIntVector(SERIAL_WRITE, m_Stage.m_vecMap, nullptr, file.get());
  SerialRecordVector(SERIAL_WRITE, m_Stage.m_vecPutEnemy, nullptr, file.get());
  SerialRecordVector(SERIAL_WRITE, m_Stage.m_vecEvent, nullptr, file.get());
  out = file->Bytes();
}

void cStageSnapshot::Restore(const std::vector<unsigned char>& snapshot) {
  // A snapshot is of this program's own format; the version of the file read last
  // stays what it was for whoever asks after.
  const std::uint32_t fileVersion = g_nFileVersion;
  SerialFilePtr file = OpenSerialReadBuffer(snapshot);
  if (file != nullptr) {
    SerialIntVector(SERIAL_READ, m_Stage.m_vecMap, nullptr, file.get());
    SerialRecordVector(SERIAL_READ, m_Stage.m_vecPutEnemy, nullptr, file.get());
    SerialRecordVector(SERIAL_READ, m_Stage.m_vecEvent, nullptr, file.get());
  }
  g_nFileVersion = fileVersion;
}
