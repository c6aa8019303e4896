#pragma once
// A form's controls as one table. Each control is declared once, in the form's
// constructor: its kind, id, label, the field it binds, its range or labels, its place
// in the layout and, where the form has one, its enabling rule. The window's layout,
// the binding, UpdateAll, ApplyAll, FindChanged, the enabling and OK and Cancel all
// come from that one table, so a form adds only what is its own.
//
// A whole form, as every form of the editor is written:
//
//   class DLG_PRICE : public cRecordForm<cSkill> {
//    public:
//     enum : unsigned { kName = 1040, kPrice = 1010, kPriceSpin = 1011, kUnlimited = 1020, kKind = 1030 };
//     explicit DLG_PRICE(const cSkill& source) : cRecordForm(140, nullptr, source, "価格") {
//       cFormTable& F = Table();
//       F.Group("基本");
//       F.EditStr(kName, "名前", &m_Work.m_strName, {.nLimit = 21, .nLineLen = 20, .bWide = 1}).Row();
//       F.EditVal(kPrice, "価格", &m_Work.m_nPrice, 0, 99999, 10, kPriceSpin).DisableBy(kUnlimited);
//       F.Check(kUnlimited, "無制限", &m_Work.m_bUnlimited).Row();
//       F.Combo(kKind, "種類", &m_Work.m_nKind, kKindLabels).Row();
//       F.EndGroup().OkCancel();
//     }
//   };
//   // The caller: EditRecord<DLG_PRICE>(skill) copies the edits back on OK.
//
// Labels are UTF-8 and only go to the screen. A label beside a control is its buddy,
// and the label's text without its access key is the control's accessible name; a
// control without a label of its own is named by its group's title.

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "toolkit/ctrls.h"
#include "toolkit/list_ctrl.h"

class DLG_CLASS;
class cFormLayout;

// What a declared control is on the screen.
enum class eFormWidget : std::uint8_t {
  kEditVal, kEditStr, kCheck, kCombo, kSlider, kLabel, kButton, kPicture, kList, kView,
};

class cFormTable {
 public:
  cFormTable();
  ~cFormTable();
  cFormTable(const cFormTable&) = delete;
  cFormTable& operator=(const cFormTable&) = delete;

  // --- places ---
  // The next cell starts a new row.
  cFormTable& Row();
  // A titled box that takes the rest of the row, or `span` cells of it beside what
  // stands there; its cells are a grid of their own.
  cFormTable& Group(const char* title, int span = 0);
  cFormTable& EndGroup();
  // Columns side by side from here: each call starts the next column at the right of
  // the last; EndColumns, or the OK row, closes them.
  cFormTable& Column();
  cFormTable& EndColumns();
  // A fixed text without an id, and an empty cell.
  cFormTable& Text(const char* text, int span = 1);
  cFormTable& Skip(int span = 1);
  // The buttons OK (1006) and Cancel (1007) at the right of a row of their own; or OK
  // alone, for a form that cannot be declined.
  cFormTable& OkCancel();
  cFormTable& OkOnly();
  // The controls fill the form to its edges, with no margin around them.
  cFormTable& NoMargins();

  // --- controls; each declares one id ---
  template <class T>
  cFormTable& EditVal(unsigned id, const char* label, T* field, T min, T max, T step = 1, unsigned spinId = 0) {
    auto c = std::make_unique<CTRL_EDITVAL_CLASS<T>>();
    c->m_Init = {static_cast<std::uint16_t>(id), field, min, max, static_cast<std::uint16_t>(spinId), step};
    Add(eFormWidget::kEditVal, id, label, std::move(c), spinId);
    Last().nDigits = std::max(DigitsOf(static_cast<double>(min)), DigitsOf(static_cast<double>(max))) +
                     (std::is_floating_point_v<T> ? 2 : 0);  // the point and a decimal
    return *this;
  }
  // `init` gives the limits; its id and field are these.
  cFormTable& EditStr(unsigned id, const char* label, std::string* field, cEditStrInit init = {});
  template <class T>
  cFormTable& Check(unsigned id, const char* text, T* field) {
    auto c = std::make_unique<CTRL_CHECK_CLASS<T>>();
    c->m_Init = {static_cast<std::uint16_t>(id), field};
    return Add(eFormWidget::kCheck, id, text, std::move(c));
  }
  // Rows from a static table that ends with an empty text; value = row + offset.
  cFormTable& Combo(unsigned id, const char* label, int* field, const char* const* labels, int offset = 0);
  // Rows built at run time; with `values`, value = values[row].
  cFormTable& Combo(unsigned id, const char* label, int* field, const VECTOR_CLASS<std::string>* labels,
                    const VECTOR_CLASS<int>* values = nullptr, int offset = 0);
  template <class T>
  cFormTable& Slider(unsigned id, const char* label, T* field, T min, T max, T page, T step = 1, unsigned editId = 0) {
    auto c = std::make_unique<CTRL_SLIDER_CLASS<T>>();
    c->m_Init = {static_cast<std::uint16_t>(id), field, min, max, page, step, static_cast<std::uint16_t>(editId)};
    return Add(eFormWidget::kSlider, id, label, std::move(c), editId);
  }
  // A text the program sets.
  cFormTable& Label(unsigned id, const char* text = "");
  cFormTable& Button(unsigned id, const char* text);
  // A surface the form draws into; `name` is what a screen reader says of it.
  cFormTable& Picture(unsigned id, const char* name, int width, int height);
  // A list over a record vector; the form keeps the list object, which it drives.
  template <class T>
  cFormTable& List(unsigned id, const char* label, CTRL_LIST_CLASS<T>& list, cListInit<T> init,
                   eListIdSet set = kListFirstFree, int rows = 8) {
    init.nId = static_cast<std::uint16_t>(id);
    Add(eFormWidget::kList, id, label, nullptr);
    Last().nLines = rows;
    Last().bindList = [&list, init, set](DLG_CLASS& form) { return BindListOf(form, list, init, set); };
    return *this;
  }
  // A drawing window of the form's own, made by `make` inside the form at its place.
  cFormTable& View(unsigned id, const char* name, std::function<QWidget*(QWidget* parent)> make);

  // --- modifiers of the control declared last ---
  cFormTable& Span(int cells);
  // The label stands above the control, in a row of its own.
  cFormTable& LabelAbove();
  // Lines of a text box, rows of a list.
  cFormTable& Lines(int lines);
  // Enabled while `rule` holds, evaluated by UpdateEnable after every change.
  cFormTable& EnableIf(std::function<bool()> rule);
  // Enabled while the control `id` holds a non-zero value; disabled while it does.
  cFormTable& EnableBy(unsigned id);
  cFormTable& DisableBy(unsigned id);
  // Enabled while the control `id` shows `value`. Rules of one control all must hold.
  cFormTable& EnableWhen(unsigned id, int value);
  // What a screen reader says of a control that has no label of its own beside it.
  cFormTable& Named(const char* name);
  // A list whose rows line up by their bytes: a fixed-pitch font in which a double-byte
  // character takes two columns, and room for `columns` of them.
  cFormTable& FixedPitch(int columns);
  // A combo that shows no row for its field's value leaves the field as it was on OK,
  // where a field of -1 would point at nothing.
  cFormTable& KeepWithoutRow();

  // --- what the form does with the table ---
  // Builds the widgets in table order and registers each under its id. A control
  // with neither label nor group is named by `formTitle`.
  void Layout(cFormLayout& L, const std::string& formTitle) const;
  // Binds every control to its widget, in the order number edits, text edits, checks,
  // combos, sliders, labels, buttons, pictures, then lists in table order. False when
  // one could not be bound (it was reported).
  bool Bind(DLG_CLASS& form) const;
  // Each control's enabling rule against the values now on the screen.
  void UpdateEnable(DLG_CLASS& form) const;

  // Problems of the declaration itself, one text each: an id declared twice, a rule
  // that names an id the table does not hold. Empty for a sound table.
  std::vector<std::string> Problems() const;
  // Every id the table declares, spins and mirrors included.
  std::vector<unsigned> Ids() const;
  bool Empty() const { return m_vecEntry.empty(); }

 private:
  enum class eKind : std::uint8_t {
    kControl, kRow, kGroup, kEndGroup, kColumn, kEndColumns, kText, kSkip, kOkCancel, kOkOnly
  };
  struct cEntry {
    eKind kind = eKind::kControl;
    eFormWidget widget = eFormWidget::kLabel;
    std::uint16_t id = 0;
    std::uint16_t partnerId = 0;  // a number edit's spin, a slider's mirror
    std::string text;             // label, or the text of a check, button or fixed text
    int span = 1;
    int nLines = 1;
    int width = 0, height = 0;
    int nDigits = 0;  // the widest number a number edit takes, in characters
    bool labelAbove = false;
    std::unique_ptr<CTRL_CLASS> ctrl;  // null for lists and views
    std::function<bool(DLG_CLASS&)> bindList;
    std::function<QWidget*(QWidget*)> makeView;
    std::function<bool()> enabled;
    std::vector<unsigned> ruleIds;  // the controls an enabling rule reads
    std::vector<std::pair<unsigned, int>> valueRules;  // enabled while control shows value
    std::string name;  // accessible name, when it is not the label's
    int fixedColumns = 0;
  };

  cFormTable& Add(eFormWidget widget, unsigned id, const char* text, std::unique_ptr<CTRL_CLASS> ctrl,
                  unsigned partnerId = 0);
  cFormTable& AddPlace(eKind kind, const char* text = "", int span = 1);
  cEntry& Last();
  // Characters of a number's widest form, its sign included.
  static int DigitsOf(double value);
  void PutControl(cFormLayout& L, const cEntry& e, const std::string& fallbackName) const;
  template <class T>
  static bool BindListOf(DLG_CLASS& form, CTRL_LIST_CLASS<T>& list, const cListInit<T>& init, eListIdSet set);

  std::vector<cEntry> m_vecEntry;
  int m_nLastControl = -1;
  bool m_bNoMargins = false;
};

// The accessible name of a label: its text without the access key, "(&D)" or "&", and
// without the line breaks that only fit it to its place.
std::string AccessibleText(const std::string& label);
