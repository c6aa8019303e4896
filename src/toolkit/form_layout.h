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
class QHBoxLayout;
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
  // Side by side columns from the current row: the first call opens the band and its
  // first column, each further call the next column at the right; each column is a grid
  // of its own, with its own groups. EndColumns (and the OK row) close the band.
  cFormLayout& Column();
  cFormLayout& EndColumns();
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
  // The grid cells go into: the open group's, the column's, or the form's.
  QGridLayout* Grid() const;

  DLG_CLASS& m_Form;
  QWidget* m_pParent;
  QGridLayout* m_pRoot;
  QGridLayout* m_pGroup = nullptr;
  int m_nRow = 0, m_nCol = 0;
  int m_nGroupRow = 0, m_nGroupCol = 0;
  int m_nGroupSpan = 0;
  QWidget* m_pLast = nullptr;
  // The band of columns and the column being filled; null outside a band.
  QHBoxLayout* m_pBand = nullptr;
  QGridLayout* m_pColumn = nullptr;
  int m_nColumnRow = 0, m_nColumnCol = 0;
};
