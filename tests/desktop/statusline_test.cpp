#include "platform/qt/statusline.h"

#include <gtest/gtest.h>

#include <QImage>

#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

class StatusLineTest : public testing::Test {
 protected:
  StatusLineTest() { line.resize(800, line.sizeHint().height()); }
  Form form{"form", ""};
  StatusBar bar{form, "StatusBar", {"status", "docline"}};
  StatusLine line{bar};
};

// The pixels of the left and of the right end, where the two panels stand.
std::pair<QImage, QImage> Halves(StatusLine& line) {
  const QImage whole = line.grab().toImage();
  return {whole.copy(0, 0, 300, whole.height()), whole.copy(whole.width() - 80, 0, 80, whole.height())};
}

TEST_F(StatusLineTest, EachPanelShowsItsText) {
  const auto [empty, emptyPlace] = Halves(line);
  bar.SetPanel("docline", "12/34");
  const auto [left, place] = Halves(line);
  EXPECT_EQ(left, empty);
  EXPECT_NE(place, emptyPlace);
  bar.SetPanel("status", "Gotowy");
  EXPECT_NE(Halves(line).first, left);
  EXPECT_EQ(Halves(line).second, place);
}

TEST_F(StatusLineTest, AMessageIsSeenBeforeTheWorkThatItTellsOf) {
  struct Painted : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      count += event->type() == QEvent::Paint;
      return false;
    }
    int count = 0;
  } painted;
  line.show();
  Settle();
  line.installEventFilter(&painted);
  bar.SetPanel("status", "Proces w toku...");
  EXPECT_EQ(painted.count, 1);
  bar.SetPanel("status", "10 %");
  bar.SetPanel("docline", "1/1");
  EXPECT_EQ(painted.count, 1);
  Settle();
  EXPECT_GT(painted.count, 1);
}

TEST_F(StatusLineTest, ComesAndGoesWithItsControl) {
  bar.SetVisible(false);
  EXPECT_TRUE(line.isHidden());
  bar.SetVisible(true);
  EXPECT_FALSE(line.isHidden());
}

}  // namespace
}  // namespace morlan
