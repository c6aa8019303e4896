// The one-line texts of actions and pages, and the number format behind them.

#include <climits>

#include "event/event_summary.h"
#include "event/format_number.h"
#include "event/event_test_support.h"

namespace {

class EventSummaryTest : public EventTest {};

std::string RowText(const cEventAct& act) {
  std::string out;
  EventActRowText(out, 0, act);
  return out;
}

}  // namespace

TEST(FormatNumberTest, PadsAndSigns) {
  for (auto [value, width, zeroPad, showPlus, text] :
       {std::tuple{7, 3, 1, 0, "007"}, {7, 3, 0, 0, "  7"}, {-5, 3, 1, 0, "-005"}, {-5, 3, 0, 1, "-  5"},
        {0, 3, 0, 0, "  0"}, {0, 0, 0, 1, "+0"}, {12, 4, 1, 1, "+0012"}, {1234, 3, 1, 0, "1234"}, {5, -2, 1, 0, "5"},
        {INT_MIN, 0, 0, 1, "-2147483648"}}) {
    EXPECT_EQ(FormatNumber(value, width, zeroPad, showPlus), text) << value << " " << width;
  }
}

TEST_F(EventSummaryTest, EveryKindReadsAsItsLabelAndItsSlots) {
  struct Case {
    int kind;
    std::vector<int> ints;
    const char* text;
  } cases[] = {
      {0, {}, ""},
      {1, std::vector<int>(16, 0), "メッセージ : やあ\n元気？"},  // the line feed goes in unchanged
      {1, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, "メッセージ : メッセージの消去"},
      {2, {1, 0, 0, 0}, "ピクチャー : 花"},
      {2, {1, 1, 3, 1}, "ピクチャー : ピクチャーの消去"},
      {3, {10}, "ウエイト : 10"},
      {4, {2, 1, 0, 0}, "マップカーソルの移動 : 位置グループで指定"},
      {5, {0, 3, 4, 1}, "ワープ : (3,4)"},
      {6, {5, 1, 0}, "敵グループの操作 : グループ 5 を ON"},
      {6, {5, 0, 0}, "敵グループの操作 : グループ 5 を OFF"},
      {7, {2, 1, 0}, "敵のコピー : グループ 2"},
      {8, {1, 1, 1, 5, 6, 0}, "味方の配置 : アリス"},
      {8, {1, 1, 0, 5, 6, 0}, "味方の配置 : アリス (5,6)"},
      {9, {1}, "初期位置の変更"},
      {10, {1, -3}, "イベント変数の操作 : イベント変数 ＋ -3"},
      {11, {5, 3, 2}, "コモン変数の操作 : コモン変数「所持数」× 2"},
      {12, {6, 1, 2, 3, 1}, "マップチップの変更 : 位置グループ内 の 草原 を 森 に変更"},
      {12, {0, 0, 2, 3, 1}, "マップチップの変更 : マップ全範囲内 の 全て を 森 に変更"},
      {13, {7}, "イベントのグラフィックを変更 : 7 番に変更"},
      {14, {1}, "効果音の再生 : 剣"},
      {15, {2, 2, 1}, "BGMの変更 : ステージ のBGMを 戦い に変更"},
      {16, {0, 0, 1, 0, 1, 1, 0, 50, 0, 0, 0, 1, 0, 0, 0, 0}, "ステータスの操作： キャラ の SP を ＋ 50"},
      {16, {1, 0, 5, 0, 0, 0, 1, 0, 3, 9, 0, 1, 0, 0, 1, 0}, "ステータスの操作： 「005 所持数」を ＝ 3～9％"},
      {16, {1, 1, 1, 0, 0, 0, 3, 0, 0, 0, 1, 1, 0, 0, 0, 0}, "ステータスの操作： イベント変数 を ＝ イベント変数"},
      {16, {0, 0, 1, 0, 0, 3, 2, 0, 0, 0, 0, 1, 0, 1, 0, 0}, "ステータスの操作： キャラ の HP を × キャラ の SP"},
      {16, {0, 0, 1, 0, 0, 6, 3, 0, 0, 0, 0, 5, 0, 0, 0, 0}, "ステータスの操作： キャラ の HP を X ％ 「005 所持数」"},
      {17, {0}, "所持金の操作 : +0"},
      {17, {-20}, "所持金の操作 : -20"},
      {18, {1, 1}, "スキルの習得 : 炎"},
      {19, {1, 1, -2}, "ストックの操作 : 炎 -2"},
      {20, {1, 1, 1, 5}, "商品の追加 : 炎"},
      {20, {1, 1, 0, 5}, "商品の追加 : 炎 +5"},
      {21, {1, 2, 4, 1, 3}, "スキルをランダムに獲得 : 魔法 ランク 2～4 の 在庫を増加 回数3"},
      {22, {1, 0}, "仲間屋の変更 : アリス +0"},
      {23, {1, 1}, "パーティーの変更 : アリス +1"},
      {24, {}, "ステージクリア"},
      {25, {}, "ゲームオーバー"},
      {26, {}, "引き返す"},
      // Stale references and short slots give empty parts, never a bad index.
      {2, {50, 0, 0, 0}, "ピクチャー : "},
      {14, {9}, "効果音の再生 : "},
      {18, {7, 9}, "スキルの習得 : "},
      {16, {0, 0, 1, 0, 9}, "ステータスの操作： キャラ の  を ＝ 0"},
      {1, {}, "メッセージ : "},
      {27, {1}, ""},
  };
  for (const Case& c : cases) {
    cEventAct act = MakeAct(c.kind, c.ints);
    if (c.kind == 1 && c.ints.size() > 0) act.m_vecStr.push_back(CP932_TEXT("やあ\n元気？"));
    EXPECT_EQ(RowText(act), Cp932FromLiteral(c.text)) << c.text;
  }
}

TEST_F(EventSummaryTest, RowsAppendToWhatTheListHolds) {
  std::string out = "1 ";
  EventActRowText(out, 3, MakeAct(EACT_WAIT, {10}));
  EXPECT_EQ(out, "1 " + Cp932FromLiteral("ウエイト : 10"));
  cEventPage page;
  page.m_vecAct.resize(3);
  out = "2 ";
  EventPageRowText(out, 0, page);
  EXPECT_EQ(out, "2 " + Cp932FromLiteral("ｱｸｼｮﾝ×3"));  // half-width katakana: one byte each
}
