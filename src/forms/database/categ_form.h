#pragma once
// DLG_CATEG, "カテゴリー": one category of a skill list, its one-character name, its
// symbol and its share of a random sense rise.

#include "database/skill_list.h"
#include "toolkit/record_form.h"

class DLG_CATEG : public cRecordForm<cCateg> {
 public:
  enum : unsigned { kName = 1251, kSymbol, kSymbolPreview, kRate, kRateSpin };
  explicit DLG_CATEG(const cCateg& source, QWidget* parent = nullptr);

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;
};
