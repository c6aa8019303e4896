#pragma once
// The event data a project keeps outside its stages: the names of the common
// variables, the event palette, the action palette and the start event.

#include <cstdint>
#include <string>

#include "event/event.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"

constexpr const char* kGValInfoPath = "data\\GValInfo.dat";
constexpr const char* kEventPltPath = "data\\EventPlt.dat";
constexpr const char* kEventActPltPath = "data\\EventActionPlt.dat";
constexpr const char* kStartEventPath = "data\\database\\StartEvent.dat";
constexpr const char* kDefaultEventPltPath = "data\\plt\\default.plt";

// Common variables are numbered 1 to 999; row 0 of the name table stands for "none".
constexpr int kCommonVarRows = 1000;

// The name of one common variable.
class cGValInfo : public cSerial {
 public:
  cGValInfo() { Reset(); }
  SERIAL_RECORD(cGValInfo)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strName;
};

// A saved run of actions, to be pasted into a page.
class cEventActPlt : public cSerial {
 public:
  cEventActPlt() { Reset(); }
  SERIAL_RECORD(cEventActPlt)
  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  std::string m_strName;
  std::string m_strDesc;
  VECTOR_CLASS<cEventAct> m_vecAct;
};

// The name table always has a row for every variable, whatever the file held.
void FitCommonVarNames(VECTOR_CLASS<cGValInfo>& names);

// The palette when its file is missing: what the fallback palette file holds, or one
// default event named "デフォルト" when that file gives no event.
void UseFallbackEventPalette(VECTOR_CLASS<cEvent>& palette);
