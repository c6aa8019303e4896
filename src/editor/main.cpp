// The editor's process: it works on the project in the current directory and looks at
// no argument.

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QScreen>
#include <clocale>

#include "app/app_frame.h"
#include "project/edit_config.h"
#include "editor/editor_shell.h"
#include "editor/qt_prompt.h"
#include "platform/heap_pages.h"
#include "platform/machine_facts.h"
#include "toolkit/qt_language.h"

int main(int argc, char** argv) {
  RestartWithHugePageHeap(argv);  // a large project's records load far faster in huge pages
  QApplication app(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  InstallQtJapanese();
  if (QFontDatabase::hasFamily(QStringLiteral("IPAPGothic"))) QApplication::setFont(QFont(QStringLiteral("IPAPGothic"), 9));
  cDisplayFacts display;
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect full = screen->availableGeometry();
    SetFullScreenSize(full.width(), full.height());
    display.width = screen->size().width();
    display.height = screen->size().height();
  }
  // The report names the font the windows use; its text is Japanese, the Shift JIS set.
  const QFontMetrics metrics(QApplication::font());
  display.fontFace = QApplication::font().family().toStdString();
  display.fontWidth = metrics.averageCharWidth();
  display.fontHeight = metrics.height();
  display.fontCharSet = 128;
  SetDisplayFacts(display);
  cQtPrompt prompt;
  SetPrompt(&prompt);
  int result;
  {
    cEditorShell shell;
    result = RunEditorProcess(shell);
  }
  SetPrompt(nullptr);
  return result;
}
