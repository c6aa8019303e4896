#pragma once
// The media tables of the database: pictures, party variables, backgrounds, sounds and
// music. Other records hold their row numbers; a row names a file of the project and
// how to show or play it. Row 0 of each table is reserved and means "none".

#include <cstdint>
#include <string>
#include <string_view>

#include "kernel/serial.h"

constexpr const char* kPicturePath = "data\\database\\Picture.dat";
constexpr const char* kPartyValPath = "data\\database\\PartyVal.dat";
constexpr const char* kBackPath = "data\\database\\Back.dat";
constexpr const char* kSoundPath = "data\\database\\Sound.dat";
constexpr const char* kBgmPath = "data\\database\\Bgm.dat";

// A row that names a file: the name may follow the file's name (m_bSameName). The head
// of the picture, sound and music rows.
class cEdMediaFile : public cSerial {
 public:
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strName;
  int m_bSameName = 0;
  std::string m_strPath;  // relative to the project folder

 protected:
  cEdMediaFile() = default;
  void SetDefault(int bSameName) {
    Reset();
    m_bSameName = bSameName;
  }
};

class cEdPicture final : public cEdMediaFile {
 public:
  cEdPicture() { SetDefault(0); }
  SERIAL_RECORD(cEdPicture)
};

class cEdSound final : public cEdMediaFile {
 public:
  cEdSound() { SetDefault(1); }
  SERIAL_RECORD(cEdSound)
};

class cEdBgm final : public cEdMediaFile {
 public:
  cEdBgm() {
    SetDefault(1);
    m_nVolume = 100;
  }
  SERIAL_RECORD(cEdBgm)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nVolume = 100;  // percent; only Ogg Vorbis files honour it
};

// m_nKind of a background
inline constexpr const char* BACKKIND[] = {"マップチップを並べる ※戦闘背景にのみ有効", "画像で指定", "色で指定", ""};
enum : int { BACKKIND_CHIPS = 0, BACKKIND_IMAGE = 1, BACKKIND_COLOR = 2 };

class cEdBack final : public cSerial {
 public:
  cEdBack() {
    Reset();
    m_nChipW = 32;
    m_nChipH = 32;
  }
  SERIAL_RECORD(cEdBack)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strName;
  int m_nKind = BACKKIND_CHIPS;
  int m_nChipW = 32;
  int m_nChipH = 32;
  std::string m_strPath;
  std::uint8_t m_byRed = 0;  // transparent colour of the image
  std::uint8_t m_byGreen = 0;
  std::uint8_t m_byBlue = 0;
  double m_dScrollX = 0.0;
  double m_dScrollY = 0.0;
};

// A party variable: a named view on one common variable, such as a party's money.
class cPtVal final : public cSerial {
 public:
  cPtVal() {
    Reset();
    m_nCommonVar = 1;
    m_nMax = 999999;
  }
  SERIAL_RECORD(cPtVal)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strName;
  std::string m_strUnit;
  int m_nCommonVar = 1;  // the common variable that holds the value, from 1
  int m_nMin = 0;
  int m_nMax = 999999;
  int m_bShowParty = 0;
  int m_bShowSave = 0;
  int m_nReserved = 0;  // carried along, edited by no form
};

// The name a row takes from its path when it follows the file's name: the last
// component of `path` without its extension. False, and `name` untouched, when that
// component has no extension to take off. A 0x5C that is the trail byte of a
// double-byte character is no separator.
bool NameFromPath(std::string_view path, std::string& name);

// Applies the "same as file name" rule to a row: with m_bSameName set, m_strName
// follows m_strPath as NameFromPath says. True when the name is to follow the path,
// which is when the form disables the name's edit.
template <class Row>
bool SetFileName(Row& row) {
  if (!row.m_bSameName) return false;
  NameFromPath(row.m_strPath, row.m_strName);
  return true;
}
