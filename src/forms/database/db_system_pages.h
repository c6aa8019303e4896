#pragma once
// The ten pages of the game-wide settings, "システム1" to "システム10", rows 15 to 24
// of the database sheet: growth and scouting; enemies, experience and money; the
// battle's timing and formulas; elements, graphics, sounds and music; then the words
// of the game's menus and messages, and the keys of "System.ini". Each page is its
// table of controls over g_System and its few rules.

#include <array>

#include "forms/database/system_page.h"
#include "toolkit/record_form.h"

class DLG_DBSYSTEM : public cSystemPage {
 public:
  enum : unsigned { kScout = 1700, kScoutVal, kRandomChange, kChangeValue, kChangeCount };
  DLG_DBSYSTEM();
};

class DLG_DBSYSTEM_2 : public cSystemPage {
 public:
  DLG_DBSYSTEM_2();

 private:
  // A price of a character: the cost, the cost per level, the party variable paid from.
  void Price(const char* label, int* cost, int* perLevel, int* var);
};

class DLG_DBSYSTEM_3 : public cSystemPage {
 public:
  enum : unsigned {
    kTurnMode = 1700, kBattleTime, kInitAction, kInitAction2, kSpeedRate, kSpeedRate2, kWaitAttacker, kSpeedBase,
    kOrderType, kBaseActions, kBaseActions2, kSpeedGap, kSpeedGap2, kMaxActions, kMaxActions2,
    kActions, kActions2,  // the reference values, read-only
  };
  DLG_DBSYSTEM_3();

 protected:
  void OnUpdateEnable() override;

 private:
  cSystem m_Scratch;  // the settings the reference values are computed from
};

class DLG_DBSYSTEM_4 : public cSystemPage {
 public:
  enum : unsigned {
    kElemList = 1700, kElemNew, kElemEdit, kElemClear, kFont, kFontSample,
    kSound = 1800,  // per row: path, "参照", "再生"
    kBgm = 1900,    // per row: music, "再生", "ループ再生"
  };
  static constexpr int kSampleW = 360, kSampleH = 36;
  DLG_DBSYSTEM_4();

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  void DrawFontSample();
  void EditElem();
  VECTOR_CLASS<cElem> m_vecElem;
  CTRL_LIST_CLASS<cElem> m_Elem;
};

class DLG_DBSYSTEM_5 : public cSystemPage {
 public:
  enum : unsigned { kPredict = 1700, kPredictShow, kPredictTerm = kPredictShow + kSystemPredictCount, kGameModeImage = 1720 };
  DLG_DBSYSTEM_5();
};

class DLG_DBSYSTEM_6 : public cSystemPage {
 public:
  DLG_DBSYSTEM_6();
};

class DLG_DBSYSTEM_7 : public cSystemPage {
 public:
  DLG_DBSYSTEM_7();
};

class DLG_DBSYSTEM_8 : public cSystemPage {
 public:
  DLG_DBSYSTEM_8();
};

class DLG_DBSYSTEM_9 : public cSystemPage {
 public:
  DLG_DBSYSTEM_9();
};

// An empty tab.
class DLG_DBSYSTEM_10 : public cSystemPage {
 public:
  DLG_DBSYSTEM_10() : cSystemPage("システム10") {}
};

// DLG_ELEM, "属性の種類": one element, a one-character name.
class DLG_ELEM : public cRecordForm<cElem> {
 public:
  enum : unsigned { kName = 1601 };
  explicit DLG_ELEM(const cElem& source, QWidget* parent = nullptr);
};
