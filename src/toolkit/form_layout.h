#pragma once
// The layout of a form, built in code from a compact description: rows of cells on a
// grid, optionally inside titled groups. Each control is made here with the widget
// kind of its type and registered under its id, so that the form's binding finds it.
// Texts are UTF-8; they only go to the screen.
//
// Forms do not call it themselves: their control table (toolkit/form_table.h) lays
// itself out through it.

#include <QString>
#include <functional>

class DLG_CLASS;
class QGridLayout;
class QWidget;

class cFormLayout {
 public:
  // Builds into `parent` for `form`, whose widget table the controls are put in.
  cFormLayout(DLG_CLASS& form, QWidget* parent);

  // No margin and no spacing around the cells.
  cFormLayout& NoMargins();
  // The next cell starts a new row.
  cFormLayout& Row();
  // A titled box that takes the rest of the row, or `span` cells of it beside what
  // stands there; its cells are a grid of their own until EndGroup.
  cFormLayout& Group(const char* title, int span = 0);
  cFormLayout& EndGroup();
  // The cells that follow stand in a column of their own to the right of all so far,
  // from the top; OK and Cancel still end the form below all columns.
  cFormLayout& Column();
  // Leaves a cell empty.
  cFormLayout& Skip(int span = 1);

  // A fixed text without an id.
  cFormLayout& Text(const char* text, int span = 1);
  cFormLayout& Label(unsigned id, const char* text = "", int span = 1);
  cFormLayout& Button(unsigned id, const char* text, int span = 1);
  cFormLayout& Check(unsigned id, const char* text, int span = 1);
  // A number edit; with a spin id the spin stands at its right in the same cell.
  cFormLayout& EditVal(unsigned id, unsigned spinId = 0, int span = 1);
  // A text edit of one line, or a text box of `lines` lines.
  cFormLayout& EditStr(unsigned id, int lines = 1, int span = 1);
  cFormLayout& Combo(unsigned id, int span = 1);
  cFormLayout& Slider(unsigned id, int span = 1);
  cFormLayout& Picture(unsigned id, int width, int height, int span = 1);
  cFormLayout& List(unsigned id, int rows = 8, int span = 1);
  // A widget of the form's own, made by `make` with the form's content as its parent.
  cFormLayout& Widget(unsigned id, const std::function<QWidget*(QWidget*)>& make, int span = 1);
  // A row of buttons OK (1006) and, with `cancel`, Cancel (1007) at the right.
  cFormLayout& OkCancel(bool cancel);

  // The widget made last.
  QWidget* Last() const { return m_pLast; }

 private:
  cFormLayout& Put(QWidget* w, unsigned id, int span);
  // The grid the next cell goes into: the open group's, the column's or the root.
  QGridLayout* Target() const;
  void Used(int row, int colEnd);

  DLG_CLASS& m_Form;
  QWidget* m_pParent;
  QGridLayout* m_pRoot;
  QGridLayout* m_pGroup = nullptr;
  int m_nRow = 0, m_nCol = 0;
  int m_nGroupRow = 0, m_nGroupCol = 0;
  int m_nGroupSpan = 0;
  QGridLayout* m_pColumn = nullptr;      // the column being filled, if not the root
  int m_nUsedCols = 0, m_nUsedRows = 0;  // of the root grid so far
  QWidget* m_pLast = nullptr;
};
