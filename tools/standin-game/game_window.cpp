#include "game_window.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdlib>
#include <string_view>

bool DisplayAvailable() {
  auto set = [](const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0';
  };
  if (const char* platform = std::getenv("QT_QPA_PLATFORM")) {
    const std::string_view p(platform);
    if (p.starts_with("offscreen") || p.starts_with("minimal")) return false;
  }
  return set("DISPLAY") || set("WAYLAND_DISPLAY");
}

void RunGameWindow(int argc, char** argv, const cGameReport& report, int nSeconds) {
  QApplication app(argc, argv);
  QWidget window;
  window.setWindowTitle(QStringLiteral("standin-game: test play"));
  auto* layout = new QVBoxLayout(&window);
  QString text;
  for (const std::string& line : report.lines) text += QString::fromStdString(line) + '\n';
  auto* shown = new QLabel(text.trimmed(), &window);
  shown->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(shown);
  auto* end = new QPushButton(QStringLiteral("End the test play"), &window);
  QObject::connect(end, &QPushButton::clicked, &window, &QWidget::close);
  layout->addWidget(end);
  // In the middle of the screen, where it cannot be mistaken for a part of the editor.
  window.adjustSize();
  if (const QScreen* screen = QGuiApplication::primaryScreen())
    window.move(screen->availableGeometry().center() - window.rect().center());
  window.show();
  if (nSeconds >= 0) QTimer::singleShot(nSeconds * 1000, &window, &QWidget::close);
  app.exec();
}
