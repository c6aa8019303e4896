// Text on surfaces: the one place where the core library uses QtGui. CP932 text is
// decoded for display only, drawn with QPainter into a QImage that holds a copy of the
// affected part of the colour plane, and copied back.

#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "media/surface.h"
#include "media/surface_pixels.h"
#include "platform/cp932.h"

namespace {

// The pitch between the lines of one Text call, whatever the font.
constexpr int kLinePitch = 20;
// Height of the font used when none was set, and when neither height nor width is given.
constexpr int kDefaultPixelHeight = 16;

bool Unset(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr || *value == '\0';
}

// Fonts need a QGuiApplication. The editor has its own; tests and tools get one made
// here on first use, on the offscreen platform when there is no display. A plain
// QCoreApplication cannot be upgraded, so text is then left out.
bool EnsureGuiApplication() {
  if (QCoreApplication* app = QCoreApplication::instance()) return qobject_cast<QGuiApplication*>(app) != nullptr;
  if (Unset("QT_QPA_PLATFORM") && Unset("DISPLAY") && Unset("WAYLAND_DISPLAY")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static int argc = 1;
  static char name[] = "ortalune";
  static char* argv[] = {name, nullptr};
  // Deleted at exit, before Qt's own globals go: fontconfig's data is freed with it.
  static std::unique_ptr<QGuiApplication> app(new QGuiApplication(argc, argv));
  return app != nullptr;
}

// The installed family that stands in for a face name of the home platform: the name
// itself when it is installed, else the proportional or the fixed-pitch Japanese gothic.
QString FamilyFor(const std::string& face) {
  QString name = QString::fromUtf8(Cp932ToUtf8Lossy(face));
  if (!name.isEmpty() && QFontDatabase::hasFamily(name)) return name;
  bool proportional = name.contains(QStringLiteral("Ｐ")) || name.contains(QStringLiteral("PGothic")) ||
                      name.contains(QStringLiteral("PMincho")) || name.contains(QStringLiteral("UI Gothic"));
  return proportional ? QStringLiteral("IPAPGothic") : QStringLiteral("IPAGothic");
}

// A positive height is the character cell, a negative one the em; 0 takes the height
// that suits the width (a half-width character is half an em wide). A width other than
// 0 is the average character width, reached by stretching.
QFont FontFor(const SURFACE_FONT* description) {
  QFont font(description ? FamilyFor(description->szFace) : QStringLiteral("IPAGothic"));
  font.setStyleStrategy(QFont::NoAntialias);  // keyed sheets must not get blended edges
  font.setWeight(QFont::Normal);
  if (!description) {
    font.setPixelSize(kDefaultPixelHeight);
    return font;
  }
  int width = std::abs(description->nWidth), height = description->nHeight;
  int pixels = height != 0 ? std::abs(height) : (width != 0 ? width * 2 : kDefaultPixelHeight);
  font.setPixelSize(std::max(1, pixels));
  if (height > 0) {
    int cell = QFontMetrics(font).height();
    if (cell > 0 && cell != height) font.setPixelSize(std::max(1, pixels * height / cell));
  }
  if (width != 0 && height != 0) {
    int average = QFontMetrics(font).averageCharWidth();
    if (average > 0) font.setStretch(std::clamp(100 * width / average, 1, 4000));
  }
  return font;
}

QColor ColourOf(std::uint32_t colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                static_cast<int>((colour >> 16) & 0xFF));
}

}  // namespace

HSURFFONT cSurface::SetFont(const std::string& face, int width, int height) {
  m_font = SURFACE_FONT{face, width, height};
  return &*m_font;
}

void cSurface::Text(int x, int y, const std::string& text, std::uint32_t colour, int bkMode) {
  m_nTextColor = colour;
  m_nBkMode = bkMode;
  if (IsEmpty() || !EnsureGuiApplication()) return;

  std::vector<QString> lines;
  for (std::size_t start = 0;;) {
    std::size_t end = text.find('\n', start);
    lines.push_back(QString::fromUtf8(Cp932ToUtf8Lossy(text.substr(start, end - start))));
    if (end == std::string::npos) break;
    start = end + 1;
  }

  QFont font = FontFor(m_font ? &*m_font : nullptr);
  QFontMetrics metrics(font);
  int widest = 0;
  for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));

  // The part of the plane the text can touch, with a margin for overhanging glyphs.
  const long long margin = 4;
  long long left = std::max(0LL, static_cast<long long>(x) - margin);
  long long top = std::max(0LL, static_cast<long long>(y) - margin);
  long long right = std::min<long long>(m_nWidth, static_cast<long long>(x) + widest + metrics.maxWidth() + margin);
  long long bottom = std::min<long long>(
      m_nHeight, static_cast<long long>(y) + kLinePitch * static_cast<long long>(lines.size() - 1) + metrics.height() + margin);
  if (left >= right || top >= bottom) return;
  const int w = static_cast<int>(right - left), h = static_cast<int>(bottom - top);

  QImage image(w, h, m_nBits == 32 ? QImage::Format_RGB32 : QImage::Format_BGR888);
  const int imageBpp = m_nBits == 32 ? 4 : 3;
  for (int r = 0; r < h; ++r) {
    const unsigned char* s = Pixel(static_cast<int>(left), static_cast<int>(top) + r);
    if (m_nBits == 8)
      surface_pixels::ConvertPixels(s, 8, image.scanLine(r), 24, static_cast<std::size_t>(w));
    else
      std::memcpy(image.scanLine(r), s, static_cast<std::size_t>(w) * imageBpp);
  }

  {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    painter.setFont(font);
    painter.setPen(ColourOf(colour));
    for (std::size_t k = 0; k < lines.size(); ++k) {
      int tx = static_cast<int>(x - left), ty = static_cast<int>(y + kLinePitch * static_cast<long long>(k) - top);
      if (bkMode == kBkOpaque && !lines[k].isEmpty())
        painter.fillRect(tx, ty, metrics.horizontalAdvance(lines[k]), metrics.height(), ColourOf(m_nBkColor));
      painter.drawText(QPoint(tx, ty + metrics.ascent()), lines[k]);
    }
  }

  for (int r = 0; r < h; ++r) {
    unsigned char* d = Pixel(static_cast<int>(left), static_cast<int>(top) + r);
    const unsigned char* s = image.constScanLine(r);
    if (m_nBits != 8) {
      std::memcpy(d, s, static_cast<std::size_t>(w) * imageBpp);
      continue;
    }
    // Only pixels the text changed go back through the palette.
    unsigned char before[3];
    for (int c = 0; c < w; ++c, ++d, s += 3) {
      surface_pixels::ConvertPixels(d, 8, before, 24, 1);
      if (std::memcmp(before, s, 3) != 0) *d = surface_pixels::NearestIndex(s[0], s[1], s[2]);
    }
  }
}

void cSurface::Printf(int x, int y, const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list again;
  va_copy(again, args);
  int needed = std::vsnprintf(nullptr, 0, format, args);
  va_end(args);
  std::string text;
  if (needed > 0) {
    text.resize(static_cast<std::size_t>(needed) + 1);
    std::vsnprintf(text.data(), text.size(), format, again);
    text.resize(static_cast<std::size_t>(needed));
  }
  va_end(again);
  // The buffer holds 1024 bytes with its terminator; a cut never splits a character.
  text.resize(Cp932FitBytes(text, 1023));
  Text(x, y, text, 0xFFFFFF, kBkTransparent);
}
