#include "toolkit/qt_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool InstallQtJapanese() {
  static QTranslator translator;  // lives as long as the application uses it
  QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
  if (!translator.load(QStringLiteral("qtbase_ja"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return false;
  return QCoreApplication::installTranslator(&translator);
}
