#pragma once
// What every open form must offer the user, checked on its widgets: each declared
// control bound to a widget, and each widget that takes input named for screen
// readers (and for tests that find controls by what the user reads).

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSlider>
#include <string>
#include <vector>

#include "toolkit/dlg_class.h"

inline std::vector<std::string> ProbeOpenForm(DLG_CLASS& form) {
  std::vector<std::string> problems = form.Table().Problems();
  if (!form.m_hWnd) return {"the form has no window"};
  for (unsigned id : form.Table().Ids())
    if (form.GetDlgItem(id) == nullptr) problems.push_back("control " + std::to_string(id) + " has no widget");
  for (QWidget* w : form.m_hWnd->findChildren<QWidget*>()) {
    const bool input = qobject_cast<QAbstractButton*>(w) || qobject_cast<QComboBox*>(w) || qobject_cast<QLineEdit*>(w) ||
                       qobject_cast<QListWidget*>(w) || qobject_cast<QPlainTextEdit*>(w) || qobject_cast<QSlider*>(w);
    // The arrows of a spin and the parts Qt builds inside a widget speak for their owner.
    if (!input || w->focusPolicy() == Qt::NoFocus || qobject_cast<QComboBox*>(w->parentWidget())) continue;
    if (w->accessibleName().isEmpty())
      problems.push_back(std::string(w->metaObject()->className()) + " without an accessible name");
    if (w->accessibleName().contains('\n'))
      problems.push_back(w->accessibleName().toStdString() + ": a line break in an accessible name");
  }
  return problems;
}
