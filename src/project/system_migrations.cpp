// Old settings files brought into the current rows. The lists grew at the front and in
// the middle over the versions, so the steps run oldest first: a row opened by an early
// step is pushed on by every later step that opens a row before it, and ends where the
// current format keeps it.

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "platform/cp932.h"
#include "project/system.h"
#include "project/system_labels.h"

namespace {

// Moves the rows from `row` on one place towards the end, losing the last one, and
// gives `row` a fresh element. A list too short to have the row grows to hold it.
template <class T>
T& OpenRow(VECTOR_CLASS<T>& rows, std::size_t row) {
  if (row < rows.size()) {
    std::move_backward(rows.begin() + static_cast<std::ptrdiff_t>(row), rows.end() - 1, rows.end());
  } else {
    rows.resize(row + 1);
  }
  rows[row] = T();
  return rows[row];
}

// Row `row`; a list too short to have it grows to hold it.
template <class T>
T& RowAt(VECTOR_CLASS<T>& rows, std::size_t row) {
  if (rows.size() <= row) rows.resize(row + 1);
  return rows[row];
}

void OpenTerms(cSystem& s, std::initializer_list<std::pair<std::size_t, const std::string&>> terms) {
  for (const auto& [row, text] : terms) OpenRow(s.m_vecTerm, row).m_strText = text;
}

// Row `row` of the "System.ini" keys gets its key and default value.
void SetIniRow(cSystem& s, std::size_t row) {
  static const VECTOR_CLASS<cIni> kDefaults = DefaultIniRows();
  cIni& ini = RowAt(s.m_vecIni, row);
  ini.m_strKey = kDefaults[row].m_strKey;
  ini.m_nDefault = kDefaults[row].m_nDefault;
}

struct cMigration {
  std::uint32_t below;  // files of a version below this take the step
  void (*apply)(cSystem&);
};

const cMigration kMigrations[] = {
    {13, [](cSystem& s) { OpenTerms(s, {{0, CP932_TEXT("威力")}}); }},
    {22, [](cSystem& s) { s.m_vecSoundFile.resize(kSystemSoundCount); }},
    {23, [](cSystem& s) { s.m_vecBgmLoop.assign(kSystemBgmCount, 1); }},
    {31,
     [](cSystem& s) {
       s.m_vecTerm.resize(kSystemTermCount);
       OpenTerms(s, {{3, CP932_TEXT("ストック")},
                     {4, CP932_TEXT("リザーブ")},
                     {5, CP932_TEXT("セーブデータ")},
                     {9, CP932_TEXT("ＡＳキー：キャラの切替")},
                     {11, CP932_TEXT("完全に復元させないと忘れられません！")},
                     {12, CP932_TEXT("このスキルは忘れられません！")},
                     {13, CP932_TEXT("ストックが一杯です！")}});
     }},
    {33,
     [](cSystem& s) {
       s.m_nExpMin = 1;
       s.m_nExpMax = 9999;
     }},
    {43,
     [](cSystem& s) {
       OpenTerms(s, {{38, CP932_TEXT("リトライする")},
                     {39, CP932_TEXT("やっぱりやめる")},
                     {40, CP932_TEXT("クリアする")},
                     {41, CP932_TEXT("やっぱりやめる")},
                     {42, CP932_TEXT("何ターン目にする？")}});
     }},
    {55, [](cSystem& s) { OpenTerms(s, {{20, CP932_TEXT("在庫")}}); }},
    {63, [](cSystem& s) { RowAt(s.m_vecPartyMenu, 10).m_strName = CP932_TEXT("コンフィグ"); }},
    {70,
     [](cSystem& s) {
       s.m_nGrowTimeMax = 2;
       s.m_nGrowUnit = 2;
       s.m_nGrowTimeMin = -2;
       s.m_bRandomChange = 1;
       s.m_nChangeValue = 1;
       s.m_nChangeCount = 10;
     }},
    {72,
     [](cSystem& s) {
       OpenTerms(s, {{44, CP932_TEXT("終了する")}, {45, CP932_TEXT("やっぱりやめる")}});
       s.m_vecTestMenu.resize(5);
       OpenRow(s.m_vecTestMenu, 4).m_strName = CP932_TEXT("ゲーム終了");
     }},
    {76, [](cSystem& s) { OpenTerms(s, {{22, CP932_TEXT("同キャラ対戦はできません！")}}); }},
    {91, [](cSystem& s) { s.m_nFont = kRecommendedFont; }},
    {92,
     [](cSystem& s) {
       s.m_vecBgm.resize(kSystemBgmCount);
       s.m_vecBgmLoop.resize(kSystemBgmCount);
     }},
    {93,
     [](cSystem& s) {
       s.m_vecIni.resize(kSystemIniCount);
       for (std::size_t row = 0; row <= 4; ++row) SetIniRow(s, row);
     }},
    {97,
     [](cSystem& s) {
       s.m_vecSoundFile.resize(kSystemSoundCount);
       OpenRow(s.m_vecSoundFile, 13);
     }},
    {105, [](cSystem& s) { s.m_vecParam.resize(kSystemParamCount); }},
    {115, [](cSystem& s) { OpenTerms(s, {{10, CP932_TEXT("Ｆキー：位置交換")}}); }},
    {117, [](cSystem& s) { OpenTerms(s, {{3, CP932_TEXT("行動回数")}}); }},
    {119, [](cSystem& s) { s.m_bTwoSkillLists = 1; }},
    {122, [](cSystem& s) { s.m_nSenseUnit = 1; }},
    {123, [](cSystem& s) { SetIniRow(s, 5); }},
    {125,
     [](cSystem& s) {
       s.m_vecTerm.resize(kSystemTermCount);
       OpenTerms(s, {{2, CP932_TEXT("必殺率")}});
     }},
    {128,
     [](cSystem& s) {
       s.m_vecSoundFile.resize(kSystemSoundCount);
       OpenRow(s.m_vecSoundFile, 7);
     }},
    {212,
     [](cSystem& s) {
       s.m_vecPartyMenu.resize(13);
       cCmd& help = OpenRow(s.m_vecPartyMenu, 11);
       help.m_strName = CP932_TEXT("ヘルプ");
       help.m_bEnabled = 0;
     }},
    {241,
     [](cSystem& s) {
       s.m_vecIni.resize(kSystemIniCount);
       SetIniRow(s, 6);
     }},
};

}  // namespace

void cSystem::Migrate(std::uint32_t fileVersion) {
  if (fileVersion >= kCurrentFormatVersion) return;
  m_vecTerm.resize(kSystemTermCount);
  for (const cMigration& step : kMigrations) {
    if (fileVersion < step.below) step.apply(*this);
  }
}
