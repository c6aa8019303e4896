// The forms of the actions on skills and allies: a skill learnt, stock, shop goods,
// random skills, the ally shop and the party.

#include "event/event_act_info.h"
#include "forms/event/event_act_layout.h"

namespace {

constexpr cActCtrl kLearnSkill[] = {
    Note("イベント発生条件の対象が　　※敵は習得不可", 3), NewRow(),
    SkillListOf(0, "").As("スキルリスト"), SkillOf(1, "").As("スキル"), Note("を習得"),
};

constexpr cActCtrl kStock[] = {
    SkillListOf(0, "").As("スキルリスト"), SkillOf(1, "").As("スキル"), Edit(2, "を +", -99, 99),
};

constexpr cActCtrl kShopGoods[] = {
    SkillListOf(0, "").As("スキルリスト"), SkillOf(1, "").As("スキル").Span(3), NewRow(),
    Check(2, "在庫は無限"), Edit(3, "在庫＋", 1, 99),
};

bool ShopGoodsApplies(int s, const cActSlots& I) { return s != 3 || I[2] == 0; }

constexpr cActCtrl kRandomSkill[] = {
    Ref(0, "スキルリスト", eActList::kSkillList).Span(3), NewRow(),
    Edit(1, "ランク", 0, 999), Edit(2, "～", 0, 999), NewRow(),
    Enum(3, "", RANDOMSKILLMODE).As("獲得の仕方"), Edit(4, "回数", 1, 999),
};

// The ally shop and the party: how many of one ally to add or take away.
constexpr cActCtrl kAllyCount[] = {
    Ref(0, "", eActList::kFriend).As("味方"), Edit(1, "を +", -99, 99),
};

constexpr cActKindForm kForms[] = {
    {EACT_LEARNSKILL, "DLG_EACT_ACQUIRESKILL", "スキルの習得", kLearnSkill},
    {EACT_STOCK, "DLG_EACT_CREASESTOCK", "ストックの操作", kStock},
    {EACT_SHOPGOODS, "DLG_EACT_ADDSHOPSKILL", "商品の追加", kShopGoods, &ShopGoodsApplies},
    {EACT_RANDOMSKILL, "DLG_EACT_GETRANDOMSKILL", "スキルをランダムに獲得", kRandomSkill},
    {EACT_FRIENDSHOP, "DLG_EACT_CHANGEFRIENDSHOP", "仲間屋の変更", kAllyCount},
    {EACT_PARTY, "DLG_EACT_CHANGEPARTY", "パーティーの変更", kAllyCount},
};

}  // namespace

std::span<const cActKindForm> PartyActForms() { return kForms; }
