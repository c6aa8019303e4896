#include "forms/database/db_help_page.h"

#include "forms/database/symbol_reference.h"
#include "project/project_globals.h"
#include "toolkit/list_init.h"

std::string HelpPageRowText(const cEdHelpText& page) {
  const std::size_t end = page.m_strText.find_first_of("\r\n");
  return page.m_strText.substr(0, end);
}

namespace {

// The symbol combo's preview follows the number chosen.
void ShowSymbol(DLG_CLASS& form, unsigned picture, int n) {
  if (auto* preview = form.GetCtrl<CTRL_PICTURE_CLASS>(picture)) DrawSymbolPreview(*preview, n);
}

}  // namespace

DLG_TEXT::DLG_TEXT(const cEdHelpText& source, QWidget* parent) : cRecordForm(parent, "本文", source) {
  cFormTable& F = Table();
  F.EditStr(kText, "本文", &m_Work.m_strText, {.nLimit = kLines * kLineChars * 2, .nLineLen = kLineChars, .nMaxLines = kLines, .bWide = 1})
      .Lines(kLines)
      .LabelAbove()
      .Span(3)
      .Row();
  F.Combo(kSymbol, "参照：#P", &m_nSymbol, &SymbolNumberLabels());
  F.Picture(kSymbolPreview, "参照：#P", 32, 32).Row();
  F.Text("☆「#P0～X.」でシンボル画像の表示", 3).Row();
  F.OkCancel();
}

void DLG_TEXT::OnReady() { ShowSymbol(*this, kSymbolPreview, m_nSymbol); }

void DLG_TEXT::OnFormCommand(unsigned id, unsigned) {
  if (id == kSymbol) ShowSymbol(*this, kSymbolPreview, Value(kSymbol));
}

DLG_DB_HELP::DLG_DB_HELP() : cTablePage(g_Database.m_vecHelp, "ヘルプ", {0, 1, 999}) {
  cEdHelp& E = m_Edit;
  const cListInit<cEdHelpText> pages = NumberedRows<cEdHelpText>(
      &E.m_vecText, 1, 999, [](std::string& out, int, const cEdHelpText& page) { out = HelpPageRowText(page); });

  cFormTable& F = Table();
  F.Column();
  MainList(kList, "ヘルプ", [](const cEdHelp& h) { return h.m_strTitle; }, 20);
  F.Column();
  F.EditStr(kParent, "親見出し", &E.m_strParent, WideLine(30)).Span(3).Row();
  F.EditStr(kTitle, "見出し", &E.m_strTitle, WideLine(30)).Span(3).Row();
  F.List(kPages, "本文", m_Pages, pages, kListSecondFree, 12).LabelAbove().Span(4).Row();
  F.Button(kInsert, "挿入").Button(kEdit, "編集").Button(kDelete, "削除").Row();
  F.Combo(kSymbol, "参照：#P", &m_nSymbol, &SymbolNumberLabels());
  F.Picture(kSymbolPreview, "参照：#P", 32, 32).Row();
  F.EndColumns();
}

void DLG_DB_HELP::OnReady() {
  cTablePage::OnReady();
  ShowSymbol(*this, kSymbolPreview, m_nSymbol);
}

void DLG_DB_HELP::EditPage(bool inserted) {
  const int row = m_Pages.GetSel();
  if (!m_Pages.IsReal(row)) return;
  if (EditRecord<DLG_TEXT>(m_Edit.m_vecText[row], m_hWnd.data()) != 1) {
    if (inserted) m_Pages.Delete(row, 0);
    return;
  }
  m_Pages.Redraw();
  m_List.CommitRow();
}

void DLG_DB_HELP::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kInsert:
      if (m_Pages.Insert()) EditPage(true);
      break;
    case kEdit: EditPage(false); break;
    case kPages:
      if (code == kNotifyDblClk) EditPage(false);
      break;
    case kDelete:
      m_Pages.Delete(-1, 0);
      m_List.CommitRow();
      break;
    case kSymbol: ShowSymbol(*this, kSymbolPreview, Value(kSymbol)); break;
    default: break;
  }
  cTablePage::OnFormCommand(id, code);
}
