// The forms of the actions on the map: wait, map cursor, warp, enemy groups and copies,
// allies placed, start positions and map chips.

#include "event/event_act_info.h"
#include "forms/event/event_act_layout.h"

namespace {

constexpr cActCtrl kWait[] = {
    Edit(0, "実行時間(1/10s)", 0, 999),
};

constexpr cActCtrl kMapCursor[] = {
    Enum(0, "対象", CURSORTARGET).Span(3), NewRow(),
    Ref(1, "位置グループ", eActList::kGroupPos).Span(3), NewRow(),
    Edit(2, "X", 0, 64), Edit(3, "Y", 0, 64),
};

bool MapCursorApplies(int s, const cActSlots& I) {
  if (s == 1) return I[0] == 2;
  if (s == 2 || s == 3) return I[0] == 3;
  return true;
}

constexpr cActCtrl kWarp[] = {
    Enum(0, "対象", WARPTARGET).Span(3), NewRow(),
    Edit(1, "X", 0, 64), Edit(2, "Y", 0, 64), NewRow(),
    Check(3, "ワープ先にキャラがいたら、ワープは失敗").Span(4),
};

constexpr cActCtrl kEnemyGroup[] = {
    Edit(0, "敵グループ", 1, 100), Enum(1, "", GROUPSWITCH).As("敵グループのON/OFF"), NewRow(),
    Check(2, "出現先にキャラが存在するなら出現しない").Span(3),
};

constexpr cActCtrl kCopyEnemy[] = {
    Edit(0, "敵グループ", 1, 100), NewRow(),
    Check(1, "コピー元の敵が出現しているかコピー元のマスにキャラが存在するなら、コピーは失敗").Span(2), NewRow(),
    Check(2, "残りHP、残りSP、スキルの残り使用回数もコピー").Span(2), NewRow(),
    Note("※コピー先の敵のグループは無効（なし）になる", 2),
};

constexpr cActCtrl kPutFriend[] = {
    Ref(0, "味方", eActList::kFriend).Span(3), NewRow(),
    Check(1, "パーティーから味方を配置").Span(4), NewRow(),
    Note("※パーティーに指定した味方がいない場合は失敗する\n※複数の味方が該当する場合、先頭に近い味方が優先される", 4),
    NewRow(),
    Check(2, "このイベントの位置に配置").Span(4), NewRow(),
    Edit(3, "X", 0, 64), Edit(4, "Y", 0, 64), NewRow(),
    Check(5, "ステージクリア後にパーティーに加える").Span(4), NewRow(),
    Note("※発生条件のタイミングが「ステージ開始前」の場合のみ有効", 4),
};

bool PutFriendApplies(int s, const cActSlots& I) {
  if (s == 3 || s == 4) return I[2] == 0;
  if (s == 5) return I[1] == 0;
  return true;
}

constexpr cActCtrl kStartPos[] = {
    Ref(0, "初期位置", eActList::kGroupPos), NewRow(),
    Note("※イベント発生条件のタイミングが「ステージ開始前」の場合に限り有効", 2),
};

constexpr cActCtrl kMapChip[] = {
    Enum(0, "", CHIPAREA).As("範囲"), Ref(4, "位置グループ", eActList::kGroupPos), NewRow(),
    Note("の"), Enum(1, "", CHIPWHICH).As("変更するマップチップ"),
    Ref(2, "", eActList::kLand).As("変更前のマップチップ"), NewRow(),
    Note("を"), Ref(3, "", eActList::kLand).As("変更後のマップチップ"), Note("に変更"),
};

bool MapChipApplies(int s, const cActSlots& I) {
  if (s == 2) return I[1] == 1;
  if (s == 4) return I[0] == 6;
  return true;
}

constexpr cActKindForm kForms[] = {
    {EACT_WAIT, "DLG_EACT_WAIT", "ウエイト", kWait},
    {EACT_MAPCURSOR, "DLG_EACT_SETMAPCURSOR", "マップカーソルの移動", kMapCursor, &MapCursorApplies},
    {EACT_WARP, "DLG_EACT_WARP", "ワープ", kWarp},
    {EACT_ENEMYGROUP, "DLG_EACT_CREASEENEMYGROUP", "敵グループの操作", kEnemyGroup},
    {EACT_COPYENEMY, "DLG_EACT_COPYENEMY", "敵のコピー", kCopyEnemy},
    {EACT_PUTFRIEND, "DLG_EACT_PUTFRIEND", "味方の配置", kPutFriend, &PutFriendApplies},
    {EACT_STARTPOS, "DLG_EACT_CHANGESTARTPOS", "初期位置の変更", kStartPos},
    {EACT_MAPCHIP, "DLG_EACT_CHANGEMAPCHIP", "マップチップの変更", kMapChip, &MapChipApplies},
};

}  // namespace

std::span<const cActKindForm> MapActForms() { return kForms; }
