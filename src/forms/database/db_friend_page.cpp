#include "forms/database/db_friend_page.h"

#include "database/class_rows.h"
#include "forms/database/learn_skill_form.h"
#include "project/project_globals.h"

DLG_DBFRIEND::DLG_DBFRIEND() : cCharaPage(g_vecFriend, "味方キャラ") {
  cFriend& E = m_Edit;
  cFormTable& F = Table();
  DeclareLeading(kList, "味方キャラ");
  F.Check(kRandomSense, "ランダムセンス上昇", &E.m_bRandomSense).Span(2).Row();
  F.Check(kRandomSkill, "ランダムスキル習得", &E.m_bRandomSkill).Span(2).Row();
  F.Check(kInShop, "最初から仲間屋へ登録", &E.m_bInShop).Span(2).Row();
  F.Check(kAnyTimes, "何回でも雇える", &E.m_bAnyTimes).Span(2).Row();
  F.Check(kNoRelease, "放出不可能", &E.m_bNoRelease).Span(2).Row();
  F.Check(kRegenerate, "ステージクリアごとに仲間屋にいる\nキャラを再生成", &E.m_bRegenerate).Span(2).Row();

  F.Column();
  m_Chara.DeclareStatus(F, E);
  m_Learn.Declare(F, "習得スキル", &E.m_vecLearnSkill, 0, 999, LearnSkillRowText, kListSecondFree, 8);
  F.EndColumns();
}

void DLG_DBFRIEND::OnReady() {
  cCharaPage::OnReady();
  m_Learn.OnReady();
}

void DLG_DBFRIEND::OnFormCommand(unsigned id, unsigned code) {
  const auto edit = [this](cLearnSkill& learn) { return EditRecord<DLG_LEARNSKILL>(learn, m_hWnd.data()); };
  if (m_Learn.OnCommand(id, code, edit)) m_List.CommitRow();
  cCharaPage::OnFormCommand(id, code);
}
