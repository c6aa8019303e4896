#include "editor/qt_prompt.h"

#include <QApplication>
#include <QFileDialog>
#include <QRegularExpression>
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

bool cQtPrompt::ChooseFiles(void* owner, const cFileAsk& ask, std::vector<std::string>& out) {
  // The program's filters list extensions as "*.png;*.bmp"; Qt separates them by blanks.
  QString filter = QString::fromStdString(ask.filter);
  filter.replace(QRegularExpression(QStringLiteral("(?<!;);(?!;)")), QStringLiteral(" "));
  QFileDialog dialog(static_cast<QWidget*>(owner), QString::fromStdString(ask.title),
                     QString::fromStdString(ask.initialDir), filter);
  dialog.setAcceptMode(ask.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(ask.save ? QFileDialog::AnyFile : ask.multi ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
  dialog.setDefaultSuffix(QString::fromStdString(ask.defaultExt));
  if (!ask.name.empty()) dialog.selectFile(QString::fromStdString(ask.name));
  if (dialog.exec() != QDialog::Accepted) return false;
  for (const QString& f : dialog.selectedFiles()) out.push_back(f.toStdString());
  return !out.empty();
}
