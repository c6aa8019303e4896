// The window toolkit's tests run on Qt's display-free platform unless told otherwise.
#include <gtest/gtest.h>

#include <QApplication>

#include "toolkit/qt_language.h"

// Fontconfig keeps its caches for the life of the process; the leak check would count them.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig.so\n"; }

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  InstallQtJapanese();
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
