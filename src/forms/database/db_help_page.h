#pragma once
// DLG_DB_HELP, page 13 of the database sheet: the help topics of the game, each with
// pages of text; and DLG_TEXT, "本文", one page.

#include "database/help.h"
#include "forms/table_page.h"
#include "toolkit/record_form.h"

class DLG_TEXT : public cRecordForm<cEdHelpText> {
 public:
  enum : unsigned { kText = 1601, kSymbol, kSymbolPreview };
  static constexpr int kLines = 29, kLineChars = 39;
  DLG_TEXT(const cEdHelpText& source, QWidget* parent = nullptr);

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  int m_nSymbol = 0;  // the symbol looked up; stored nowhere
};

class DLG_DB_HELP : public cTablePage<cEdHelp> {
 public:
  enum : unsigned { kList = 1610, kParent, kTitle, kPages, kInsert, kEdit, kDelete, kSymbol, kSymbolPreview };
  DLG_DB_HELP();

 protected:
  void OnReady() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  // The page of the selected row through DLG_TEXT; one just inserted goes on Cancel.
  void EditPage(bool inserted);
  CTRL_LIST_CLASS<cEdHelpText> m_Pages;
  int m_nSymbol = 0;
};

// The row of a text page: its first line.
std::string HelpPageRowText(const cEdHelpText& page);
