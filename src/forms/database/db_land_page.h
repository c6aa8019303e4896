#pragma once
// DLG_DBLAND, page 5 of the database sheet: the terrain that map cells are made of.

#include "database/land.h"
#include "forms/table_page.h"

class DLG_DBLAND : public cTablePage<cLand> {
 public:
  enum : unsigned {
    kList = 1300, kName, kMoveCost, kMoveCostSpin, kNoMove, kGraphic, kGraphicSpin, kGraphicList, kChip,
    kPercent, kRates, kRateEdit, kSpecial, kSpecialValue, kTraining, kDesc, kSymbol, kSymbolPreview, kBack,
    kStatus = 1330,  // nine number edits, one per status
  };
  DLG_DBLAND();

 protected:
  void OnReady() override;
  void OnStale() override;
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;

 private:
  void FillBackNames();
  // The chip of the graphic number on the screen, drawn when that number changes.
  void UpdateChip();

  VECTOR_CLASS<std::string> m_vecBackNames;
  VECTOR_CLASS<int> m_vecBackValues;
  CTRL_LIST_CLASS<std::int32_t> m_Rates;
  int m_nSymbol = 0;  // the symbol looked up; stored nowhere
  int m_nShownChip = -1;
};
