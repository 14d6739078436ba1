#include "platform/qt/editorview.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QScrollBar>
#include <QThread>
#include <QUrl>
#include <QWheelEvent>

#include "core/defs.h"
#include "core/text.h"
#include "tests/desktop/editorfixture.h"

namespace morlan {
namespace {

constexpr Qt::KeyboardModifiers kNone = Qt::NoModifier;

std::string ManyLines(int count) {
  std::string text;
  for (int line = 1; line <= count; ++line) text += "wiersz " + std::to_string(line) + "\r\n";
  return text;
}

TEST_F(EditorTest, EveryPolishLetterIsOneCharacterAndOneRecordAndStartsNoCommand) {
  Open("");
  const QString letters = QStringLiteral("ąćęłńóśżźĄĆĘŁŃÓŚŻŹ");
  program.Asked();
  for (qsizetype i = 0; i < letters.size(); ++i) {
    Press(letters[i].toUpper().unicode(), i % 2 ? Qt::GroupSwitchModifier : Qt::ControlModifier | Qt::AltModifier, QString(letters[i]));
    EXPECT_EQ(document->UNDO.Count(), static_cast<std::size_t>(i + 1));
  }
  EXPECT_EQ(Text(), "ąćęłńóśżźĄĆĘŁŃÓŚŻŹ"_pl);
  EXPECT_TRUE(program.Asked().empty());
}

TEST_F(EditorTest, ACharacterThatWindows1250LacksBecomesAReferenceInOneRecord) {
  Open("a");
  Press(Qt::Key_unknown, kNone, QStringLiteral("π"));
  EXPECT_EQ(Text(), "&#960;a");
  EXPECT_EQ(document->UNDO.Count(), 1u);
}

TEST_F(EditorTest, ControlZUndoesAndIsTakenBeforeAnyMenu) {
  Open("");
  Type(QStringLiteral("ab"));
  EXPECT_TRUE(Overrides(Qt::Key_Z, Qt::ControlModifier));
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "a");
}

TEST_F(EditorTest, MenusKeepTheirAltLetters) {
  Open("");
  EXPECT_FALSE(Overrides(Qt::Key_P, Qt::AltModifier, QStringLiteral("p")));
  EXPECT_TRUE(Overrides(Qt::Key_Space, Qt::AltModifier, QStringLiteral(" ")));
  EXPECT_TRUE(Overrides(Qt::Key_Tab, kNone, QStringLiteral("\t")));
  EXPECT_FALSE(Overrides(Qt::Key_Shift, Qt::ShiftModifier));
}

TEST_F(EditorTest, AltSpaceInsertsANoBreakSpace) {
  Open("ab");
  editor().SetSelStart(1);
  Press(Qt::Key_Space, Qt::AltModifier, QStringLiteral(" "));
  EXPECT_EQ(Text(), "a&nbsp;b");
}

TEST_F(EditorTest, TabTypesATab) {
  Open("");
  Press(Qt::Key_Tab, kNone, QStringLiteral("\t"));
  EXPECT_EQ(Text(), "\t");
}

TEST_F(EditorTest, NothingIsTypedWhileADocumentIsLoading) {
  Open("a");
  program.program.DocumentLoading = true;
  Type(QStringLiteral("x"));
  Press(Qt::Key_unknown, kNone, QStringLiteral("π"));
  EXPECT_EQ(Text(), "a");
  program.program.DocumentLoading = false;
}

TEST_F(EditorTest, AnInputMethodCommitsOneRecordAndItsPreeditIsNoText) {
  Open("");
  QInputMethodEvent preedit(QStringLiteral("zaż"), {});
  QApplication::sendEvent(view.get(), &preedit);
  EXPECT_EQ(Text(), "");
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("zażółć"));
  QApplication::sendEvent(view.get(), &commit);
  EXPECT_EQ(Text(), "zażółć"_pl);
  EXPECT_EQ(document->UNDO.Count(), 1u);
}

TEST_F(EditorTest, ADeadKeysCommitIsOneTypedCharacter) {
  Open("");
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("ń"));
  QApplication::sendEvent(view.get(), &commit);
  EXPECT_EQ(Text(), "ń"_pl);
  EXPECT_EQ(document->UNDO.Count(), 1u);
}

TEST_F(EditorTest, TheInputMethodLearnsWhereTheCaretIs) {
  Open("raz dwa");
  editor().SetSelStart(4);
  Settle();
  EXPECT_EQ(view->inputMethodQuery(Qt::ImCursorPosition).toInt(), 4);
  EXPECT_EQ(view->inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("raz dwa"));
  EXPECT_EQ(view->inputMethodQuery(Qt::ImCursorRectangle).toRect().left(), static_cast<int>(PointOf(4).x()));
}

TEST_F(EditorTest, TheMouseSelectsCharactersWordsAndLines) {
  Open("raz dwa\r\ntrzy cztery");
  DragMouse(1, 6);
  EXPECT_EQ(editor().SelText(), "az dw");
  Click(2);
  EXPECT_EQ(editor().SelLength(), 0u);
  EXPECT_EQ(editor().Caret(), 2u);
  Click(5, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(editor().SelText(), "z d");
  Mouse(QEvent::MouseButtonDblClick, PointOf(11));
  Mouse(QEvent::MouseButtonRelease, PointOf(11));
  EXPECT_EQ(editor().SelText(), "trzy");
  Click(11);
  EXPECT_EQ(editor().SelText(), "trzy cztery");
}

TEST_F(EditorTest, AClickOnTheSelectionPutsTheCaretThere) {
  Open("raz dwa");
  editor().Select(0, 7);
  Click(3);
  EXPECT_EQ(editor().SelLength(), 0u);
  EXPECT_EQ(editor().Caret(), 3u);
}

TEST_F(EditorTest, TheMarginSelectsLines) {
  Open("raz\r\ndwa");
  Mouse(QEvent::MouseButtonPress, QPointF(3, PointOf(5).y()));
  Mouse(QEvent::MouseButtonRelease, QPointF(3, PointOf(5).y()));
  EXPECT_EQ(editor().SelText(), "dwa");
}

TEST_F(EditorTest, TheRightButtonMovesTheCaretOnlyOutsideTheSelection) {
  Open("raz <B>dwa</B>");
  editor().Select(0, 3);
  Click(1, Qt::RightButton);
  EXPECT_EQ(editor().SelText(), "raz");
  EXPECT_NE(program.frontEnd.poppedUp, nullptr);
  program.frontEnd.poppedUp = nullptr;
  Click(6, Qt::RightButton);
  EXPECT_EQ(editor().SelLength(), 0u);
  EXPECT_EQ(editor().Caret(), 6u);
  EXPECT_EQ(program.frontEnd.poppedUp, &document->xmnm_editpopup);
}

TEST_F(EditorTest, TheMenuKeyOpensTheMenuOnce) {
  Open("raz");
  Press(Qt::Key_Menu);
  QContextMenuEvent follows(QContextMenuEvent::Keyboard, {}, {});
  QApplication::sendEvent(view.get(), &follows);
  int shown = 0;
  for (const std::string& line : program.Asked()) shown += line.starts_with("popup");
  EXPECT_EQ(shown, 1);
}

TEST_F(EditorTest, TheMiddleButtonPastesThePrimarySelectionAsOneRecord) {
  if (!QGuiApplication::clipboard()->supportsSelection()) GTEST_SKIP() << "no primary selection on this platform";
  Open("raz dwa");
  QGuiApplication::clipboard()->setText(QStringLiteral("π\nx"), QClipboard::Selection);
  Click(3, Qt::MiddleButton);
  EXPECT_EQ(Text(), "raz&#960;\r\nx dwa");
  EXPECT_EQ(document->UNDO.Count(), 1u);
}

TEST_F(EditorTest, SelectedTextIsOfferedAsPrimarySelection) {
  if (!QGuiApplication::clipboard()->supportsSelection()) GTEST_SKIP() << "no primary selection on this platform";
  Open("zażółć"_pl);
  DragMouse(0, 4);
  EXPECT_EQ(QGuiApplication::clipboard()->text(QClipboard::Selection), QStringLiteral("zażó"));
}

TEST_F(EditorTest, TextDroppedFromElsewhereIsInsertedWhereItFalls) {
  Open("raz dwa");
  QMimeData data;
  data.setText(QStringLiteral("<b>\nż"));
  EXPECT_TRUE(Drop(data, 4));
  EXPECT_EQ(Text(), "raz <b>\r\nżdwa"_pl);
  EXPECT_EQ(document->UNDO.Count(), 1u);
}

TEST_F(EditorTest, FilesOfOtherProgramsAreLeftToTheWindow) {
  Open("raz");
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/a.gif"))});
  data.setText(QStringLiteral("file:///tmp/a.gif"));
  EXPECT_FALSE(Drop(data, 1));
  EXPECT_EQ(Text(), "raz");
}

TEST_F(EditorTest, AFileOfOurOwnListBecomesATagWhereItFalls) {
  Open("raz dwa");
  QMimeData data;
  data.setData(QStringLiteral("application/x-morlan7-file"),
               QByteArray::fromStdString((program.folder.path / "work" / "rys" / "a.gif").string()));
  EXPECT_TRUE(Drop(data, 4));
  EXPECT_EQ(Text(), "raz <IMG SRC=\"rys/a.gif\">dwa");
}

TEST_F(EditorTest, UpAndDownWalkTheRowsOfAWrappedLine) {
  std::string line;
  for (int word = 0; word < 60; ++word) line += "slowo ";
  Open(line);
  editor().SetWordWrap(true);
  Settle();
  Press(Qt::Key_Down);
  const std::size_t second = editor().Caret();
  EXPECT_GT(second, 0u);
  EXPECT_EQ(second, view->Scene().Rows().SpanOf({0, 1}).start);
  Press(Qt::Key_End);
  EXPECT_EQ(editor().Caret() + 1, view->Scene().Rows().SpanOf({0, 2}).start);
  Press(Qt::Key_Home);
  EXPECT_EQ(editor().Caret(), second);
}

TEST_F(EditorTest, ALongWrappedLineScrollsByRows) {
  std::string line;
  while (line.size() < 20000) line += "slowo ";
  Open(line);
  editor().SetWordWrap(true);
  Settle();
  view->ScrollByRows(7);
  EXPECT_EQ(view->Scene().Top(), (RowPosition{0, 7}));
  view->verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(view->Scene().Top(), (RowPosition{0, 8}));
  view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
  EXPECT_EQ(view->Scene().Top(), view->Scene().LastTop());
}

TEST_F(EditorTest, TheCaretStaysInTheView) {
  Open(ManyLines(500));
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(view->Scene().Top(), view->Scene().LastTop());
  EXPECT_TRUE(view->viewport()->rect().contains(view->CaretRectangle()));
  Press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(view->Scene().Top(), RowPosition{});
}

TEST_F(EditorTest, APlaceThatACommandSelectsComesUpWithRowsRoundIt) {
  Open(ManyLines(500));
  const std::size_t hit = Text().find("wiersz 300\r");
  editor().Select(hit, 6);
  Settle();
  const std::size_t top = view->Scene().Top().line, page = view->Scene().Rows().RowsInPage();
  EXPECT_LE(top + 3, 299u);
  EXPECT_GE(top + page, 299u + 3u);
}

TEST_F(EditorTest, EditsAboveTheViewLeaveWhatIsShown) {
  Open(ManyLines(500));
  view->ScrollByRows(100);
  editor().Select(0, 0);
  editor().SetSelText("nowy\r\nnowy\r\n");
  EXPECT_EQ(view->Scene().Top(), (RowPosition{102, 0}));
}

TEST_F(EditorTest, TheLastLinesMayVanishUnderTheView) {
  Open(ManyLines(500));
  Press(Qt::Key_End, Qt::ControlModifier);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_Delete);
  Settle();
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(view->Scene().Top(), RowPosition{});
  Picture();
}

TEST_F(EditorTest, TheViewFollowsSidewaysInAVeryLongLine) {
  Open(std::string(1 << 20, 'x'));
  editor().SetSelStart(500000);
  Settle();
  EXPECT_GT(view->Scene().Scroll(), 0);
  EXPECT_TRUE(view->viewport()->rect().contains(view->CaretRectangle()));
  Press(Qt::Key_Home);
  EXPECT_EQ(view->Scene().Scroll(), 0);
}

TEST_F(EditorTest, LineNumbersCanBeSwitchedOff) {
  Open("raz");
  const double with = PointOf(0).x();
  EXPECT_GT(view->Scene().MarginWidth(), 0);
  view->SetLineNumbersShown(false);
  EXPECT_EQ(view->Scene().MarginWidth(), 0);
  EXPECT_LT(PointOf(0).x(), with);
}

TEST_F(EditorTest, TheWheelWithControlZoomsForTheRun) {
  Open("raz");
  int told = 0;
  view->OnZoomChanged = [&](int points) { told = points; };
  const double height = view->Scene().RowHeight();
  const QPointF point(50, 50);
  QWheelEvent wheel(point, view->viewport()->mapToGlobal(point), {}, {0, 360}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(view->viewport(), &wheel);
  EXPECT_EQ(view->Zoom(), 3);
  EXPECT_EQ(told, 3);
  EXPECT_GT(view->Scene().RowHeight(), height);
  EXPECT_EQ(editor().Font().size, 10);
  view->ResetZoom();
  EXPECT_EQ(view->Scene().RowHeight(), height);
}

TEST_F(EditorTest, PaintsTagsInTheirColourAndMarksTheCaretsLine) {
  Open("zwykly\r\n<HTML>\r\nx");
  editor().SetSelStart(0);
  Settle();
  const QImage picture = Picture();
  const std::size_t tag = Text().find('H');
  EXPECT_GT(Pixels(picture, tag, QColor(0, 0, 255)), 0);
  EXPECT_EQ(Pixels(picture, 0, QColor(0, 0, 255)), 0);
  const EditorColours& colours = view->Painter().Colours();
  EXPECT_GT(Pixels(picture, 5, colours.currentLine), 10);
  EXPECT_EQ(Pixels(picture, tag, colours.currentLine), 0);
  EXPECT_GT(Pixels(picture, tag, colours.background), 10);
}

TEST_F(EditorTest, PaintsTheSelectionAndItsLineEnd) {
  Open("ab\r\ncd");
  editor().Select(1, 4);
  Settle();
  const QImage picture = Picture();
  const QColor selection = view->Painter().Colours().selection;
  EXPECT_EQ(Pixels(picture, 0, selection), 0);
  EXPECT_GT(Pixels(picture, 1, selection), 10);
  const QPointF lineEnd = PointOf(2) + QPointF(view->Scene().Glyphs().CellWidth() / 2, 0);
  EXPECT_EQ(picture.pixelColor(OnDevice(picture, QRectF(lineEnd, QSizeF(1, 1))).topLeft()), selection);
}

TEST_F(EditorTest, PaintsAnyByte) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  Open(all);
  EXPECT_FALSE(Picture().isNull());
  EXPECT_EQ(Text(), all);
}

// Notes what the viewport repaints.
class PaintWatch : public QObject {
 public:
  QRegion painted;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(EditorTest, AKeyRepaintsItsLineAlone) {
  Open(ManyLines(100));
  editor().SetSelStart(Text().find("wiersz 5\r"));
  Type(QStringLiteral("a"));
  Settle();
  PaintWatch watch;
  view->viewport()->installEventFilter(&watch);
  Type(QStringLiteral("b"));
  for (int wait = 0; wait < 200 && watch.painted.isEmpty(); ++wait) {
    QThread::msleep(1);
    QApplication::processEvents();
  }
  EXPECT_FALSE(watch.painted.isEmpty());
  EXPECT_LE(watch.painted.boundingRect().height(), view->Scene().RowHeight() + 1);
}

TEST_F(EditorTest, ACommandMayTakeTheViewAway) {
  Open("raz");
  EXPECT_TRUE(view->Run([] {}));
  EditorWidget* const gone = view.get();
  EXPECT_FALSE(gone->Run([this] { view.reset(); }));
}

TEST_F(EditorTest, TheDocumentLivesAsLongAsItsView) {
  Open("raz");
  program.program.documents.clear();
  program.program.ActiveDocument = nullptr;
  program.program.ActiveEditor = nullptr;
  program.program.ForgetClosed();
  EXPECT_EQ(editor().Text(), "raz");
  view.reset();
}

TEST_F(EditorTest, HintsAreShownBesideTheCaret) {
  Open("<IMG ");
  editor().SetSelStart(5);
  document->FastHelpC.AddItem("ALT");
  document->FastHelpC.AddItem("SRC");
  document->FastHelpC.SetVisible(true);
  Press(Qt::Key_Down);
  QWidget* const list = QApplication::focusWidget();
  ASSERT_NE(list, nullptr);
  ASSERT_NE(list, view.get());
  EXPECT_GE(list->geometry().top(), view->CaretRectangle().bottom());
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, kNone), enter(QEvent::KeyPress, Qt::Key_Return, kNone, QStringLiteral("\r"));
  QApplication::sendEvent(list, &down);
  QApplication::sendEvent(list, &enter);
  EXPECT_EQ(Text(), "<IMG SRC");
  EXPECT_FALSE(document->FastHelpC.Visible());
  EXPECT_TRUE(view->hasFocus());
}

TEST_F(EditorTest, AssistiveTechnologyReadsTextCaretAndSelection) {
  Open("zażółć gęślą"_pl);
  editor().Select(7, 5);
  QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(view.get());
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Tekst dokumentu"));
  QAccessibleTextInterface* const text = accessible->textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(0, 6), QStringLiteral("zażółć"));
  EXPECT_EQ(text->cursorPosition(), 12);
  int start = 0, end = 0;
  text->selection(0, &start, &end);
  EXPECT_EQ(start, 7);
  EXPECT_EQ(end, 12);
  EXPECT_EQ(text->offsetAtPoint(text->characterRect(3).center()), 3);
}

}  // namespace
}  // namespace morlan
