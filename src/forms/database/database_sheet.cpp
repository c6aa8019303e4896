#include "forms/database/database_sheet.h"

#include <vector>

#include "forms/database/db_anim_pages.h"
#include "forms/database/db_class_page.h"
#include "forms/database/db_compati_page.h"
#include "forms/database/db_help_page.h"
#include "forms/database/db_land_page.h"
#include "forms/database/db_media_pages.h"
#include "forms/database/db_skill_list_page.h"
#include "forms/database/db_small_pages.h"
#include "forms/database/db_system_pages.h"
#include "forms/database/db_enemy_page.h"
#include "forms/database/db_friend_page.h"
#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "project/project_files.h"

namespace {

template <class Page>
std::unique_ptr<cDatabasePage> Make() {
  return std::make_unique<Page>();
}

template <class Page, const cMediaPageKind& kKind>
std::unique_ptr<cDatabasePage> MakeMedia() {
  return std::make_unique<Page>(kKind);
}

constexpr cDatabasePageRow kPages[kDatabasePageCount] = {
    {"クラス", 2, Make<DLG_DBCLASS>},
    {"味方キャラ", 1, Make<DLG_DBFRIEND>},
    {"敵キャラ", 1, Make<DLG_DBENEMY>},
    {"スキル", 2, Make<DLG_DBSKILLLIST>},
    {"相性タイプ", 0, Make<DLG_DBSKILLTYPE>},
    {"地形", 2, Make<DLG_DBLAND>},
    {"パーティー変数", 0, Make<DLG_DB_PTVAL>},
    {"キャラアニメ", 0, Make<DLG_DB_CHARAANIM>},
    {"エフェクトアニメ", 0, Make<DLG_DB_EFFECTANIM>},
    {"ピクチャー", 0, MakeMedia<DLG_DB_PICTURE, kPicturePage>},
    {"バック", 1, Make<DLG_DB_BACK>},
    {"効果音", 1, MakeMedia<DLG_DB_SOUND, kSoundPage>},
    {"BGM", 1, MakeMedia<DLG_DB_BGM, kBgmPage>},
    {"ヘルプ", 1, Make<DLG_DB_HELP>},
    {"ワールドチップ", 0, Make<DLG_DBWORLDCHIP>},
    {"システム1", 0, Make<DLG_DBSYSTEM>},
    {"システム2", 0, Make<DLG_DBSYSTEM_2>},
    {"システム3", 0, Make<DLG_DBSYSTEM_3>},
    {"システム4", 0, Make<DLG_DBSYSTEM_4>},
    {"システム5", 0, Make<DLG_DBSYSTEM_5>},
    {"システム6", 0, Make<DLG_DBSYSTEM_6>},
    {"システム7", 0, Make<DLG_DBSYSTEM_7>},
    {"システム8", 0, Make<DLG_DBSYSTEM_8>},
    {"システム9", 0, Make<DLG_DBSYSTEM_9>},
    {"システム10", 0, Make<DLG_DBSYSTEM_10>},
};

constexpr int kCommitOrder[kDatabasePageCount] = {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 5, 3, 4,
                                                  0,  1,  2,  6,  7,  8,  9,  10, 11, 12, 13, 14};

PROP_DATABASE* g_pOpenSheet = nullptr;

}  // namespace

std::span<const cDatabasePageRow> DatabasePageRows() { return kPages; }
std::span<const int> DatabaseCommitOrder() { return kCommitOrder; }

std::string DatabaseTabText(const cDatabasePageRow& row) {
  std::string pad;
  for (int i = 0; i < row.pad; ++i) pad += "\u3000";
  return pad + row.caption + pad;
}

PROP_DATABASE::PROP_DATABASE() {
  for (int row = 0; row < kDatabasePageCount; ++row) {
    if (kPages[row].make == nullptr) continue;
    m_aPage[static_cast<std::size_t>(row)] = kPages[row].make().release();
    AddPage(m_aPage[static_cast<std::size_t>(row)], DatabaseTabText(kPages[row]).c_str());
  }
}

cDatabasePage* PROP_DATABASE::PageOfRow(int row) const {
  return row >= 0 && row < kDatabasePageCount ? m_aPage[static_cast<std::size_t>(row)] : nullptr;
}

void PROP_DATABASE::ApplyPages() {
  PROP_CLASS::ApplyPages();
  SaveAllDatabase(*this);
}

void PROP_DATABASE::OnEnd() {
  if (g_pOpenSheet == this) g_pOpenSheet = nullptr;
  if (m_onEnd) m_onEnd();
}

int SaveAllDatabase(PROP_DATABASE& sheet) {
  // A repair that reads another table sees it committed on the second round.
  for (int round = 0; round < 2; ++round)
    for (int row : kCommitOrder)
      if (cDatabasePage* page = sheet.PageOfRow(row)) page->CommitPage();
  for (int row = 0; row < kDatabasePageCount; ++row)
    if (cDatabasePage* page = sheet.PageOfRow(row)) page->m_bStale = true;
  std::vector<std::string> unsaved;
  if (SaveAllDatabaseFiles(&unsaved)) return 1;
  std::string names;
  for (const std::string& path : unsaved) names += path + "\n";
  MesBox(sheet.m_hWnd.data(), names + CP932_TEXT("を保存できませんでした。\n他のプログラムが使用していないか、書き込みできるかを確かめて下さい。"),
         CP932_TEXT("保存の失敗"), MB_OK);
  return 0;
}

PROP_DATABASE* OpenDatabaseSheet(QWidget* parent, std::function<void()> onEnd) {
  if (g_pOpenSheet != nullptr) return nullptr;
  auto* sheet = new PROP_DATABASE;
  sheet->m_onEnd = std::move(onEnd);
  if (!sheet->Create(parent, "データベースの設定")) {
    delete sheet;
    return nullptr;
  }
  g_pOpenSheet = sheet;  // the window registry owns it from here
  return sheet;
}

bool DatabasePageInFront(const DLG_CLASS* page) {
  return g_pOpenSheet != nullptr && g_pOpenSheet->IsOpen() && g_pOpenSheet->m_hWnd->isVisible() &&
         g_pOpenSheet->CurrentPage() == page;
}
