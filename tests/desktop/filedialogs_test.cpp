#include "platform/qt/filedialogs.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QTreeView>

#include "platform/qt/qttext.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

class FileDialogTest : public DesktopTest {
 protected:
  FileRequest Save() {
    return {.mode = FileRequest::Mode::Save,
            .title = "Zapisz jako",
            .filter = "Plik HTML (*.HTML)|*.htm,*.html|",
            .directory = Path("work"),
            .fileName = "",
            .extension = ".html",
            .overwritePrompt = true};
  }
  static void TypeName(QWidget& modal, const QString& name) {
    auto* field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(field, nullptr);
    field->setText(name);
    PressIn(*field, Qt::Key_Return);
  }
};

TEST_F(FileDialogTest, GivesThePathInTheProgramsForm) {
  InNextModal([](QWidget& modal) {
    EXPECT_EQ(modal.windowTitle(), QStringLiteral("Zapisz jako"));
    EXPECT_EQ(static_cast<QFileDialog&>(modal).nameFilters(), QStringList{QStringLiteral("Plik HTML (*.htm *.html)")});
    TypeName(modal, QStringLiteral("nowa"));
  });
  EXPECT_EQ(AskForFile(Save(), files, nullptr), Path("work/nowa"));
}

TEST_F(FileDialogTest, TellsSizesAndDatesInFull) {
  Write("work/strona.html", "x");
  InNextModal([](QWidget& modal) {
    auto* list = modal.findChild<QTreeView*>(QStringLiteral("treeView"));
    ASSERT_TRUE(WaitFor([list] { return list->model()->rowCount(list->rootIndex()) == 1; }));
    Settle();
    for (int column = 1; column < list->model()->columnCount(list->rootIndex()); ++column) {
      const QString text = list->model()->index(0, column, list->rootIndex()).data().toString();
      EXPECT_GT(list->columnWidth(column), list->fontMetrics().horizontalAdvance(text)) << text.toStdString();
    }
    PressIn(modal, Qt::Key_Escape);
  });
  AskForFile(Save(), files, nullptr);
}

TEST_F(FileDialogTest, CancelGivesNothing) {
  InNextModal([](QWidget& modal) { PressIn(modal, Qt::Key_Escape); });
  EXPECT_EQ(AskForFile(Save(), files, nullptr), std::nullopt);
}

TEST_F(FileDialogTest, AsksAboutTheFileWithTheExtensionThatComesLater) {
  Write("work/stara.html", "x");
  QString question;
  InNextModal([&question](QWidget& modal) {
    AnswerNext(QStringLiteral("Tak"), &question);
    TypeName(modal, QStringLiteral("stara"));
  });
  EXPECT_EQ(AskForFile(Save(), files, nullptr), Path("work/stara"));
  EXPECT_TRUE(question.contains(QStringLiteral("stara.html"))) << question.toStdString();
}

TEST_F(FileDialogTest, OpensAnExistingFile) {
  Write("work/jest.html", "x");
  InNextModal([](QWidget& modal) { TypeName(modal, QStringLiteral("jest.html")); });
  EXPECT_EQ(
      AskForFile(
          {.mode = FileRequest::Mode::Open, .title = "Otwórz", .filter = "", .directory = Path("work"), .fileName = "", .extension = ""},
          files, nullptr),
      Path("work/jest.html"));
}

}  // namespace
}  // namespace morlan
