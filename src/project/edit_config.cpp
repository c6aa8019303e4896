#include "project/edit_config.h"

#include <algorithm>

#include "kernel/serial_fields.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"

namespace {
int g_nFullScreenWidth = 0;
int g_nFullScreenHeight = 0;
}  // namespace

void SetFullScreenSize(int width, int height) {
  g_nFullScreenWidth = width;
  g_nFullScreenHeight = height;
}

int cWndPosInfo::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cWndPosInfo>(other);
  SERIAL_FIELD(SerialInt(op, m_bValid, OTHER(m_bValid), file));
  SERIAL_FIELD(SerialInt(op, m_nX, OTHER(m_nX), file));
  SERIAL_FIELD(SerialInt(op, m_nY, OTHER(m_nY), file));
  SERIAL_FIELD(SerialInt(op, m_nWidth, OTHER(m_nWidth), file));
  SERIAL_FIELD(SerialInt(op, m_nHeight, OTHER(m_nHeight), file));
  SERIAL_FIELD(SerialInt(op, m_nSpare, OTHER(m_nSpare), file));
  return 1;
}

int cWndPosInfo::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  ClampToScreen(g_nFullScreenWidth, g_nFullScreenHeight);
  return 1;
}

void cWndPosInfo::Set(int x, int y, int width, int height) {
  m_nX = x;
  m_nY = y;
  m_nWidth = width;
  m_nHeight = height;
  m_bValid = 1;
}

void cWndPosInfo::ClampToScreen(int fullScreenWidth, int fullScreenHeight) {
  if (fullScreenWidth > 0) m_nX = std::clamp(m_nX, 0, fullScreenWidth);
  if (fullScreenHeight > 0) m_nY = std::clamp(m_nY, 0, fullScreenHeight);
}

void cEditConfig::Init() {
  Reset();
  m_nUndoDepth = 3;
  m_bEditIfPlaced = 1;
  m_bEditBeforePut = 1;
  m_bWorldEditIfPlaced = 1;
  m_bWorldEditBeforePut = 1;
  m_bAutoStageNo = 1;
  m_bAutoFindOld = 1;
  m_strDefaultStage = "data\\stg\\Default.stg2";
  m_PosMain = m_PosChip = m_PosEnemy = m_PosEvent = m_PosWorldMap = m_PosWorldChip = m_PosWorldEvent = cWndPosInfo();
}

int cEditConfig::Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) {
  const auto* o = SerialOther<cEditConfig>(other);
  const std::int32_t* scratch = o != nullptr ? &g_nScratchInt : nullptr;
  SERIAL_FIELD(SerialString(op, m_strStagePath, OTHER(m_strStagePath), file));
  SERIAL_FIELD(SerialInt(op, m_nPalette, OTHER(m_nPalette), file));
  if (version < 74) {
    SERIAL_FIELD(SerialInt(op, g_nScratchInt, scratch, file));
    SERIAL_FIELD(SerialInt(op, g_nScratchInt, scratch, file));
  }
  SERIAL_FIELD(SerialInt(op, m_nUndoDepth, OTHER(m_nUndoDepth), file));
  SERIAL_FIELD(SerialInt(op, m_bEditIfPlaced, OTHER(m_bEditIfPlaced), file));
  SERIAL_FIELD(SerialInt(op, m_bEditBeforePut, OTHER(m_bEditBeforePut), file));
  SERIAL_FIELD(SerialInt(op, m_bWorldEditIfPlaced, OTHER(m_bWorldEditIfPlaced), file));
  SERIAL_FIELD(SerialInt(op, m_bWorldEditBeforePut, OTHER(m_bWorldEditBeforePut), file));
  SERIAL_FIELD(SerialInt(op, m_bAutoStageNo, OTHER(m_bAutoStageNo), file));
  if (version < 77) SERIAL_FIELD(SerialInt(op, g_nScratchInt, scratch, file));
  SERIAL_FIELD(SerialInt(op, m_bAutoFindOld, OTHER(m_bAutoFindOld), file));
  SERIAL_FIELD(SerialString(op, m_strGamePathOld, OTHER(m_strGamePathOld), file));
  SERIAL_FIELD(SerialString(op, m_strDefaultStage, OTHER(m_strDefaultStage), file));
  SERIAL_FIELD(SerialString(op, m_strSpare, OTHER(m_strSpare), file));
  if (version >= 26) SERIAL_FIELD(SerialInt(op, m_nSpare, OTHER(m_nSpare), file));
  // The places of the tool windows, each a record of its own at the file's version.
  SERIAL_FIELD(SerialRecord(op, m_PosMain, OTHER(m_PosMain), file));
  SERIAL_FIELD(SerialRecord(op, m_PosChip, OTHER(m_PosChip), file));
  SERIAL_FIELD(SerialRecord(op, m_PosEnemy, OTHER(m_PosEnemy), file));
  SERIAL_FIELD(SerialRecord(op, m_PosEvent, OTHER(m_PosEvent), file));
  SERIAL_FIELD(SerialRecord(op, m_PosWorldMap, OTHER(m_PosWorldMap), file));
  SERIAL_FIELD(SerialRecord(op, m_PosWorldChip, OTHER(m_PosWorldChip), file));
  SERIAL_FIELD(SerialRecord(op, m_PosWorldEvent, OTHER(m_PosWorldEvent), file));
  return 1;
}

int cEditConfig::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  if (g_nFileVersion < 106) {
    m_strStagePath = WithStageExtension(m_strStagePath);
    m_strDefaultStage = WithStageExtension(m_strDefaultStage);
  }
  return 1;
}

std::string WithStageExtension(const std::string& storedPath) {
  if (storedPath.empty()) return storedPath;
  std::size_t nameStart = FileNameOffset(storedPath);
  std::size_t dot = std::string::npos;
  for (std::size_t i = nameStart; i < storedPath.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(storedPath[i]);
    if (IsLeadByte(c) && i + 1 < storedPath.size()) {
      ++i;
    } else if (c == '.') {
      dot = i;
    }
  }
  return (dot == std::string::npos ? storedPath : storedPath.substr(0, dot)) + ".stg2";
}
