#include "toolkit/form_table.h"

#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <algorithm>
#include <set>

#include "toolkit/dlg_class.h"
#include "toolkit/form_layout.h"

cFormTable::cFormTable() = default;
cFormTable::~cFormTable() = default;

std::string AccessibleText(const std::string& label) {
  std::string out;
  for (std::size_t i = 0; i < label.size(); ++i) {
    // "(&D)" goes whole; a lone "&" marks the next character; "&&" is one "&".
    if (label.compare(i, 2, "(&") == 0 && i + 3 < label.size() && label[i + 3] == ')') {
      i += 3;
      continue;
    }
    if (label[i] == '&') {
      if (i + 1 < label.size() && label[i + 1] == '&') out += '&';
      ++i;
      if (i < label.size() && label[i] != '&') out += label[i];
      continue;
    }
    if (label[i] != '\n') out += label[i];
  }
  while (!out.empty() && (out.back() == ' ' || out.back() == ':')) out.pop_back();
  return out;
}

int cFormTable::DigitsOf(double value) {
  int digits = value < 0 ? 2 : 1;
  for (double v = value < 0 ? -value : value; v >= 10; v /= 10) ++digits;
  return digits;
}

cFormTable::cEntry& cFormTable::Last() { return m_vecEntry[static_cast<std::size_t>(m_nLastControl)]; }

cFormTable& cFormTable::Add(eFormWidget widget, unsigned id, const char* text, std::unique_ptr<CTRL_CLASS> ctrl,
                            unsigned partnerId) {
  cEntry e;
  e.widget = widget;
  e.id = static_cast<std::uint16_t>(id);
  e.partnerId = static_cast<std::uint16_t>(partnerId);
  e.text = text != nullptr ? text : "";
  e.ctrl = std::move(ctrl);
  m_vecEntry.push_back(std::move(e));
  m_nLastControl = static_cast<int>(m_vecEntry.size()) - 1;
  return *this;
}

cFormTable& cFormTable::AddPlace(eKind kind, const char* text, int span) {
  cEntry e;
  e.kind = kind;
  e.text = text != nullptr ? text : "";
  e.span = span;
  m_vecEntry.push_back(std::move(e));
  return *this;
}

cFormTable& cFormTable::Row() { return AddPlace(eKind::kRow); }
cFormTable& cFormTable::Group(const char* title, int span) { return AddPlace(eKind::kGroup, title, span); }
cFormTable& cFormTable::EndGroup() { return AddPlace(eKind::kEndGroup); }
cFormTable& cFormTable::Column() { return AddPlace(eKind::kColumn); }
cFormTable& cFormTable::EndColumns() { return AddPlace(eKind::kEndColumns); }
cFormTable& cFormTable::Text(const char* text, int span) { return AddPlace(eKind::kText, text, span); }
cFormTable& cFormTable::Skip(int span) { return AddPlace(eKind::kSkip, "", span); }
cFormTable& cFormTable::OkCancel() { return AddPlace(eKind::kOkCancel); }
cFormTable& cFormTable::OkOnly() { return AddPlace(eKind::kOkOnly); }

cFormTable& cFormTable::NoMargins() {
  m_bNoMargins = true;
  return *this;
}

cFormTable& cFormTable::EditStr(unsigned id, const char* label, std::string* field, cEditStrInit init) {
  auto c = std::make_unique<CTRL_EDITSTR_CLASS>();
  init.nId = static_cast<std::uint16_t>(id);
  init.pStr = field;
  c->m_Init = init;
  Add(eFormWidget::kEditStr, id, label, std::move(c));
  Last().nLines = std::max(1, init.nMaxLines);
  return *this;
}

cFormTable& cFormTable::Combo(unsigned id, const char* label, int* field, const char* const* labels, int offset) {
  auto c = std::make_unique<CTRL_COMBO_CLASS<int>>();
  c->m_Init = {.nId = static_cast<std::uint16_t>(id), .pData = field, .pLabels = labels, .nOffset = offset};
  return Add(eFormWidget::kCombo, id, label, std::move(c));
}

cFormTable& cFormTable::Combo(unsigned id, const char* label, int* field, const VECTOR_CLASS<std::string>* labels,
                              const VECTOR_CLASS<int>* values, int offset) {
  auto c = std::make_unique<CTRL_COMBO_CLASS<int>>();
  c->m_Init = {.nId = static_cast<std::uint16_t>(id), .pData = field, .pLabelVector = labels, .nOffset = offset,
               .pValues = values};
  return Add(eFormWidget::kCombo, id, label, std::move(c));
}

cFormTable& cFormTable::Label(unsigned id, const char* text) {
  auto c = std::make_unique<CTRL_LABEL_CLASS>();
  c->m_Init = {static_cast<std::uint16_t>(id)};
  return Add(eFormWidget::kLabel, id, text, std::move(c));
}

cFormTable& cFormTable::Button(unsigned id, const char* text) {
  auto c = std::make_unique<CTRL_BUTTON_CLASS>();
  c->m_Init = {static_cast<std::uint16_t>(id)};
  return Add(eFormWidget::kButton, id, text, std::move(c));
}

cFormTable& cFormTable::Picture(unsigned id, const char* name, int width, int height) {
  auto c = std::make_unique<CTRL_PICTURE_CLASS>();
  c->m_Init = {.nId = static_cast<std::uint16_t>(id), .nWidth = width, .nHeight = height};
  Add(eFormWidget::kPicture, id, name, std::move(c));
  Last().width = width;
  Last().height = height;
  return *this;
}

cFormTable& cFormTable::View(unsigned id, const char* name, std::function<QWidget*(QWidget*)> make) {
  Add(eFormWidget::kView, id, name, nullptr);
  Last().makeView = std::move(make);
  return *this;
}

cFormTable& cFormTable::Span(int cells) {
  Last().span = cells;
  return *this;
}

cFormTable& cFormTable::LabelAbove() {
  Last().labelAbove = true;
  return *this;
}

cFormTable& cFormTable::Lines(int lines) {
  Last().nLines = lines;
  return *this;
}

cFormTable& cFormTable::EnableIf(std::function<bool()> rule) {
  Last().enabled = std::move(rule);
  return *this;
}

cFormTable& cFormTable::EnableBy(unsigned id) {
  cEntry& e = Last();
  e.ruleIds.push_back(id);
  e.enabled = nullptr;
  return *this;
}

cFormTable& cFormTable::DisableBy(unsigned id) {
  cEntry& e = Last();
  // A disabling control is kept as the complement of its id, told apart in UpdateEnable.
  e.ruleIds.push_back(id | 0x80000000u);
  e.enabled = nullptr;
  return *this;
}

cFormTable& cFormTable::EnableWhen(unsigned id, int value) {
  cEntry& e = Last();
  e.valueRules.emplace_back(id, value);
  e.enabled = nullptr;
  return *this;
}

cFormTable& cFormTable::Named(const char* name) {
  Last().name = name != nullptr ? name : "";
  return *this;
}

cFormTable& cFormTable::FixedPitch(int columns) {
  Last().fixedColumns = columns;
  return *this;
}

cFormTable& cFormTable::KeepWithoutRow() {
  if (auto* combo = dynamic_cast<CTRL_COMBO_CLASS<int>*>(Last().ctrl.get())) combo->m_Init.bKeepWithoutRow = 1;
  return *this;
}

// --- layout ---

namespace {

// The Japanese gothic whose half-width characters are exactly half as wide as its
// double-byte ones, so that rows padded by bytes line up.
void UseFixedPitch(QWidget* w, int columns) {
  QFont font(QStringLiteral("IPAGothic"));
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSizeF(w->font().pointSizeF());
  w->setFont(font);
  const int scroll = w->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  w->setMinimumWidth(QFontMetrics(font).horizontalAdvance(QLatin1Char('0')) * columns + scroll + 12);
}

}  // namespace

void cFormTable::PutControl(cFormLayout& L, const cEntry& e, const std::string& fallbackName) const {
  const bool ownText = e.widget == eFormWidget::kCheck || e.widget == eFormWidget::kButton ||
                       e.widget == eFormWidget::kLabel;
  QLabel* buddy = nullptr;
  if (!ownText && !e.text.empty() && e.widget != eFormWidget::kPicture && e.widget != eFormWidget::kView) {
    L.Text(e.text.c_str(), e.labelAbove ? e.span : 1);
    buddy = qobject_cast<QLabel*>(L.Last());
    if (e.labelAbove) L.Row();
  }
  const char* text = e.text.c_str();
  switch (e.widget) {
    case eFormWidget::kEditVal: {
      L.EditVal(e.id, e.partnerId, e.span);
      // As wide as its widest number, so that a column of them neither clips nor sprawls.
      QWidget* edit = L.Last();
      const int width = edit->fontMetrics().horizontalAdvance(QString(e.nDigits + 1, QLatin1Char('0'))) + 14;
      edit->setMinimumWidth(width);
      edit->setMaximumWidth(width + 8);
      break;
    }
    case eFormWidget::kEditStr: L.EditStr(e.id, e.nLines, e.span); break;
    case eFormWidget::kCheck: L.Check(e.id, text, e.span); break;
    case eFormWidget::kCombo: L.Combo(e.id, e.span); break;
    case eFormWidget::kSlider:
      L.Slider(e.id, e.span);
      // The mirror of a slider is its own number box in the next cell, named as the slider.
      // It shows the position and takes no typing: the slider alone writes the field.
      if (e.partnerId != 0) {
        L.Last()->setAccessibleName(QString::fromStdString(AccessibleText(!e.text.empty() ? e.text : fallbackName)));
        L.EditVal(e.partnerId);
        if (auto* mirror = qobject_cast<QLineEdit*>(L.Last())) mirror->setReadOnly(true);
      }
      break;
    case eFormWidget::kLabel: L.Label(e.id, text, e.span); break;
    case eFormWidget::kButton: L.Button(e.id, text, e.span); break;
    case eFormWidget::kPicture: L.Picture(e.id, e.width, e.height, e.span); break;
    case eFormWidget::kList: L.List(e.id, e.nLines, e.span); break;
    case eFormWidget::kView: L.Widget(e.id, e.makeView, e.span); break;
  }
  QWidget* made = L.Last();
  if (made == nullptr) return;
  if (buddy != nullptr) buddy->setBuddy(made);
  if (e.fixedColumns > 0) UseFixedPitch(made, e.fixedColumns);
  const std::string& name = !e.name.empty() ? e.name : !e.text.empty() ? e.text : fallbackName;
  made->setAccessibleName(QString::fromStdString(AccessibleText(name)));
}

void cFormTable::Layout(cFormLayout& L, const std::string& formTitle) const {
  if (m_bNoMargins) L.NoMargins();
  std::string group;
  for (const cEntry& e : m_vecEntry) {
    switch (e.kind) {
      case eKind::kControl: PutControl(L, e, group.empty() ? formTitle : group); break;
      case eKind::kRow: L.Row(); break;
      case eKind::kGroup:
        L.Group(e.text.c_str(), e.span);
        group = e.text;
        break;
      case eKind::kEndGroup:
        L.EndGroup();
        group.clear();
        break;
      case eKind::kColumn:
        L.Column();
        group.clear();
        break;
      case eKind::kEndColumns:
        L.EndColumns();
        group.clear();
        break;
      case eKind::kText: L.Text(e.text.c_str(), e.span); break;
      case eKind::kSkip: L.Skip(e.span); break;
      case eKind::kOkCancel: L.OkCancel(true); break;
      case eKind::kOkOnly: L.OkCancel(false); break;
    }
  }
}

// --- binding and enabling ---

namespace {

// The order in which a form binds its controls by type.
int BindRank(eFormWidget w) {
  switch (w) {
    case eFormWidget::kEditVal: return 0;
    case eFormWidget::kEditStr: return 1;
    case eFormWidget::kCheck: return 2;
    case eFormWidget::kCombo: return 3;
    case eFormWidget::kSlider: return 4;
    case eFormWidget::kLabel: return 5;
    case eFormWidget::kButton: return 6;
    case eFormWidget::kPicture: return 7;
    case eFormWidget::kList: return 8;
    case eFormWidget::kView: return 9;
  }
  return 9;
}

}  // namespace

bool cFormTable::Bind(DLG_CLASS& form) const {
  std::vector<const cEntry*> order;
  for (const cEntry& e : m_vecEntry)
    if (e.kind == eKind::kControl) order.push_back(&e);
  std::stable_sort(order.begin(), order.end(),
                   [](const cEntry* a, const cEntry* b) { return BindRank(a->widget) < BindRank(b->widget); });
  bool all = true;
  for (const cEntry* e : order) {
    if (e->bindList) {
      all = e->bindList(form) && all;
    } else if (e->ctrl != nullptr) {
      if (e->ctrl->Bind(&form)) form.m_vecCtrl.push_back(e->ctrl.get());
      else all = false;
    }
  }
  return all;
}

void cFormTable::UpdateEnable(DLG_CLASS& form) const {
  for (const cEntry& e : m_vecEntry) {
    if (e.kind != eKind::kControl || (!e.enabled && e.ruleIds.empty() && e.valueRules.empty())) continue;
    bool on = true;
    if (e.enabled) on = e.enabled();
    for (unsigned rule : e.ruleIds) {
      const bool set = form.Value(rule & 0x7FFFFFFFu) != 0;
      on = on && ((rule & 0x80000000u) ? !set : set);
    }
    for (const auto& [id, value] : e.valueRules) on = on && form.Value(id) == value;
    form.EnableCtrl(e.id, on);
  }
}

std::vector<unsigned> cFormTable::Ids() const {
  std::vector<unsigned> ids;
  for (const cEntry& e : m_vecEntry) {
    if (e.kind == eKind::kOkCancel || e.kind == eKind::kOkOnly) ids.push_back(kIdOk);
    if (e.kind == eKind::kOkCancel) ids.push_back(kIdCancel);
    if (e.kind != eKind::kControl) continue;
    if (e.id != 0) ids.push_back(e.id);
    if (e.partnerId != 0) ids.push_back(e.partnerId);
  }
  return ids;
}

std::vector<std::string> cFormTable::Problems() const {
  std::vector<std::string> problems;
  std::set<unsigned> seen;
  for (unsigned id : Ids())
    if (!seen.insert(id).second) problems.push_back("control " + std::to_string(id) + " is declared twice");
  for (const cEntry& e : m_vecEntry) {
    if (e.kind == eKind::kControl && e.id == 0)
      problems.push_back("a control of \"" + e.text + "\" has no id");
    std::vector<unsigned> read;
    for (unsigned rule : e.ruleIds) read.push_back(rule & 0x7FFFFFFFu);
    for (const auto& rule : e.valueRules) read.push_back(rule.first);
    for (unsigned id : read)
      if (!seen.count(id))
        problems.push_back("control " + std::to_string(e.id) + " is enabled by " + std::to_string(id) +
                           ", which the form does not declare");
    if (auto* edit = dynamic_cast<const CTRL_EDITSTR_CLASS*>(e.ctrl.get()); edit != nullptr && !ReadsItsLines(edit->m_Init))
      problems.push_back("control " + std::to_string(e.id) + " reads back less than its lines hold");
  }
  return problems;
}
