// The forms of the actions that show or play something: message, picture, the event's
// graphic, sound effect and music.

#include "event/event_act_info.h"
#include "forms/event/event_act_layout.h"

namespace {

constexpr cActCtrl kMessage[] = {
    Column(),
    TextSlot("テキスト", 29, 30).Lines(12).Span(4), NewRow(),
    SymbolHelp(), NewRow(),
    VarHelp(), NewRow(),
    Note("☆「#P0～X.」でシンボル画像の表示\n"
         "☆「#C1～999.」でコモン変数の表示　オプション：最大桁数 z p\n"
         "　例）#C1.　#C1_3z.（3桁、0で埋める）　#C1_3zp.（＋も表示）\n"
         "☆テキスト変数：#TURN. #CHARA. #LEADER. #TARGET. #ACTCHARA.\n"
         "　#BTLFRIEND. #BTLENEMY. #BEFORE. #AFTER. #CHANGE. #SKILL.",
         4), NewRow(),
    Group("ピクチャー"),
    Check(16, "ピクチャーを表示する"), Ref(17, "", eActList::kPicture).Span(2).As("ピクチャー"), NewRow(),
    Enum(18, "表示位置", MSGPICPOS).Span(2).As("ピクチャーの表示位置"), NewRow(),
    Edit(19, "表示位置のズレX、Y(dot)", -640, 640), Edit(20, "", -480, 480).As("表示位置のズレY(dot)"), NewRow(),
    Check(21, "左右反転"), Check(22, "上下反転"), Edit(23, "透明度(0～255)", 0, 255), NewRow(),
    Check(24, "画面からはみ出ないように自動調整").Span(2).As("ピクチャーを画面からはみ出ないように自動調整"),
    Edit(25, "表示倍率(%)", 1, 1000),
    EndGroup(),
    Column(),
    Group("ウインドウ"),
    Enum(0, "表示位置", SCREENPOS), NewRow(),
    Edit(1, "座標X(chip)", -20, 20), NewRow(),
    Edit(2, "座標Y(chip)", -15, 15), NewRow(),
    Edit(3, "表示位置のズレX(dot)", -640, 640), NewRow(),
    Edit(4, "表示位置のズレY(dot)", -480, 480), NewRow(),
    Check(5, "画面からはみ出ないように自動調整").Span(2), NewRow(),
    Check(6, "画面に追従する（スクロールしても位置が変わらない）").Span(2), NewRow(),
    Enum(7, "表示時間", DISPLAYTIME), NewRow(),
    Edit(8, "時間(1/10s)", 1, 9999), NewRow(),
    Check(9, "Aキーで表示/非表示の切替").Span(2), NewRow(),
    Check(10, "ウインドウを表示する").Span(2), NewRow(),
    Enum(11, "ウインドウの幅", MSGWINWIDTH), NewRow(),
    Check(12, "自動で更新（変数の変化に対応）").Span(2), NewRow(),
    EndGroup(),
    Group("メッセージID"),
    Check(13, "メッセージID"), Edit(14, "", 0, 999).As("メッセージID"), NewRow(),
    Check(15, "メッセージの消去(メッセージIDが非設定なら消去は失敗)").Span(2), NewRow(),
    Note("☆同一IDのメッセージと入れ替える", 2),
    EndGroup(),
    EndColumns(),
};

// Erasing by id leaves nothing else to say; the rest follows the position, the time
// and the picture chosen.
bool MessageApplies(int s, const cActSlots& I) {
  if (I[15] != 0) return s == 13 || s == 14 || s == 15;
  if (s == 1 || s == 2) return I[0] == 9 || I[0] == 10;
  if (s == 11) return I[10] != 0;
  if (s == 8) return I[7] == 2;
  if (s == 6 || s == 9) return I[7] == 1;
  if (s >= 17 && s <= 25 && I[16] == 0) return false;
  if (s == 19 || s == 20) return I[18] == 8;
  return true;
}

constexpr cActCtrl kPicture[] = {
    Ref(0, "ピクチャー", eActList::kPicture).Span(3), NewRow(),
    Check(1, "ピクチャーID"), Edit(2, "", 0, 999).As("ピクチャーID"), NewRow(),
    Check(3, "ピクチャーの消去(ピクチャーIDが非設定なら消去は失敗)").Span(4), NewRow(),
    Note("☆同一IDのピクチャーと入替", 4), NewRow(),
    Column(),
    Enum(4, "表示位置", SCREENPOS), NewRow(),
    Edit(5, "座標X(chip)", -20, 20), NewRow(),
    Edit(6, "座標Y(chip)", -15, 15), NewRow(),
    Edit(7, "表示位置のズレX(dot)", -640, 640), NewRow(),
    Edit(8, "表示位置のズレY(dot)", -480, 480), NewRow(),
    Check(12, "画面からはみ出ないように自動調整").Span(2), NewRow(),
    Check(13, "画面に追従する（スクロールしても位置が変わらない）").Span(2),
    Column(),
    Check(9, "左右反転"), Check(10, "上下反転"), NewRow(),
    Edit(11, "透明度(0～255)", 0, 255), NewRow(),
    Edit(14, "表示倍率(%)", 1, 1000), NewRow(),
    Enum(15, "表示時間", DISPLAYTIME), NewRow(),
    Edit(16, "時間(1/10s)", 1, 9999), NewRow(),
    Check(17, "Aキーで表示/非表示の切替").Span(2),
    EndColumns(),
};

bool PictureApplies(int s, const cActSlots& I) {
  if (I[3] != 0) return s == 1 || s == 2 || s == 3;
  if (s == 5 || s == 6) return I[4] == 9 || I[4] == 10;
  if (s == 16) return I[15] == 2;
  if (s == 13 || s == 17) return I[15] == 1;
  return true;
}

constexpr cActCtrl kEventGraphic[] = {
    Edit(0, "グラフィック", 0, 511), GraphicOf(0),
};

constexpr cActCtrl kSound[] = {
    Ref(0, "効果音", eActList::kSound).Flags(kActPlaysSound),
};

constexpr cActCtrl kBgm[] = {
    Enum(0, "シーン", BGMSCENE), NewRow(),
    Note("※タイトルとオプションは変更不可", 2), NewRow(),
    Ref(1, "BGM", eActList::kBgm), PlayBgm(1), NewRow(),
    Check(2, "ループ再生").Span(2),
};

bool BgmApplies(int s, const cActSlots& I) { return s != 2 || I[0] == 2; }

constexpr cActKindForm kForms[] = {
    {EACT_MESSAGE, "DLG_EACT_MESSAGE", "メッセージの表示", kMessage, &MessageApplies},
    {EACT_PICTURE, "DLG_EACT_PICTURE", "ピクチャーの表示", kPicture, &PictureApplies},
    {EACT_EVENTGRAPHIC, "DLG_EACT_CHANGEEVENTPIC", "イベントのグラフィックを変更", kEventGraphic},
    {EACT_SOUND, "DLG_EACT_PLAYSOUND", "効果音の再生", kSound},
    {EACT_BGM, "DLG_EACT_CHANGEBGM", "BGMの変更", kBgm, &BgmApplies},
};

}  // namespace

std::span<const cActKindForm> ShowActForms() { return kForms; }
