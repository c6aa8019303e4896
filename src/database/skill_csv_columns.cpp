#include "database/skill_csv_columns.h"

#include <array>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "platform/diagnostics.h"
#include "platform/main_window_link.h"
#include "database/csv_numbers.h"
#include "database/label_table.h"
#include "platform/cp932.h"
#include "project/system_labels.h"

namespace {

template <auto Member>
void* FieldOf(cSkill& skill) {
  return &(skill.*Member);
}

template <auto Array, std::size_t I>
void* ElementOf(cSkill& skill) {
  return &(skill.*Array)[I];
}

template <auto Array, std::size_t... I>
std::array<CSV_FIELD, kStatusCount> ElementFields(std::index_sequence<I...>) {
  return {&ElementOf<Array, I>...};
}

template <class T>
constexpr int CsvTypeOf() {
  if constexpr (std::is_same_v<T, std::int32_t>) return CSVVALUETYPE_INT;
  if constexpr (std::is_same_v<T, std::int16_t>) return CSVVALUETYPE_SHORT;
  if constexpr (std::is_same_v<T, std::int8_t>) return CSVVALUETYPE_CHAR;
  if constexpr (std::is_same_v<T, std::uint8_t>) return CSVVALUETYPE_BYTE;
  if constexpr (std::is_same_v<T, std::uint32_t>) return CSVVALUETYPE_UINT;
  if constexpr (std::is_same_v<T, double>) return CSVVALUETYPE_DOUBLE;
  if constexpr (std::is_same_v<T, float>) return CSVVALUETYPE_FLOAT;
  return CSVVALUETYPE_STRING;
}

// A numeric column whose type follows from the field, so that the two cannot disagree.
template <auto Member>
cCsvColumn Number(const char* name, const char* hint, double min, double max, int decimals = 0) {
  using T = std::remove_reference_t<decltype(std::declval<cSkill&>().*Member)>;
  static_assert(CsvTypeOf<T>() != 0, "a numeric column needs a numeric field");
  return CsvNumberColumn(name, hint, CsvTypeOf<T>(), min, max, decimals, &FieldOf<Member>);
}

cCsvColumn Declared(const std::string& name, const std::string& hint, int type) {
  cCsvColumn column;
  column.m_strName = Cp932FromLiteral(name.c_str());
  column.m_strHint = Cp932FromLiteral(hint.c_str());
  column.m_nType = type;
  return column;
}

}  // namespace

bool IsCsvFloatType(int type) { return type == CSVVALUETYPE_DOUBLE || type == CSVVALUETYPE_FLOAT; }

cCsvColumn CsvStringColumn(const std::string& name, const std::string& hint, int maxChars, CSV_FIELD field) {
  cCsvColumn column = Declared(name, hint, CSVVALUETYPE_STRING);
  column.m_nMaxChars = maxChars;
  column.m_pField = field;
  column.m_strLimit = CsvIntText(maxChars) + CP932_TEXT("文字まで");
  return column;
}

cCsvColumn CsvNumberColumn(const std::string& name, const std::string& hint, int type, double min, double max,
                           int decimals, CSV_FIELD field) {
  if (type <= CSVVALUETYPE_STRING || type >= CSVVALUETYPE_MEMO) {
    ReportBox("%s", CP932_TEXT("不正な指定：CSVVALUETYPE_STRING || CSVVALUETYPE_MEMO").c_str());
    DestroyMainWindow();
    return CsvMemoColumn(name, hint);
  }
  cCsvColumn column = Declared(name, hint, type);
  column.m_dMin = min;
  column.m_dMax = max;
  column.m_nDecimals = decimals;
  column.m_pField = field;
  const bool floating = IsCsvFloatType(type);
  auto bound = [&](double value) {
    return floating ? CsvFixedText(value, decimals) : CsvIntText(static_cast<long long>(value));
  };
  column.m_strLimit = bound(min) + CP932_TEXT("～") + bound(max);
  return column;
}

cCsvColumn CsvMemoColumn(const std::string& name, const std::string& hint) {
  return Declared(name, hint, CSVVALUETYPE_MEMO);
}

void BuildSkillColumns(VECTOR_CLASS<cCsvColumn>& columns) {
  columns.clear();
  columns.push_back(CsvStringColumn("スキル名_d", "", 8, &FieldOf<&cSkill::m_strName>));
  columns.push_back(CsvStringColumn("説明_d", "", 38, &FieldOf<&cSkill::m_strDesc>));
  columns.push_back(Number<&cSkill::m_nPrice>("値段_d", "0なら売却不可", 0, 999999));
  columns.push_back(Number<&cSkill::m_nStockMax>("最大所持数_d", "", 0, 99));
  columns.push_back(Number<&cSkill::m_nCostSP>("消費SP_d", "", 0, 999));
  columns.push_back(Number<&cSkill::m_nUseLimit>("回数制限_d", "", 0, 99));
  columns.push_back(Number<&cSkill::m_nNeedSense>("必要センス_d", "", 0, 99));
  columns.push_back(Number<&cSkill::m_nLearnRate>("習得確率(%)_d", "", 0, 100));
  columns.push_back(Number<&cSkill::m_dLearnRateSense>("センスによる習得確率の補正（＋センス×N）_d", "", 0, 100, 1));
  columns.push_back(Number<&cSkill::m_nLearnLvMin>("習得LV（最小）_d", "", 0, 100));
  columns.push_back(Number<&cSkill::m_nLearnLvMax>("習得LV（最大）_d", "", 0, 100));
  columns.push_back(Number<&cSkill::m_dLearnLvSense>("センスによる習得LVの補正（－センス×N）_d", "", 0, 100, 1));
  columns.push_back(Number<&cSkill::m_dSortNumber>("ソート番号_d", "店用", 0, 999.99, 2));
  columns.push_back(Number<&cSkill::m_nRankMin>("ランク（最小）_d", "", 0, 999));
  columns.push_back(Number<&cSkill::m_nRankMax>("ランク（最大）_d", "", 0, 999));
  columns.push_back(Number<&cSkill::m_nRarity>("レアリティ_d", "", 0, 100));
  columns.push_back(Number<&cSkill::m_nElemValue>("属性値_d", "防具タイプのみ有効", -999, 999));
  columns.push_back(Number<&cSkill::m_nHitRate>("命中率(%)_d", "", 0, 999));
  columns.push_back(Number<&cSkill::m_nEffectValue>("効果値_d", "", -999999, 999999));
  columns.push_back(Number<&cSkill::m_nDamageRate>("ダメージ修正(%)_d", "", 0, 999));
  columns.push_back(Number<&cSkill::m_nCriticalRate>("必殺率(%)_d", "", 0, 999));

  struct SubEffectSet {
    const char* prefix;
    const char* hint;  // on the set's first column
    std::array<CSV_FIELD, kStatusCount> fields;
  };
  const SubEffectSet sets[] = {
      {"A-", "ここから「サブ効果A」枠。スキルの対象への追加効果（武器防具タイプなら自分）",
       ElementFields<&cSkill::m_anSubEffectA>(std::make_index_sequence<kStatusCount>())},
      {"B-", "ここから「サブ効果B」枠。オート戦闘で「装備」時のみ上昇",
       ElementFields<&cSkill::m_anSubEffectB>(std::make_index_sequence<kStatusCount>())},
  };
  for (const SubEffectSet& set : sets) {
    for (int s = 0; s < kStatusCount; ++s) {
      columns.push_back(CsvNumberColumn(std::string(set.prefix) + LabelOf(kSystemStatusLabels, s) + "_d",
                                        s == 0 ? set.hint : "", CSVVALUETYPE_INT, -999999, 999999, 0,
                                        set.fields[static_cast<std::size_t>(s)]));
    }
  }

  columns.push_back(Number<&cSkill::m_nScale>("拡大率(%)_d", "", 1, 900));
  columns.push_back(Number<&cSkill::m_byAlpha>("透明度_d", "255で完全に不透明", 0, 255));
  columns.push_back(CsvMemoColumn("Memo", "ただのメモ欄。ゲームにもエディターにも表示されない。"));
}

const VECTOR_CLASS<cCsvColumn>& SkillColumns() {
  static const VECTOR_CLASS<cCsvColumn> columns = [] {
    VECTOR_CLASS<cCsvColumn> built;
    BuildSkillColumns(built);
    return built;
  }();
  return columns;
}
