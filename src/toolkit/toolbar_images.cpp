#include "toolkit/toolbar_images.h"

#include <QBitmap>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "platform/stored_path.h"

std::vector<QIcon> ToolbarStrip(const char* storedPath, int count) {
  constexpr int kSide = 16;
  std::vector<QIcon> icons(static_cast<std::size_t>(count));
  QImage strip(QString::fromStdString(NativePathOf(storedPath).string()));
  if (strip.isNull()) return icons;
  QPixmap pixmap = QPixmap::fromImage(strip);
  pixmap.setMask(QBitmap::fromImage(strip.createMaskFromColor(qRgb(0xC0, 0xC0, 0xC0), Qt::MaskInColor)));
  for (int i = 0; i < count && (i + 1) * kSide <= pixmap.width() && pixmap.height() >= kSide; ++i)
    icons[static_cast<std::size_t>(i)] = QIcon(pixmap.copy(i * kSide, 0, kSide, kSide));
  return icons;
}

namespace {

// Our own pictures, drawn at 32 by 32 so that they stay sharp on dense screens.
QIcon Drawn(eStandardPicture picture) {
  QPixmap pixmap(32, 32);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(40, 40, 40), 2));
  switch (picture) {
    case eStandardPicture::kNew: {
      QPainterPath page;  // a sheet with its corner folded
      page.moveTo(7, 3), page.lineTo(19, 3), page.lineTo(26, 10), page.lineTo(26, 29), page.lineTo(7, 29);
      page.closeSubpath();
      p.fillPath(page, Qt::white);
      p.drawPath(page);
      p.drawPolyline(QPolygonF({QPointF(19, 3), QPointF(19, 10), QPointF(26, 10)}));
      break;
    }
    case eStandardPicture::kOpen:
      p.setBrush(QColor(240, 200, 90));
      p.drawPolygon(QPolygonF({QPointF(3, 8), QPointF(12, 8), QPointF(15, 11), QPointF(28, 11), QPointF(28, 27),
                               QPointF(3, 27)}));
      break;
    case eStandardPicture::kSave:
      p.setBrush(QColor(70, 110, 190));
      p.drawRoundedRect(QRectF(4, 4, 24, 24), 2, 2);
      p.setBrush(Qt::white);
      p.drawRect(QRectF(9, 4, 14, 9));
      p.drawRect(QRectF(8, 18, 16, 10));
      break;
    case eStandardPicture::kUndo:
    case eStandardPicture::kRedo: {
      if (picture == eStandardPicture::kRedo) p.translate(32, 0), p.scale(-1, 1);
      p.setPen(QPen(QColor(40, 90, 170), 3, Qt::SolidLine, Qt::RoundCap));
      QPainterPath arc;
      arc.moveTo(9, 13);
      arc.cubicTo(16, 6, 29, 9, 26, 22);
      p.drawPath(arc);
      p.setBrush(QColor(40, 90, 170));
      p.setPen(Qt::NoPen);
      p.drawPolygon(QPolygonF({QPointF(3, 12), QPointF(13, 5), QPointF(13, 19)}));
      break;
    }
  }
  return QIcon(pixmap);
}

}  // namespace

QIcon StandardPicture(eStandardPicture picture) {
  static const char* const kThemeNames[] = {"document-new", "document-open", "document-save", "edit-undo", "edit-redo"};
  const QIcon themed = QIcon::fromTheme(QString::fromLatin1(kThemeNames[static_cast<int>(picture)]));
  return themed.isNull() ? Drawn(picture) : themed;
}
