#include "platform/qt/svgicons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPalette>

namespace morlan {
namespace {

int PixelsNear(const QIcon& icon, const QColor& colour) {
  const QImage image = icon.pixmap(QSize(20, 20), 2.0).toImage();
  int near = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      near += pixel.alpha() > 200 && qAbs(pixel.lightness() - colour.lightness()) < 30;
    }
  return near;
}

TEST(SvgIcons, AMissingDrawingGivesNoIcon) {
  EXPECT_TRUE(SvgIcon("nie-ma-takiej").isNull());
  EXPECT_TRUE(SvgIcon("").isNull());
}

TEST(SvgIcons, AreDrawnAtTheSizeOfTheScreen) {
  const QPixmap pixmap = SvgIcon("save").pixmap(QSize(20, 20), 2.0);
  EXPECT_EQ(pixmap.size(), QSize(40, 40));
  EXPECT_EQ(pixmap.devicePixelRatio(), 2.0);
}

TEST(SvgIcons, TakeTheColourOfThePalettesText) {
  const QPalette before = QApplication::palette();
  const QIcon icon = SvgIcon("save");
  for (const QColor& ink : {QColor(0x101010), QColor(0xf0f0f0)}) {
    QPalette palette = before;
    palette.setColor(QPalette::WindowText, ink);
    QApplication::setPalette(palette);
    EXPECT_GT(PixelsNear(icon, ink), 20) << ink.name().toStdString();
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace morlan
