// The editor's process: it works on the project in the current directory and looks at
// no argument.

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QScreen>
#include <clocale>

#include "app/app_frame.h"
#include "project/edit_config.h"
#include "editor/editor_shell.h"
#include "editor/qt_prompt.h"
#include "platform/heap_pages.h"

int main(int argc, char** argv) {
  RestartWithHugePageHeap(argv);  // a large project's records load far faster in huge pages
  QApplication app(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  if (QFontDatabase::hasFamily(QStringLiteral("IPAPGothic"))) QApplication::setFont(QFont(QStringLiteral("IPAPGothic"), 9));
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect full = screen->availableGeometry();
    SetFullScreenSize(full.width(), full.height());
  }
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
