#pragma once
// Two small pages of the database sheet: DLG_DB_PTVAL (page 6), the party variables,
// named views on common variables; DLG_DBWORLDCHIP (page 14), the chips of the world map.

#include "database/media_tables.h"
#include "database/world_chip.h"
#include "forms/table_page.h"

class DLG_DB_PTVAL : public cTablePage<cPtVal> {
 public:
  enum : unsigned { kList = 1420, kName, kUnit, kCommonVar, kRename, kMin, kMax, kShowParty, kShowSave };
  DLG_DB_PTVAL();

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;
};

class DLG_DBWORLDCHIP : public cTablePage<cWorldChip> {
 public:
  enum : unsigned { kList = 1440, kName, kNoMove, kGraphic, kGraphicSpin, kChip };
  DLG_DBWORLDCHIP();

 protected:
  void OnReady() override;
  void OnUpdateEnable() override;

 private:
  int m_nShownChip = -1;
};
