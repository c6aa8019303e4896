#include "forms/database/sense_form.h"

#include "database/class_rows.h"
#include "forms/database/value_list.h"

DLG_SENSE::DLG_SENSE(const VECTOR_CLASS<std::int32_t>& source, int list, QWidget* parent)
    : cRecordForm(parent, "センス", source) {
  cFormTable& F = Table();
  F.List(kList, "センス", m_List,
         ValueListInit(&m_Work, 0, true, [list](int categ, int value) { return CategValueRowText(list, categ, value); }),
         kListNoEdit, 10)
      .LabelAbove()
      .Span(2)
      .Row();
  F.Skip().Button(kEdit, "編集").Row();
  F.OkCancel();
}

void DLG_SENSE::OnFormCommand(unsigned id, unsigned code) {
  if (id == kEdit || (id == kList && code == kNotifyDblClk)) EditListValue(*this, m_List, 0, 99, "センス");
}
