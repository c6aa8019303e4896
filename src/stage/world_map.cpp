#include "stage/world_map.h"

#include <bitset>

#include "database/table_rows.h"
#include "kernel/serial_fields.h"
#include "platform/cp932.h"

namespace {

constexpr std::uint32_t kFirstVersionWithChips = 98;
constexpr int kOldChipCount = 10;
constexpr int kOldBlockingChips = 5;

}  // namespace

void cWorldMap::Init() {
  Reset();
  m_strName = CP932_TEXT("ワールド");
  m_nStartX = 9;
  m_nStartY = 7;
  m_nBack = 1;
  m_bUseImage = 0;
  Resize(20, 15);
  m_vecEvent.clear();
  m_vecEventPlt.assign(1, cWorldEvent());
  m_vecEventPlt[0].m_strName = CP932_TEXT("デフォルト");
}

int cWorldMap::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cWorldMap>(other);
  SERIAL_FIELD(SerialInt(op, m_nWidth, OTHER(m_nWidth), file));
  SERIAL_FIELD(SerialInt(op, m_nHeight, OTHER(m_nHeight), file));
  SERIAL_FIELD(SerialInt(op, m_nStride, OTHER(m_nStride), file));
  SERIAL_FIELD(SerialInt(op, m_nShift, OTHER(m_nShift), file));
  SERIAL_FIELD(SerialInt(op, m_nStartX, OTHER(m_nStartX), file));
  SERIAL_FIELD(SerialInt(op, m_nStartY, OTHER(m_nStartY), file));
  // Settings that the background replaced.
  if (version < 20) SERIAL_FIELD(SerialInt(op, g_nScratchInt, o ? &g_nScratchInt : nullptr, file));
  if (version >= 20 && version < 66) {
    for (int i = 0; i < 3; ++i) SERIAL_FIELD(SerialByte(op, g_byScratchByte, o ? &g_byScratchByte : nullptr, file));
  }
  if (version >= 66) SERIAL_FIELD(SerialInt(op, m_nBack, OTHER(m_nBack), file));
  SERIAL_FIELD(SerialInt(op, m_bUseImage, OTHER(m_bUseImage), file));
  SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
  SERIAL_FIELD(SerialString(op, m_strBackImage, OTHER(m_strBackImage), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecChip, OTHER(m_vecChip), file));
  SERIAL_FIELD(SerialIntVector(op, m_vecMap, OTHER(m_vecMap), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecEvent, OTHER(m_vecEvent), file));
  SERIAL_FIELD(SerialRecordVector(op, m_vecEventPlt, OTHER(m_vecEventPlt), file));
  return 1;
}

int cWorldMap::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  std::string why = SizeDisagreement();
  if (!why.empty()) {
    file->Fail(("world map refused: " + why).c_str());
    return 0;
  }
  // The chip table came with 98; older maps used a fixed set whose first five block.
  if (g_nFileVersion < kFirstVersionWithChips) {
    m_vecChip.assign(kOldChipCount, cWorldChip());
    for (int i = 0; i < kOldChipCount; ++i) {
      m_vecChip[static_cast<std::size_t>(i)].m_nGraphic = i;
      m_vecChip[static_cast<std::size_t>(i)].m_bNoMove = i < kOldBlockingChips ? 1 : 0;
    }
  }
  Clamp();
  return 1;
}

int cWorldMap::Save(cSerialFile* file) {
  Clamp();
  return cSerial::Save(file);
}

void cWorldMap::Clamp() {
  if (m_nStartX >= m_nWidth) m_nStartX = m_nWidth - 1;
  if (m_nStartY >= m_nHeight) m_nStartY = m_nHeight - 1;
  ClampCells(m_vecChip.Count());
  RemoveEventsOutside();
  if (m_nBack < 0 || m_nBack >= BackRows()) m_nBack = 1;
}

int cWorldMap::NextStageNumber(const cWorldEvent* exclude) const {
  std::bitset<kMaxStageNo + 1> used;
  for (const cWorldEvent& event : m_vecEvent) {
    if (&event == exclude) continue;
    for (const cWorldEventPage& page : event.m_vecPage) {
      if (page.m_nType == WORLDEVENT_STAGE && page.m_nStageNo >= 1 && page.m_nStageNo <= kMaxStageNo) {
        used.set(static_cast<std::size_t>(page.m_nStageNo));
      }
    }
  }
  for (int n = 1; n <= kMaxStageNo; ++n) {
    if (!used.test(static_cast<std::size_t>(n))) return n;
  }
  return 0;
}

void cWorldMap::AssignStageNumbers(cWorldEvent& event, const cWorldEvent* exclude) const {
  const int number = NextStageNumber(exclude);
  for (cWorldEventPage& page : event.m_vecPage) {
    if (page.m_nType == WORLDEVENT_STAGE) page.m_nStageNo = number;
  }
}
