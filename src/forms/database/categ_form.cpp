#include "forms/database/categ_form.h"

#include "forms/database/symbol_reference.h"

DLG_CATEG::DLG_CATEG(const cCateg& source, QWidget* parent) : cRecordForm(parent, "カテゴリー", source) {
  cFormTable& F = Table();
  F.EditStr(kName, "名称", &m_Work.m_strName, WideLine(1)).Row();
  F.Combo(kSymbol, "シンボル", &m_Work.m_nSymbol, &SymbolNumberLabels());
  F.Picture(kSymbolPreview, "シンボル", 32, 32).Row();
  F.EditVal(kRate, "レート", &m_Work.m_dRate, 0.0, 99.9, 0.1, kRateSpin).Row();
  F.Text("☆ランダムセンス上昇用。このレート×分配された\nランダムセンス上昇値が実際のセンス上昇値。\n0なら分配対象外", 3).Row();
  F.OkCancel();
}

void DLG_CATEG::OnReady() {
  if (auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview)) DrawSymbolPreview(*preview, m_Work.m_nSymbol);
}

void DLG_CATEG::OnFormCommand(unsigned id, unsigned) {
  if (id != kSymbol) return;
  if (auto* preview = GetCtrl<CTRL_PICTURE_CLASS>(kSymbolPreview)) DrawSymbolPreview(*preview, Value(kSymbol));
}
