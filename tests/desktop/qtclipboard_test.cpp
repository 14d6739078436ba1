#include "platform/qt/qtclipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "core/text.h"

namespace morlan {
namespace {

TEST(QtClipboard, LineEndsAreThoseOfTheOtherSide) {
  QtClipboard clipboard;
  QGuiApplication::clipboard()->setText(QStringLiteral("a\nb"));
  EXPECT_EQ(clipboard.Text(), "a\r\nb");
  clipboard.SetText("c\r\nd");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("c\nd"));
}

TEST(QtClipboard, TheOwnTextComesBackByteForByte) {
  QtClipboard clipboard;
  clipboard.SetText("a\nb\r\n");
  EXPECT_EQ(clipboard.Text(), "a\nb\r\n");
}

TEST(QtClipboard, CharactersThatTheProgramLacksBecomeReferences) {
  QtClipboard clipboard;
  QGuiApplication::clipboard()->setText(QStringLiteral("łπ"));
  EXPECT_EQ(clipboard.Text(), "ł&#960;"_pl);
}

TEST(QtClipboard, ATextThatIsWrittenBackLosesOnlyItsOtherForms) {
  QtClipboard clipboard;
  auto* rich = new QMimeData;
  rich->setHtml(QStringLiteral("<b>π</b>"));
  rich->setText(QStringLiteral("π"));
  QGuiApplication::clipboard()->setMimeData(rich);
  clipboard.SetText(*clipboard.Text());
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("π"));
  EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

TEST(QtClipboard, SaysWhenItHoldsNoText) {
  QGuiApplication::clipboard()->clear();
  EXPECT_EQ(QtClipboard().Text(), std::nullopt);
}

}  // namespace
}  // namespace morlan
