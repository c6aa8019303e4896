#pragma once
// PROP_DATABASE, "データベースの設定": the whole rule set of the game in one sheet of 25
// pages. The pages work on copies; the sheet's apply commits them all, twice, in a fixed
// order, and writes every database file.

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "forms/table_page.h"
#include "toolkit/prop_class.h"

// One row of the sheet's table of pages, in tab order.
struct cDatabasePageRow {
  const char* caption;  // UTF-8
  int pad;              // U+3000 on each side, to widen the tab
  std::unique_ptr<cDatabasePage> (*make)();  // null while the program has no such page
};
constexpr int kDatabasePageCount = 25;
std::span<const cDatabasePageRow> DatabasePageRows();
// The tab's text: the caption padded with U+3000 on both sides.
std::string DatabaseTabText(const cDatabasePageRow& row);
// The rows of the table in the order the apply commits them: the system pages, terrain,
// skill lists, compatibility, classes, allies, enemies, then the rest in tab order.
std::span<const int> DatabaseCommitOrder();

class PROP_DATABASE : public PROP_CLASS {
 public:
  PROP_DATABASE();
  // The page of row `row` of the table; null for a page the program does not have yet.
  cDatabasePage* PageOfRow(int row) const;
  // The pages' edits into the tables, and the files written.
  void ApplyPages() override;
  void OnEnd() override;

  // Runs when the sheet ends, whichever way: what its opener does on its return.
  std::function<void()> m_onEnd;

 private:
  std::array<cDatabasePage*, kDatabasePageCount> m_aPage{};
};

// The commits of every page, twice, in the commit order; every page then stale; then
// the database files. A file that cannot be written is named to the user, so that no
// edit is lost without a word. 1 when every file was written.
int SaveAllDatabase(PROP_DATABASE& sheet);

// Opens the sheet over `parent`; `onEnd` runs when it closes. The sheet, which the
// window registry owns; null when it is open already.
PROP_DATABASE* OpenDatabaseSheet(QWidget* parent, std::function<void()> onEnd);

// Whether `page` is the page in front of the open sheet, which is on the screen.
bool DatabasePageInFront(const DLG_CLASS* page);
