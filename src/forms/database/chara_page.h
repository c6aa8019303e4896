#pragma once
// What the ally and enemy pages share: the controls of the character part of their
// row, the boxes of names of other tables, and the two preview columns "ゲーム値" and
// "参考値", which follow every change of the row.

#include <array>
#include <string>

#include "database/chara.h"
#include "event/event_names.h"
#include "forms/table_page.h"

// "%s %s" of each row's number and name, from row `first` on: the rows of a box that
// chooses a record of `table`.
template <class Row>
void NumberedNames(VECTOR_CLASS<std::string>& out, const VECTOR_CLASS<Row>& table, int first) {
  out.clear();
  for (int row = first; row < table.Count(); ++row) out.push_back(NumberedLabel(row, table[row].m_strName));
}

// The character controls of a page, over the cChara part of its edit record.
class cCharaControls {
 public:
  enum : unsigned {
    kName = 1300, kRandomName, kNameFile, kClass, kLevel, kLevelSpin, kCompati, kRandomGrowth, kGrowthTime,
    kGrowthTimeSpin,
    kInit = 1320,       // nine number edits, one per status
    kFinal = 1330,      // the same for the final values
    kGame = 1340,       // nine texts: what the game makes of the row
    kReference = 1350,  // nine texts: what the class alone would give
  };

  // Name, random name with its file, class, level and compatibility type, one a row.
  void DeclareProfile(cFormTable& F, cChara& E);
  // Random growth and the growth time, which random growth overrides.
  void DeclareGrowth(cFormTable& F, cChara& E);
  // The group of the nine statuses: initial and final values and the two columns.
  void DeclareStatus(cFormTable& F, cChara& E);

  // The boxes' names from the applied tables; on a bound page, into the boxes.
  void FillNames(DLG_CLASS& page);
  // The two columns for `working`, empty while its class row is 0 or past the table.
  void ShowPreview(DLG_CLASS& page, const cChara& working);

 private:
  VECTOR_CLASS<std::string> m_vecClassNames, m_vecCompatiNames;
};

// A page over a table of characters, R being cFriend or cEnemy.
template <class R>
class cCharaPage : public cTablePage<R> {
 public:
  // Both character tables have the reserved row 0 and 1..999 rows.
  cCharaPage(VECTOR_CLASS<R>& table, const char* title) : cTablePage<R>(table, title, {1, 1, 999}) {
    m_Chara.FillNames(*this);
  }

 protected:
  // The first two columns: the main list `listId` labelled `title`, then the profile
  // and the growth, below which the page goes on.
  void DeclareLeading(unsigned listId, const char* title) {
    cFormTable& F = this->Table();
    F.Column();
    this->MainList(listId, title, [](const R& c) { return c.m_strName; }, 20);
    F.Column();
    m_Chara.DeclareProfile(F, this->m_Edit);
    m_Chara.DeclareGrowth(F, this->m_Edit);
  }

  void OnStale() override { m_Chara.FillNames(*this); }
  // Another row, or a refreshed page: the columns follow.
  void UpdateAllExcept(unsigned id) override {
    cTablePage<R>::UpdateAllExcept(id);
    m_Chara.ShowPreview(*this, this->m_Edit);
  }
  // A change of a control has reached the edit record.
  void ApplyControls() override {
    cTablePage<R>::ApplyControls();
    m_Chara.ShowPreview(*this, this->m_Edit);
  }

  cCharaControls m_Chara;
};
