#pragma once
// What the editor remembers between runs that is not part of the game: the stage last
// worked on, the palette, the default stage, the checks of the event palettes and the
// places of its seven tool windows. Kept in "e_data\EditConfig.dat".

#include <string>

#include "kernel/serial.h"

// The place of one tool window on the screen.
class cWndPosInfo : public cSerial {
 public:
  cWndPosInfo() {
    Reset();
    m_nSpare = 1;
  }
  SERIAL_RECORD(cWndPosInfo)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;

  void Set(int x, int y, int width, int height);
  // Brings the stored corner back onto a screen of the given full-screen size; a size
  // of 0 (no display known) leaves the place as stored.
  void ClampToScreen(int fullScreenWidth, int fullScreenHeight);

  int m_bValid;
  int m_nX;
  int m_nY;
  int m_nWidth;
  int m_nHeight;
  int m_nSpare;
};

// The full-screen size the window places are held within; set by the window layer.
void SetFullScreenSize(int width, int height);

class cEditConfig : public cSerial {
 public:
  cEditConfig() { Init(); }
  SERIAL_RECORD(cEditConfig)

  // Reset and the defaults of a new configuration.
  void Init();

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  int Load(cSerialFile* file) override;

  std::string m_strStagePath;
  int m_nPalette;
  int m_nUndoDepth;
  int m_bEditIfPlaced;
  int m_bEditBeforePut;
  int m_bWorldEditIfPlaced;
  int m_bWorldEditBeforePut;
  int m_bAutoStageNo;
  int m_bAutoFindOld;             // the test play settings lived here before version 221
  std::string m_strGamePathOld;
  std::string m_strDefaultStage;
  std::string m_strSpare;
  int m_nSpare;

  // Streamed behind the other fields; a load holds each on the screen.
  cWndPosInfo m_PosMain;
  cWndPosInfo m_PosChip;
  cWndPosInfo m_PosEnemy;
  cWndPosInfo m_PosEvent;
  cWndPosInfo m_PosWorldMap;
  cWndPosInfo m_PosWorldChip;
  cWndPosInfo m_PosWorldEvent;
};

constexpr const char* kEditConfigPath = "e_data\\EditConfig.dat";
constexpr const char* kEditConfigOldPath = "data\\EditConfig.dat";

// "stg" (or any old extension) of a stored path replaced by "stg2".
std::string WithStageExtension(const std::string& storedPath);
