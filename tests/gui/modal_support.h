#pragma once
// Acting on a modal form from a test: the form's own loop runs while the call that
// opened it waits, so the test's hands act from the event loop once the form stands.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <functional>

#include "toolkit/dlg_class.h"

// Runs `during` on the modal form that opens next. A missing form fails the test and
// closes whatever is open.
inline void DuringModal(std::function<void(DLG_CLASS&)> during) {
  QTimer::singleShot(0, [during] {
    QWidget* w = QApplication::activeModalWidget();
    DLG_CLASS* form = DLG_CLASS::FromWidget(w);
    if (form == nullptr) {
      ADD_FAILURE() << "no modal form";
      if (w != nullptr) w->close();
      return;
    }
    during(*form);
  });
}
