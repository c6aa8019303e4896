#pragma once
// DLG_DBENEMY, page 2 of the database sheet: the enemies, with the battle AI that
// chooses their actions in a fight.

#include "database/chara_kinds.h"
#include "forms/database/chara_page.h"
#include "forms/database/sub_form_list.h"

class DLG_DBENEMY : public cCharaPage<cEnemy> {
 public:
  enum : unsigned {
    kList = 1450, kAI, kAIEdit, kAIInsert, kAIDelete, kFixEX, kFixEXValue, kMoneyVal, kMoney, kDesc,
  };
  DLG_DBENEMY();

 protected:
  void OnReady() override;
  void OnStale() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  void FillMoneyNames();

  VECTOR_CLASS<std::string> m_vecMoneyNames;
  cSubFormList<cBattleAI> m_AI{{kAI, kAIEdit, kAIInsert, kAIDelete}};
};
