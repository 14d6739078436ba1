// Property sheets and hints in the real window, with the shipped file of tags.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "core/text.h"
#include "platform/posix/profile.h"
#include "platform/qt/editorpages.h"
#include "platform/qt/editorview.h"
#include "platform/qt/qttext.h"
#include "tags/properties.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

class PropertySheetWindow : public DesktopTest {
 protected:
  void Open(std::string_view text, std::size_t caret) {
    const auto shipped = FindShippedData();
    ASSERT_TRUE(shipped);
    const auto sheets = files.Read(files.FromNative(*shipped + "/Morlan7.tpf"));
    ASSERT_TRUE(sheets);
    Write("program/Morlan7.tpf", *sheets);
    Start();
    program.ActiveEditor->SetText(std::string(text));
    program.ActiveEditor->Select(caret, 0);
    View().setFocus();
    Settle();
  }
  // The rows of the page in front.
  static QScrollArea& Rows(QWidget& sheet) {
    for (QScrollArea* area : sheet.findChildren<QScrollArea*>())
      if (area->isVisible()) return *area;
    throw std::logic_error("no rows are shown");
  }
  EditorWidget& View() { return *Window().Pages().Current(); }
  QListWidget* List() { return View().viewport()->findChild<QListWidget*>(); }
  QLabel* Block() { return View().viewport()->findChild<QLabel*>(); }
  QRect CaretLine() { return View().Scene().CaretArea(program.ActiveEditor->SelStart(), 1).toAlignedRect(); }

  // What the user does in the sheet that F4 brings up; Esc closes it if it is still there behind that.
  void InSheet(const std::function<void(QWidget& sheet)>& act) {
    InNextModal([act](QWidget& sheet) {
      EXPECT_TRUE(WaitFor([&] { return sheet.isAncestorOf(QApplication::focusWidget()); }));
      act(sheet);
      if (sheet.isVisible()) PressIn(sheet, Qt::Key_Escape);
    });
    PressIn(Editor(), Qt::Key_F4);
    EXPECT_TRUE(WaitFor([&] { return View().hasFocus(); }));
  }
  // The panel lies within the text's area and leaves the caret's line free.
  void ExpectBesideTheLine(const QWidget& panel) {
    EXPECT_TRUE(View().viewport()->rect().contains(panel.geometry()));
    EXPECT_GT(panel.height(), 0);
    const QRectF line = View().Scene().CaretArea(program.ActiveEditor->SelStart(), 1);
    EXPECT_TRUE(panel.geometry().top() >= line.bottom() - 0.5 || panel.geometry().bottom() + 1 <= line.top() + 0.5);
  }
};

TEST_F(PropertySheetWindow, F4OpensTheSheetOfTheTagAndEnterWritesIt) {
  Open("ab<input type=text name=\"imie\">yz", 5);
  InSheet([](QWidget& modal) {
    EXPECT_EQ(modal.windowTitle(), QStringLiteral("Właściwości <input>"));
    auto& type = Named<QComboBox>(modal, "Value_(0)");
    EXPECT_EQ(type.currentText(), QStringLiteral("text"));
    EXPECT_TRUE(type.hasFocus() || type.lineEdit()->hasFocus());
    EXPECT_EQ(Named<QLineEdit>(modal, "Value_(1)").text(), QStringLiteral("imie"));
    type.lineEdit()->selectAll();
    TypeIn(*type.lineEdit(), QStringLiteral("email"));
    PressIn(type, Qt::Key_Return);
  });
  EXPECT_EQ(Text(), "ab<input type=\"email\" name=\"imie\">yz");
  PressIn(Editor(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "ab<input type=text name=\"imie\">yz");
}

TEST_F(PropertySheetWindow, EscapeLeavesTheTagAlone) {
  Open("<input type=text>", 5);
  InSheet([](QWidget&) {});
  EXPECT_EQ(Text(), "<input type=text>");
}

TEST_F(PropertySheetWindow, ALongSheetFitsASmallScreenAndFollowsTheKeyboard) {
  Open("<input>", 5);
  InSheet([](QWidget& modal) {
    EXPECT_LE(modal.height(), 680);
    EXPECT_LE(modal.width(), 1280);
    QScrollArea& area = Rows(modal);
    EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
    for (int step = 0; step < 25; ++step) PressIn(*QApplication::focusWidget(), Qt::Key_Tab);
    const QWidget* field = QApplication::focusWidget();
    ASSERT_TRUE(area.isAncestorOf(field)) << ToUtf8(FromQt(field->objectName()));
    EXPECT_TRUE(area.viewport()->rect().contains(QRect(field->mapTo(area.viewport(), QPoint()), field->size())));
  });
}

TEST_F(PropertySheetWindow, RowsThatAreNotSeenAtFirstComeBehindThePainting) {
  Open("<input maxlength=7 ondrop=\"f()\">", 5);
  InSheet([&](QWidget& modal) {
    const auto& sheet = program.forms.Get<Properties>();
    const auto fieldOf = [&](const SheetRow& row) { return modal.findChild<QWidget*>(ToQt(row.value->Name())); };
    const auto isShown = [&](const SheetRow& row) { return fieldOf(row) && !fieldOf(row)->isHidden(); };
    ASSERT_GT(sheet.attributes.size(), 40u);
    EXPECT_TRUE(WaitFor([&] { return isShown(sheet.attributes.back()); }));
    EXPECT_TRUE(std::all_of(sheet.attributes.begin(), sheet.attributes.end(), isShown));
    EXPECT_LT(fieldOf(sheet.attributes[19])->geometry().bottom(), fieldOf(sheet.attributes[20])->geometry().top());
    modal.findChild<QTabWidget*>()->setCurrentIndex(1);
    ASSERT_GT(sheet.events.size(), 40u);
    EXPECT_TRUE(WaitFor([&] { return isShown(sheet.events.back()); }));
  });
}

TEST_F(PropertySheetWindow, TabGoesFromTheFirstRowsToThoseThatCameLater) {
  Open("<input>", 5);
  InSheet([&](QWidget& modal) {
    const auto& sheet = program.forms.Get<Properties>();
    const auto fieldOf = [&](std::size_t row) { return modal.findChild<QWidget*>(ToQt(sheet.attributes[row].value->Name())); };
    ASSERT_TRUE(WaitFor([&] { return fieldOf(20) != nullptr; }));
    ASSERT_EQ(sheet.attributes[19].dialog, nullptr);
    fieldOf(19)->setFocus();
    PressIn(*fieldOf(19), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), fieldOf(20));
  });
}

TEST_F(PropertySheetWindow, AFieldFarDownCanTakeTheFocusAtOnce) {
  Open("<input>", 5);
  Properties& sheet = program.forms.Get<Properties>();
  const auto load = std::exchange(sheet.OnLoad, nullptr);
  sheet.OnLoad = [&] {
    load();
    sheet.firstFocus = sheet.attributes.back().value.get();
  };
  InSheet([&](QWidget&) { EXPECT_EQ(QApplication::focusWidget()->objectName(), ToQt(sheet.attributes.back().value->Name())); });
}

TEST_F(PropertySheetWindow, AFieldWithoutTheFocusLeavesTheWheelToTheRows) {
  Open("<input type=text>", 5);
  InSheet([](QWidget& modal) {
    auto& checked = Named<QComboBox>(modal, "Value_(6)");
    const QString before = checked.currentText();
    QWheelEvent wheel(QPointF(5, 5), checked.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&checked, &wheel);
    EXPECT_EQ(checked.currentText(), before);
    EXPECT_FALSE(wheel.isAccepted());
  });
}

TEST_F(PropertySheetWindow, TheAttributesOfATagAreListedAtTheCaret) {
  Open("", 0);
  TypeIn(Editor(), QStringLiteral("<table "));
  ASSERT_NE(List(), nullptr);
  EXPECT_TRUE(List()->isVisible());
  EXPECT_EQ(List()->currentRow(), 0);
  ExpectBesideTheLine(*List());
  EXPECT_NEAR(List()->geometry().left(), CaretLine().left(), 2);
  EXPECT_TRUE(View().hasFocus());

  PressIn(Editor(), Qt::Key_Down);
  EXPECT_TRUE(List()->hasFocus());
  const QString first = List()->item(1)->text();
  PressIn(*List(), Qt::Key_Down);
  PressIn(*List(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
  EXPECT_EQ(Text(), Concat({"<table ", FromQt(first)}));
  EXPECT_FALSE(List()->isVisible());
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(PropertySheetWindow, EscapeClosesTheListFromTheTextAndFromWithin) {
  Open("", 0);
  TypeIn(Editor(), QStringLiteral("<table "));
  PressIn(Editor(), Qt::Key_Escape);
  EXPECT_FALSE(List()->isVisible());
  TypeIn(Editor(), QStringLiteral("a"));
  EXPECT_TRUE(List()->isVisible());
  PressIn(Editor(), Qt::Key_Down);
  PressIn(*List(), Qt::Key_Escape);
  EXPECT_FALSE(List()->isVisible());
  EXPECT_TRUE(View().hasFocus());
  EXPECT_EQ(Text(), "<table a");
}

TEST_F(PropertySheetWindow, TheListGoesAwayWhenTheTagIsClosed) {
  Open("", 0);
  TypeIn(Editor(), QStringLiteral("<table "));
  EXPECT_TRUE(List()->isVisible());
  TypeIn(Editor(), QStringLiteral(">x"));
  EXPECT_FALSE(List()->isVisible());
}

TEST_F(PropertySheetWindow, NearTheBottomAndTheRightEdgeTheListTurnsAside) {
  std::string text;
  for (int line = 0; line < 200; ++line) text += "wiersz\r\n";
  Open(text + std::string(60, '.'), 0);
  program.ActiveEditor->Select(program.ActiveEditor->Length(), 0);
  Settle();
  TypeIn(Editor(), QStringLiteral("<table "));
  ASSERT_TRUE(List() && List()->isVisible());
  ExpectBesideTheLine(*List());
  TypeIn(Editor(), QString(200, QLatin1Char('a')));
  ASSERT_TRUE(List()->isVisible());
  ExpectBesideTheLine(*List());
}

TEST_F(PropertySheetWindow, InALowWindowTheListIsCutToTheRoomItHas) {
  Open("\r\n\r\n\r\n", 4);
  Window().resize(700, 260);
  Settle();
  TypeIn(Editor(), QStringLiteral("<table "));
  ASSERT_TRUE(List() && List()->isVisible());
  ExpectBesideTheLine(*List());
}

TEST_F(PropertySheetWindow, TheBlockShowsAllAttributesInAsManyLinesAsItNeeds) {
  Open("", 0);
  program.HintShowList = false;
  TypeIn(Editor(), QStringLiteral("<br "));
  ASSERT_TRUE(Block() && Block()->isVisible());
  ExpectBesideTheLine(*Block());
  EXPECT_GE(Block()->height(), Block()->heightForWidth(Block()->width()));
  EXPECT_NEAR(Block()->geometry().center().x(), View().viewport()->rect().center().x(), 2);
}

}  // namespace
}  // namespace morlan
