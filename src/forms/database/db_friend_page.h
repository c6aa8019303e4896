#pragma once
// DLG_DBFRIEND, page 1 of the database sheet: the allies, the characters the player
// leads and hires.

#include "database/chara_kinds.h"
#include "forms/database/chara_page.h"
#include "forms/database/sub_form_list.h"

class DLG_DBFRIEND : public cCharaPage<cFriend> {
 public:
  enum : unsigned {
    kList = 1400, kRandomSense, kRandomSkill, kLearn, kLearnEdit, kLearnInsert, kLearnDelete, kInShop, kAnyTimes,
    kNoRelease, kRegenerate,
  };
  DLG_DBFRIEND();

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  cSubFormList<cLearnSkill> m_Learn{{kLearn, kLearnEdit, kLearnInsert, kLearnDelete}};
};
