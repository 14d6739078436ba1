// A tag edited in the real window: from the right click or the menu key to the changed tag and back.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>

#include "core/text.h"
#include "platform/qt/editorpages.h"
#include "platform/qt/editorview.h"
#include "platform/qt/qttext.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

constexpr std::string_view kBefore = "<html>\r\n<body>\r\n", kBehind = "\r\n<p>tekst</p>\r\n</body>\r\n</html>\r\n";
constexpr std::string_view kPicture = "<img class=x src=\"rynek.gif\" alt=\"Rynek\" width=640 ismap>";
constexpr std::string_view kNarrower = "<IMG SRC=\"rynek.gif\" ALT=\"Rynek\" WIDTH=120 ISMAP>";

class TagEditing : public DesktopTest {
 protected:
  void OpenPage() {
    Start();
    program.ActiveEditor->SetText(Page(kPicture));
  }
  static std::string Page(std::string_view picture) { return Concat({kBefore, picture, kBehind}); }
  EditorWidget& View() { return *Window().Pages().Current(); }

  void RightClick(std::size_t offset) {
    const QPoint place = View().Scene().CaretArea(offset, 0).center().toPoint();
    ClickAt(*View().viewport(), place, Qt::RightButton);
  }
  static QMenu& OpenMenu() {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) throw std::logic_error("no menu is open");
    return *menu;
  }
  static void ClickOn(QWidget& widget) { ClickAt(widget, widget.rect().center()); }
  // The key goes where the focus is.
  static void Press(int key, const QString& text = {}) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    PressIn(*focus, key, Qt::NoModifier, text);
  }
  static void TabTo(QWidget& dialog, const QString& name) {
    ASSERT_TRUE(WaitFor([&] { return dialog.isAncestorOf(QApplication::focusWidget()); }));
    for (int step = 0; step < 20 && QApplication::focusWidget() && QApplication::focusWidget()->objectName() != name; ++step)
      Press(Qt::Key_Tab);
    ASSERT_TRUE(QApplication::focusWidget());
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
  static void ExpectFilled(QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Grafika"));
    EXPECT_EQ(Named<QLineEdit>(dialog, "source").text(), QStringLiteral("rynek.gif"));
    EXPECT_EQ(Named<QLineEdit>(dialog, "alt").text(), QStringLiteral("Rynek"));
    EXPECT_EQ(Named<QLineEdit>(dialog, "szerokosc").text(), QStringLiteral("640"));
    EXPECT_TRUE(Named<QCheckBox>(dialog, "ismap").isChecked());
  }
  void ExpectOneStepBack() {
    Settle();
    EXPECT_EQ(Text(), Page(kNarrower));
    EXPECT_TRUE(Window().isWindowModified());
    EXPECT_TRUE(WaitFor([this] { return View().hasFocus(); }));
    PressIn(View(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text(), Page(kPicture));
  }
};

TEST_F(TagEditing, APictureIsMadeNarrowerByMouseAlone) {
  OpenPage();
  RightClick(kBefore.size() + 20);
  QMenu& menu = OpenMenu();
  EXPECT_EQ(Named<QAction>(menu, "xmn_tagname").text(), QStringLiteral("<IMG>"));
  InNextModal([](QWidget& dialog) {
    ExpectFilled(dialog);
    auto& width = Named<QLineEdit>(dialog, "szerokosc");
    ClickOn(width);
    width.selectAll();
    TypeIn(width, QStringLiteral("120"));
    ClickOn(Named<QPushButton>(dialog, "Command2"));
  });
  ClickAt(menu, menu.actionGeometry(&Named<QAction>(menu, "xmn_item")).center());
  ExpectOneStepBack();
}

TEST_F(TagEditing, APictureIsMadeNarrowerByKeysAlone) {
  OpenPage();
  PressIn(View(), Qt::Key_Home, Qt::ControlModifier);
  for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right}) Press(key);
  Press(Qt::Key_Menu);
  InNextModal([](QWidget& dialog) {
    ExpectFilled(dialog);
    TabTo(dialog, QStringLiteral("szerokosc"));
    TypeIn(*QApplication::focusWidget(), QStringLiteral("120"));
    Press(Qt::Key_Return);
  });
  PressIn(OpenMenu(), Qt::Key_E, Qt::NoModifier, QStringLiteral("e"));
  ExpectOneStepBack();
}

TEST_F(TagEditing, EscapeLeavesThePageAsItWas) {
  OpenPage();
  RightClick(kBefore.size() + 20);
  InNextModal([](QWidget& dialog) { PressIn(dialog, Qt::Key_Escape); });
  PressIn(OpenMenu(), Qt::Key_E, Qt::NoModifier, QStringLiteral("e"));
  Settle();
  EXPECT_EQ(Text(), Page(kPicture));
  EXPECT_FALSE(Window().isWindowModified());
}

TEST_F(TagEditing, AServerTagIsEditedInTheSameWay) {
  Start();
  program.ActiveEditor->SetText("<cffile action=\"read\" file=\"c:\\a.txt\" variable=\"a\">");
  RightClick(5);
  InNextModal([](QWidget& dialog) {
    EXPECT_FALSE(Named<QLineEdit>(dialog, "source_").isEnabled());
    EXPECT_EQ(Named<QLineEdit>(dialog, "file_").text(), QStringLiteral("c:\\a.txt"));
    PressIn(dialog, Qt::Key_Return);
  });
  PressIn(OpenMenu(), Qt::Key_E, Qt::NoModifier, QStringLiteral("e"));
  Settle();
  EXPECT_EQ(Text(), "<CFFILE ACTION=\"Read\" FILE=\"c:\\a.txt\" VARIABLE=\"a\">");
}

}  // namespace
}  // namespace morlan
