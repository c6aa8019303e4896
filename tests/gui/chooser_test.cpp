#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTimer>
#include <functional>

#include "forms/graphic_chooser.h"
#include "project/project_globals.h"

namespace {

TEST(GraphicChooser, ValueOfTheCellUnderAPointInEachKind) {
  struct Case {
    int kind, px, py, value;
  } cases[] = {
      {0, 48, 0, 10},   {0, 0, 48, 1},      {0, 767, 479, 159},  // down the columns
      {1, 64, 0, 8},    {1, 0, 64, 1},      {1, 1023, 511, 127},
      {2, 256, 0, 128}, {2, 0, 32, 8},      {2, 255, 511, 127},  {2, 511, 511, 255},
      {3, 32, 0, 16},   {3, 0, 32, 1},      {3, 1023, 511, 511},
      {2, -5, 600, 120},  // outside: the nearest pixel inside
  };
  for (const Case& c : cases)
    EXPECT_EQ(GraphicValueAt(c.kind, c.px, c.py), c.value) << c.kind << " " << c.px << "," << c.py;
  EXPECT_EQ(std::make_pair(GraphicValueAt(4, 0, 0), GraphicValueAt(-1, 0, 0)), std::make_pair(-1, -1));
}

void SendMouse(QWidget* w, QEvent::Type type, QPoint p) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent e(type, p, w->mapToGlobal(p), button, button, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

// Acts on the chooser that the next call opens.
void DuringChooser(std::function<void(DLG_SELECTGRAPHIC&)> during) {
  QTimer::singleShot(0, [during] {
    QWidget* w = QApplication::activeModalWidget();
    if (auto* form = dynamic_cast<DLG_SELECTGRAPHIC*>(DLG_CLASS::FromWidget(w))) return during(*form);
    ADD_FAILURE() << "no chooser";
    if (w != nullptr) w->close();
  });
}

TEST(GraphicChooser, FramesTheCellUnderTheMouseAndAClickEndsWithItsValue) {
  g_aSheet[34].Create(512, 512, 24, 0);
  g_aSheet[34].Fill(0);
  int value = -7;
  DuringChooser([&](DLG_SELECTGRAPHIC& form) {
    EXPECT_EQ(form.m_hWnd->size(), QSize(512, 512));
    QWidget* view = form.m_View.m_hWnd;
    SendMouse(view, QEvent::MouseMove, {270, 20});
    EXPECT_EQ(form.m_nValue, 128);
    form.m_View.OnPaint();
    const cSurface& back = form.m_View.m_Back;
    auto white = [&](int x, int y) { return back.Pixel(x, y)[0] == 0xFF && back.Pixel(x, y)[1] == 0xFF; };
    EXPECT_TRUE(white(256, 10) && white(270, 0) && white(287, 20) && white(270, 31));
    EXPECT_FALSE(white(270, 16) || white(200, 10) || white(270, 40));
    SendMouse(view, QEvent::MouseButtonPress, {5, 40});
  });
  EXPECT_EQ(ChooseGraphic(2, &value, nullptr), 1);
  EXPECT_EQ(value, 8);
  g_aSheet[34].Release();
}

}  // namespace
