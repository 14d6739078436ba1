#include "platform/qt/sidepanel.h"

#include <QListView>
#include <QMimeData>
#include <QUrl>

#include "core/filepanel.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

class SidePanelTest : public DesktopTest {
 protected:
  SidePanelTest() {
    std::filesystem::create_directory(folder.path / "work/podkatalog");
    Write("work/a.html", "<html>a");
    Write("work/b.gif", "GIF");
    Write("work/podkatalog/c.html", "<html>c");
    Start();
  }
  QListView& List(const char* name) { return Named<QListView>(Window(), name); }
  QStringList Rows(const char* name) {
    Settle();
    QStringList rows;
    for (int i = 0; i < List(name).model()->rowCount(); ++i) rows += List(name).model()->index(i, 0).data().toString();
    return rows;
  }
};

TEST_F(SidePanelTest, ShowsTheDirectoryWithPictures) {
  EXPECT_EQ(Rows("Filelist"), QStringList{QStringLiteral("a.html")});
  EXPECT_EQ(Rows("Dirlist"), (QStringList{QStringLiteral(".."), QStringLiteral("podkatalog")}));
  EXPECT_FALSE(List("Filelist").model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
}

TEST_F(SidePanelTest, EnterOpensDirectoriesAndFiles) {
  List("Dirlist").setCurrentIndex(List("Dirlist").model()->index(1, 0));
  PressIn(List("Dirlist"), Qt::Key_Return);
  EXPECT_EQ(Rows("Filelist"), QStringList{QStringLiteral("c.html")});
  List("Filelist").setCurrentIndex(List("Filelist").model()->index(0, 0));
  PressIn(List("Filelist"), Qt::Key_Return);
  EXPECT_EQ(program.ActiveDocument->Caption(), Path("work/podkatalog/c.html"));
}

TEST_F(SidePanelTest, ADraggedFileIsItsNativePath) {
  Settle();
  const QAbstractItemModel& files = *List("Filelist").model();
  const std::unique_ptr<QMimeData> data(files.mimeData({files.index(0, 0)}));
  ASSERT_NE(data, nullptr);
  EXPECT_EQ(data->urls(), QList<QUrl>{QUrl::fromLocalFile(QString::fromStdString((folder.path / "work/a.html").string()))});
}

TEST_F(SidePanelTest, AnotherKindOfFilesIsListed) {
  program.frame().filetypes.UserSelects(2);
  EXPECT_EQ(Rows("Filelist"), QStringList{QStringLiteral("b.gif")});
}

}  // namespace
}  // namespace morlan
