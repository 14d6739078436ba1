#include "platform/qt/qtfont.h"

#include <gtest/gtest.h>

#include <QFontDatabase>

namespace morlan {
namespace {

TEST(QtFont, GoesToTheToolkitAndBack) {
  for (const FontChoice& font :
       {FontChoice{.name = "DejaVu Sans Mono", .size = 11}, FontChoice{.name = "DejaVu Serif", .size = 12.5, .bold = true, .italic = true},
        FontChoice{.name = "DejaVu Sans", .size = 8, .underline = true, .strikeThrough = true}})
    EXPECT_EQ(FromQtFont(ToQtFont(font)), font) << font.name;
}

TEST(QtFont, WithoutANameIsTheDesktopsFontOfFixedWidth) {
  EXPECT_EQ(ToQtFont({}).family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
}

TEST(QtFont, BearsItsFamilyWithoutTheMaker) {
  EXPECT_EQ(FromQtFont(QFont(QStringLiteral("C059 [urw]"))).name, "C059");
  EXPECT_EQ(FromQtFont(QFont(QStringLiteral("C059"))).name, "C059");
}

TEST(QtFont, InPixelsIsMeasuredInPoints) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(20);
  EXPECT_GT(FromQtFont(font).size, 0);
}

// The upright style of this family is called "Book", which the toolkit's dialog does not find by itself.
TEST(QtFont, KnowsTheStyleOfItsFamily) {
  EXPECT_EQ(WithStyleName(ToQtFont({.name = "DejaVu Sans Mono"})).styleName(), QStringLiteral("Book"));
  EXPECT_EQ(WithStyleName(ToQtFont({.name = "DejaVu Sans Mono", .bold = true})).styleName(), QStringLiteral("Bold"));
  EXPECT_EQ(WithStyleName(ToQtFont({.name = "Nie ma takiej"})).styleName(), QString());
}

}  // namespace
}  // namespace morlan
