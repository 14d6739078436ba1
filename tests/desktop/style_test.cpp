#include "platform/qt/style.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace morlan {
namespace {

constexpr QSize kSize(80, 30);
constexpr QRgb kLightWindow = 0xfff3f4f6, kDarkWindow = 0xff25272b;

class StyleTest : public testing::Test {
 protected:
  // A primitive as it is drawn on a window of a colour.
  QImage Drawn(QStyle::PrimitiveElement element, QRgb window, QStyle::State state, const QWidget& widget) {
    QStyleOptionButton option;
    option.initFrom(&widget);
    option.rect = QRect(QPoint(0, 0), kSize);
    option.state = state;
    option.palette.setColor(QPalette::Window, QColor(window));
    option.palette.setColor(QPalette::WindowText, qGray(window) < 128 ? Qt::white : Qt::black);
    QImage image(kSize, QImage::Format_RGB32);
    image.fill(window);
    QPainter painter(&image);
    style_.drawPrimitive(element, &option, &painter, &widget);
    return image;
  }
  Style style_;
};

TEST_F(StyleTest, AGroupHasALineRoundItAndNoShadeInside) {
  const QGroupBox group;
  for (const QRgb window : {kLightWindow, kDarkWindow}) {
    const QImage image = Drawn(QStyle::PE_FrameGroupBox, window, QStyle::State_Enabled, group);
    EXPECT_EQ(image.pixel(40, 15), window);
    EXPECT_NE(image.pixel(40, 29), window);
  }
}

TEST_F(StyleTest, TheLineRoundAGroupBeginsBelowItsTitle) {
  const QGroupBox group(QStringLiteral("Wymiary"));
  const QImage image = Drawn(QStyle::PE_FrameGroupBox, kLightWindow, QStyle::State_Enabled, group);
  EXPECT_EQ(image.pixel(0, group.fontMetrics().height() / 2), kLightWindow);
  EXPECT_NE(image.pixel(0, 26), kLightWindow);
}

TEST_F(StyleTest, AButtonWithTheFocusHasARingInside) {
  const QPushButton button;
  const QImage without = Drawn(QStyle::PE_PanelButtonCommand, kDarkWindow, QStyle::State_Enabled, button);
  const QImage with = Drawn(QStyle::PE_PanelButtonCommand, kDarkWindow, QStyle::State_Enabled | QStyle::State_HasFocus, button);
  EXPECT_NE(with.pixel(40, 3), without.pixel(40, 3));
  EXPECT_EQ(with.pixel(40, 15), without.pixel(40, 15));
}

TEST_F(StyleTest, ABoxOfRowsIsPaintedLikeAButtonButHasNoRing) {
  const QComboBox box;
  const QImage without = Drawn(QStyle::PE_PanelButtonCommand, kLightWindow, QStyle::State_Enabled, box);
  const QImage with = Drawn(QStyle::PE_PanelButtonCommand, kLightWindow, QStyle::State_Enabled | QStyle::State_HasFocus, box);
  EXPECT_EQ(with.pixel(40, 3), without.pixel(40, 3));
}

}  // namespace
}  // namespace morlan
