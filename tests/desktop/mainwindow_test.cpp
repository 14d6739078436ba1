#include "platform/qt/mainwindow.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTabBar>
#include <QUrl>
#include <filesystem>

#include "core/documents.h"
#include "core/text.h"
#include "platform/qt/editorpages.h"
#include "platform/qt/editorview.h"
#include "platform/qt/flattabbar.h"
#include "platform/qt/qttext.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

using MainWindowTest = DesktopTest;

FlatTabBar& Documents(MainWindow& window) { return Named<FlatTabBar>(window, "WindowsManager"); }

QStringList Titles(const QTabBar& bar) {
  QStringList titles;
  for (int i = 0; i < bar.count(); ++i) titles += bar.tabText(i);
  return titles;
}

QAction* EntryOf(QMenu& menu, const char* name) {
  emit menu.aboutToShow();
  return menu.findChild<QAction*>(QLatin1StringView(name));
}

QMenu& MenuNamed(MainWindow& window, const QString& title) {
  for (QAction* action : window.menuBar()->actions())
    if (WithoutMnemonic(action->text()) == title) return *action->menu();
  throw std::logic_error(title.toStdString());
}

TEST_F(MainWindowTest, ComesUpWithAnEmptyDocumentReadyForKeys) {
  Start();
  EXPECT_EQ(Titles(Documents(Window())), QStringList{QStringLiteral("BezTytułu.html")});
  TypeIn(Editor(), QStringLiteral("<b>ą"));
  EXPECT_EQ(Text(), "<b>ą"_pl);
  Settle();
  EXPECT_TRUE(Window().isWindowModified());
  EXPECT_TRUE(Documents(Window()).IsMarked(0));
}

TEST_F(MainWindowTest, OpensTheFileOfTheCommandLine) {
  Write("work/strona.html", "<html>\r\n<b>x</b>");
  environment.commandLine = Path("work/strona.html");
  Start();
  EXPECT_EQ(Titles(Documents(Window())), QStringList{QStringLiteral("strona.html")});
  EXPECT_TRUE(Window().windowTitle().startsWith(QString::fromStdString((folder.path / "work/strona.html").string())));
  EXPECT_FALSE(Window().isWindowModified());
}

TEST_F(MainWindowTest, AToolbarButtonWrapsTheSelection) {
  Start();
  program.ActiveEditor->SetText("abc");
  program.ActiveEditor->Select(0, 3);
  ToolButton("Toolbar1", "bold").click();
  EXPECT_EQ(Text(), "<B>abc</B>");
  ToolButton("Toolbar0", "undo").click();
  ToolButton("Toolbar0", "undo").click();
  EXPECT_EQ(Text(), "abc");
}

TEST_F(MainWindowTest, ButtonsWithoutACommandAreNotThere) {
  Start();
  EXPECT_EQ(Named<QWidget>(Window(), "Toolbar0").findChild<QToolButton*>(QStringLiteral("tools")), nullptr);
  EXPECT_EQ(Window().findChild<QWidget*>(QStringLiteral("Combo1")), nullptr);
}

QTabBar& ShowToolbar(MainWindow& window, const QString& title) {
  auto& tabs = Named<QTabBar>(window, "objectsmenu");
  tabs.setCurrentIndex(static_cast<int>(Titles(tabs).indexOf(title)));
  return tabs;
}

TEST_F(MainWindowTest, MacrosAreChosenBesideTheirToolbar) {
  std::filesystem::create_directories(folder.path / "program/MAKRO");
  Write("program/MAKRO/a.mac", "1");
  Write("program/MAKRO/b.mac", "2");
  Start();
  QTabBar& tabs = ShowToolbar(Window(), QStringLiteral("Makra"));
  auto& macros = Named<QComboBox>(Window(), "makro");
  EXPECT_TRUE(macros.isVisible());
  EXPECT_FALSE(macros.accessibleName().isEmpty());
  PressIn(macros, Qt::Key_Down);
  EXPECT_EQ(macros.currentText(), QStringLiteral("b"));
  ToolButton("Toolbar16", "run").click();
  EXPECT_EQ(Text(), "2");
  tabs.setCurrentIndex(0);
  EXPECT_FALSE(macros.isVisible());
}

TEST_F(MainWindowTest, ShortcutsWorkInAListOfMacros) {
  Start();
  TypeIn(Editor(), QStringLiteral("ab"));
  ShowToolbar(Window(), QStringLiteral("Makra"));
  PressIn(Named<QWidget>(Window(), "makro"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "a");
}

class PaintCounter : public QObject {
 public:
  int count = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint;
    return false;
  }
};

TEST_F(MainWindowTest, AButtonThatComesUpAgainIsPaintedSo) {
  Start();
  QToolButton& before = ToolButton("Toolbar10", "tags1");
  ASSERT_TRUE(before.isChecked());
  ASSERT_TRUE(WaitFor([&] { return Window().isActiveWindow(); }));
  Settle();
  PaintCounter paints;
  before.installEventFilter(&paints);
  ToolButton("Toolbar10", "user").click();
  Settle();
  EXPECT_FALSE(before.isChecked());
  EXPECT_GT(paints.count, 0);
}

TEST_F(MainWindowTest, EveryButtonHasAPictureAndAToolTip) {
  Start();
  auto& tabs = Named<QTabBar>(Window(), "objectsmenu");
  ASSERT_GE(tabs.count(), 9);
  for (int i = 0; i < tabs.count(); ++i) tabs.setCurrentIndex(i);
  int buttons = 0;
  for (const auto& toolbar : program.frame().toolbars)
    if (auto* shown = Window().findChild<QWidget*>(ToQt(toolbar->Name())))
      for (QToolButton* button : shown->findChildren<QToolButton*>()) {
        EXPECT_FALSE(button->icon().isNull()) << toolbar->Name() << " " << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << toolbar->Name() << " " << button->objectName().toStdString();
        ++buttons;
      }
  EXPECT_GE(buttons, 60);
}

TEST_F(MainWindowTest, TheTabBarSwitchesToolbars) {
  Start();
  auto& tabs = Named<QTabBar>(Window(), "objectsmenu");
  EXPECT_EQ(Window().findChild<QWidget*>(QStringLiteral("Toolbar3")), nullptr);
  tabs.setCurrentIndex(static_cast<int>(Titles(tabs).indexOf(QStringLiteral("Tabele"))));
  EXPECT_TRUE(Named<QWidget>(Window(), "Toolbar3").isVisible());
  EXPECT_FALSE(Named<QWidget>(Window(), "Toolbar1").isVisible());
  ToolButton("Toolbar3", "metatd").click();
  EXPECT_EQ(Text(), "<TD></TD>");
}

TEST_F(MainWindowTest, CdfModeBringsItsOwnTabs) {
  Start();
  SetCdfMode(program);
  Settle();
  EXPECT_FALSE(Named<QTabBar>(Window(), "objectsmenu").isVisible());
  SetHtmlMode(program);
  Settle();
  EXPECT_TRUE(Named<QTabBar>(Window(), "objectsmenu").isVisible());
}

TEST_F(MainWindowTest, ControlFOpensTheSearchAndFindsTheText) {
  Start();
  program.ActiveEditor->SetText("raz dwa trzy");
  InNextModal([](QWidget& modal) {
    EXPECT_EQ(modal.objectName(), QStringLiteral("search"));
    TypeIn(Named<QWidget>(modal, "Szukaj"), QStringLiteral("dwa"));
    PressIn(Named<QWidget>(modal, "Szukaj"), Qt::Key_Return);
  });
  PressIn(Editor(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(program.ActiveEditor->SelText(), "dwa");
}

TEST_F(MainWindowTest, ADialogLeavesTheSelectedTextFree) {
  Start();
  program.ActiveEditor->SetText(std::string(12, '\n') + "raz");
  program.ActiveEditor->Select(12, 3);
  auto& editor = static_cast<EditorWidget&>(Editor());
  InNextModal([&editor](QWidget& modal) {
    const QPoint text = editor.viewport()->mapToGlobal(editor.CaretRectangle().center());
    const QRect dialog = modal.frameGeometry();
    EXPECT_FALSE(dialog.top() <= text.y() && text.y() <= dialog.bottom());
    PressIn(modal, Qt::Key_Escape);
  });
  PressIn(editor, Qt::Key_F, Qt::ControlModifier);
}

TEST_F(MainWindowTest, MenusHoldWhatTheProgramHasCommandsFor) {
  Start();
  QMenu& file = MenuNamed(Window(), QStringLiteral("Plik"));
  ASSERT_NE(EntryOf(file, "xmn_save"), nullptr);
  EXPECT_EQ(EntryOf(file, "xmn_save")->text(), QStringLiteral("&Zapisz\tCtrl+S"));
  program.ActiveDocument->menu.SetVisible("xmn_save", false);
  Settle();
  EXPECT_EQ(EntryOf(MenuNamed(Window(), QStringLiteral("Plik")), "xmn_save"), nullptr);
  EntryOf(MenuNamed(Window(), QStringLiteral("Edycja")), "xmn_selectall")->trigger();
  QMenu& view = MenuNamed(Window(), QStringLiteral("Widok"));
  EXPECT_TRUE(EntryOf(view, "xmn_status_visible")->isChecked());
  EntryOf(view, "xmn_status_visible")->trigger();
  EXPECT_FALSE(program.frame().statusBar.Visible());
  EXPECT_FALSE(EntryOf(view, "xmn_status_visible")->isChecked());
}

TEST_F(MainWindowTest, PanelsComeAndGo) {
  Start();
  auto& files = Named<QWidget>(Window(), "Filelist");
  EXPECT_TRUE(files.isVisible());
  program.commands.RunMenu("xmn_filemanager_visible");
  EXPECT_FALSE(files.isVisible());
  program.commands.RunMenu("xmn_filemanager_visible");
  EXPECT_TRUE(files.isVisible());
  program.commands.RunMenu("xmn_windowsmanager_visible");
  EXPECT_FALSE(Documents(Window()).isVisible());
  program.commands.RunMenu("xmn_symbols_visible");
  EXPECT_FALSE(Named<QWidget>(Window(), "Chars").isVisible());
  program.commands.RunMenu("xmn_tools_visible");
  EXPECT_FALSE(Named<QWidget>(Window(), "Toolbar0").isVisible());
}

TEST_F(MainWindowTest, TabsBringDocumentsForwardAndCloseThem) {
  Start();
  NewEmptyDocument(program);
  Settle();
  EXPECT_EQ(Titles(Documents(Window())), (QStringList{QStringLiteral("BezTytułu.html"), QStringLiteral("BezTytułu1.html")}));
  EXPECT_EQ(Documents(Window()).currentIndex(), 1);
  Documents(Window()).setCurrentIndex(0);
  EXPECT_EQ(program.ActiveDocument->Caption(), "BezTytułu.html"_pl);
  emit Documents(Window()).tabCloseRequested(1);
  Settle();
  EXPECT_EQ(Documents(Window()).count(), 1);
  EXPECT_TRUE(WaitFor([this] { return program.closedDocuments.empty(); }));
}

TEST_F(MainWindowTest, WithoutADocumentTheSmallMenuServes) {
  Start();
  PressIn(Editor(), Qt::Key_W, Qt::ControlModifier);
  Settle();
  EXPECT_TRUE(program.documents.empty());
  EXPECT_EQ(Window().Pages().Current(), nullptr);
  EXPECT_EQ(EntryOf(MenuNamed(Window(), QStringLiteral("Plik")), "xmn_save"), nullptr);
  EXPECT_FALSE(Named<QWidget>(Window(), "Toolbar1").isEnabled());
  EXPECT_TRUE(Named<QWidget>(Window(), "Toolbar0").isEnabled());
}

TEST_F(MainWindowTest, ClosingAModifiedDocumentAsksAndCancelKeepsIt) {
  Start();
  TypeIn(Editor(), QStringLiteral("x"));
  QString question;
  AnswerNext(QStringLiteral("Anuluj"), &question);
  PressIn(Editor(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(question, QStringLiteral("Plik BezTytułu.html został zmieniony. Zapisać zmiany ?"));
  EXPECT_EQ(program.documents.size(), 1u);
  AnswerNext(QStringLiteral("Nie"));
  PressIn(Editor(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(program.documents.empty());
}

TEST_F(MainWindowTest, ARefusedQuitKeepsTheWindow) {
  Start();
  QString question;
  AnswerNext(QStringLiteral("Nie"), &question);
  Window().close();
  EXPECT_EQ(question, QStringLiteral("Chcesz zakończyć pracę ?"));
  EXPECT_TRUE(Window().isVisible());
  AnswerNext(QStringLiteral("Tak"));
  Window().close();
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(MainWindowTest, KeysLeftByOtherPanelsReachTheMenu) {
  Start();
  TypeIn(Editor(), QStringLiteral("ab"));
  PressIn(Named<QWidget>(Window(), "Filelist"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "a");
}

TEST_F(MainWindowTest, FilesFromOutsideAreOpened) {
  Write("work/a.html", "<html>1");
  Start();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString((folder.path / "work/a.html").string()))});
  QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Window(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Window(), &drop);
  EXPECT_EQ(program.ActiveDocument->Caption(), Path("work/a.html"));
}

TEST_F(MainWindowTest, TheWindowPlacesAreRemembered) {
  Start();
  Window().resize(777, 555);
  Settle();
  AnswerNext(QStringLiteral("Tak"));
  Window().close();
  Settle();
  EXPECT_NE(ReadFile("windows/window-places.ini").find("MainWindow="), std::string::npos);
}

TEST_F(MainWindowTest, TheCaretLineAndTheColoursAreSeen) {
  Write("work/strona.html", "<html>\r\n<b>x</b>");
  environment.commandLine = Path("work/strona.html");
  Start();
  QWidget* text = static_cast<EditorWidget&>(Editor()).viewport();
  const QImage picture = text->grab().toImage();
  const QRect caret = static_cast<EditorWidget&>(Editor()).CaretRectangle();
  const QPoint right(picture.width() - 4, caret.center().y());
  EXPECT_NE(picture.pixelColor(right), picture.pixelColor(right + QPoint(0, 3 * caret.height())));
  int blue = 0;
  for (int y = caret.top(); y < caret.bottom(); ++y)
    for (int x = caret.left(); x < caret.left() + 60; ++x) {
      const QColor colour = picture.pixelColor(x, y);
      blue += colour.blue() > 150 && colour.red() < 100;
    }
  EXPECT_GT(blue, 10);
}

TEST_F(MainWindowTest, SymbolsGoIntoTheText) {
  Start();
  Named<QToolButton>(Window(), "Chars2(0)").click();
  EXPECT_EQ(Text(), "©"_pl);
  auto& letters = Named<QWidget>(Window(), "Chars");
  ClickAt(letters, QPoint(3, letters.height() / 2));
  EXPECT_EQ(program.frame().Chars.ListIndex(), 0);
  PressIn(letters, Qt::Key_Right);
  EXPECT_EQ(program.frame().Chars.ListIndex(), 1);
  PressIn(letters, Qt::Key_Return);
  EXPECT_EQ(Text(), "©Â"_pl);
}

TEST_F(MainWindowTest, TheRightButtonReplacesASymbol) {
  Start();
  InNextModal([](QWidget& modal) {
    auto* field = modal.findChild<QLineEdit*>();
    field->setText(QStringLiteral("§"));
    PressIn(*field, Qt::Key_Return);
  });
  auto& button = Named<QToolButton>(Window(), "Chars2(0)");
  QContextMenuEvent right(QContextMenuEvent::Mouse, QPoint(2, 2), button.mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(&button, &right);
  EXPECT_EQ(button.text(), QStringLiteral("§"));
}

}  // namespace
}  // namespace morlan
