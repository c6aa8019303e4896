#include "editor/qt_prompt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "platform/cp932.h"

QString QtText(const std::string& cp932) { return QString::fromStdString(Cp932ToUtf8Lossy(cp932)); }

int cQtPrompt::MessageBox(void* owner, const std::string& text, const std::string& caption, unsigned style) {
  struct cButtonSet {
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton escape;
  };
  cButtonSet set{QMessageBox::Ok, QMessageBox::Ok};
  switch (style & MB_BUTTON_MASK) {
    case MB_OKCANCEL: set = {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel}; break;
    case MB_YESNOCANCEL: set = {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel}; break;
    case MB_YESNO: set = {QMessageBox::Yes | QMessageBox::No, QMessageBox::No}; break;
    default: break;
  }
  bool question = (style & MB_BUTTON_MASK) != MB_OK;
  QMessageBox box(question ? QMessageBox::Question : QMessageBox::Information, QtText(caption), QtText(text), set.buttons,
                  static_cast<QWidget*>(owner));
  box.setEscapeButton(set.escape);
  switch (box.exec()) {
    case QMessageBox::Yes: return IDYES;
    case QMessageBox::No: return IDNO;
    case QMessageBox::Cancel: return IDCANCEL;
    default: return IDOK;
  }
}

void cQtPrompt::Beep() { QApplication::beep(); }
