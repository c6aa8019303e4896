#include "event/event_act_info.h"

#include <vector>

#include "platform/cp932.h"

const std::array<cEventActInfo, kEventActKinds> EVENT_ACT_INFO = {{
    {"", 0, 0, 0},
    {"メッセージ", 26, 1, 0},
    {"ピクチャー", 18, 0, 0},
    {"ウエイト", 1, 0, 0},
    {"マップカーソルの移動", 4, 0, 0},
    {"ワープ", 4, 0, 0},
    {"敵グループの操作", 3, 0, 0},
    {"敵のコピー", 3, 0, 0},
    {"味方の配置", 6, 0, 0},
    {"初期位置の変更", 1, 0, 0},
    {"イベント変数の操作", 2, 0, 0},
    {"コモン変数の操作", 3, 0, 1},
    {"マップチップの変更", 5, 0, 0},
    {"イベントのグラフィックを変更", 1, 0, 0},
    {"効果音の再生", 1, 0, 0},
    {"BGMの変更", 3, 0, 1},
    {"ステータスの操作", 16, 0, 1},
    {"所持金の操作", 1, 0, 1},
    {"スキルの習得", 2, 0, 0},
    {"ストックの操作", 3, 0, 1},
    {"商品の追加", 4, 0, 1},
    {"スキルをランダムに獲得", 5, 0, 1},
    {"仲間屋の変更", 2, 0, 1},
    {"パーティーの変更", 2, 0, 1},
    {"ステージクリア", 0, 0, 0},
    {"ゲームオーバー", 0, 0, 0},
    {"引き返す", 0, 0, 0},
}};

const cEventActInfo& EventActInfoOf(int kind) {
  if (kind < 0 || kind >= kEventActKinds) return EVENT_ACT_INFO[0];
  return EVENT_ACT_INFO[static_cast<std::size_t>(kind)];
}

const std::string& EventActLabelText(int kind) {
  static const std::vector<std::string> labels = [] {
    std::vector<std::string> all;
    for (const cEventActInfo& info : EVENT_ACT_INFO) all.push_back(Cp932FromLiteral(info.label));
    return all;
  }();
  return labels[static_cast<std::size_t>(&EventActInfoOf(kind) - EVENT_ACT_INFO.data())];
}

namespace {

// What the form of each kind writes into a new action; slots it does not name are 0.
const std::vector<int> kDefaultInts[kEventActKinds] = {
    {},
    {3, 0, 0, 0, 0, 1, 1, 0, 30, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 255, 1, 100},
    {1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 1, 1, 100, 0, 30, 0},
    {10},
    {0, 1, 0, 0},
    {0, 0, 0, 1},
    {1, 1, 0},
    {1, 1, 0},
    {1, 1, 1, 0, 0, 0},
    {1},
    {0, 0},
    {1, 0, 0},
    {0, 0, 0, 0, 1},
    {0},
    {1},
    {2, 0, 1},
    {0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0},
    {0},
    {0, 1},
    {0, 1, 1},
    {0, 1, 1, 1},
    {0, 0, 0, 0, 1},
    {1, 0},
    {1, 1},
    {},
    {},
    {},
};

}  // namespace

VECTOR_CLASS<int> EventActDefaultInts(int kind) {
  const std::vector<int>& ints = kDefaultInts[&EventActInfoOf(kind) - EVENT_ACT_INFO.data()];
  return VECTOR_CLASS<int>(ints.begin(), ints.end());
}
