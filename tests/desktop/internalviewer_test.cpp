// The internal viewer with the real browser engine.
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QStandardPaths>

#include "core/documents.h"
#include "core/frmbrowser.h"
#include "core/preview.h"
#include "core/text.h"
#include "platform/qt/editorpages.h"
#include "platform/qt/findbar.h"
#include "platform/qt/qttext.h"
#include "platform/qt/webplugin.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

const QString kPlugins = QStringLiteral(MORLAN7_PLUGINS);

constexpr std::string_view kPage =
    "<html><head><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=windows-1250\"><title>Zażółć gęślą</title></head>\r\n"
    "<body><h1>Jaźń</h1><a href=\"druga.html\" accesskey=\"d\">Łódź</a></body></html>"_pl;

class InternalViewer : public DesktopTest {
 protected:
  InternalViewer() {
    QCoreApplication::addLibraryPath(kPlugins);
    Write("work/strona.html", "<html>");
    Write("work/druga.html", "<html><head><title>Druga</title></head><body>Kot</body></html>");
    environment.commandLine = Path("work/strona.html");
    Start();
    program.ActiveEditor->SetText(std::string(kPage));
  }
  // A machine that forbids the engine to shut its pages off shows no page; the viewer says so and nothing more can be tested.
  void SetUp() override {
    const MadeWebWidget made = MakeWebWidget(&Window());
    if (!made.page && made.reason.contains(QStringLiteral("przestrzenie nazw"))) GTEST_SKIP() << made.reason.toStdString();
  }
  FrmBrowser& Viewer() { return program.forms.Get<FrmBrowser>(); }
  // Starting the engine for the first time may take its time on a busy machine.
  bool Shows(std::string_view title) {
    const auto shown = [&] { return !Viewer().brwWebBrowser.Busy() && Viewer().Caption() == title; };
    for (int round = 0; round < 5; ++round)
      if (WaitFor(shown)) return true;
    return false;
  }
  void Click(const char* button) { Named<QToolButton>(Window(), button).click(); }
  QWidget& Page() { return Named<QWidget>(Window(), "brwWebBrowser"); }
  static std::string TextOf(WebWidget& page) {
    QString text;
    bool there = false;
    page.ReadText([&](const QString& read) {
      text = read;
      there = true;
    });
    WaitFor([&] { return there; });
    return text.toStdString();
  }
};

TEST_F(InternalViewer, ShowsTheUnsavedPageUnderItsTitle) {
  Click("SelViewer");
  ASSERT_TRUE(Shows("Zażółć gęślą"_pl)) << ToUtf8(Viewer().Caption());
  EXPECT_EQ(Viewer().brwWebBrowser.LocationURL(), "file://" + Path("work/Morlan7.html"));
  Settle();
  EXPECT_TRUE(Window().windowTitle().startsWith(QStringLiteral("Zażółć gęślą — ")));
  EXPECT_TRUE(Page().isVisible());
  EXPECT_FALSE(Editor().isVisible());
  EXPECT_TRUE(Named<QToolButton>(Window(), "SelViewer").isChecked());
  EXPECT_EQ(Named<QComboBox>(Window(), "cboAddress").currentText(), ToQt(Viewer().brwWebBrowser.LocationURL()));
}

TEST_F(InternalViewer, PolishLettersAreReadAsThePageTellsAndAsWindows1250WhereItDoesNot) {
  Write("work/bez.html", "<html><body>zażółć gęślą jaźń</body></html>"_pl);
  Write("work/iso.html",
        "<html><head><meta http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-2\"></head><body>\xB1\xB6\xBC</body></html>");
  const MadeWebWidget made = MakeWebWidget(&Window());
  ASSERT_TRUE(made.page) << made.reason.toStdString();
  bool complete = false;
  made.page->onComplete = [&] { complete = true; };
  for (const auto& [file, text] : {std::pair("work/bez.html", "zażółć gęślą jaźń"), std::pair("work/iso.html", "ąśź")}) {
    complete = false;
    made.page->Load(QUrl::fromLocalFile(QString::fromStdString((folder.path / file).string())));
    ASSERT_TRUE(WaitFor([&] { return complete; })) << file;
    EXPECT_EQ(TextOf(*made.page), text) << file;
  }
}

TEST_F(InternalViewer, EscGoesBackToTheText) {
  Click("SelViewer");
  ASSERT_TRUE(Shows("Zażółć gęślą"_pl));
  PressIn(*Page().parentWidget(), Qt::Key_Escape);
  Settle();
  EXPECT_EQ(ShownViewer(program), nullptr);
  EXPECT_TRUE(Editor().isVisible());
  EXPECT_TRUE(Named<QToolButton>(Window(), "SelEditor").isChecked());
  EXPECT_TRUE(Window().windowTitle().startsWith(QString::fromStdString((folder.path / "work/strona.html").string())));
  TypeIn(Editor(), QStringLiteral("a"));
  EXPECT_TRUE(Text().starts_with("a<html>"));
}

TEST_F(InternalViewer, TheTabOfTheDocumentGoesBackToTheText) {
  Click("SelViewer");
  ASSERT_TRUE(Shows("Zażółć gęślą"_pl));
  auto& tabs = Named<QTabBar>(Window(), "WindowsManager");
  ClickAt(tabs, tabs.tabRect(0).center());
  Settle();
  EXPECT_TRUE(Editor().isVisible());
}

TEST_F(InternalViewer, ComesUpAgainWithTheChangedText) {
  for (const std::string_view title : {"Raz", "Dwa", "Trzy"}) {
    program.ActiveEditor->SetText(Concat({"<title>", title, "</title>"}));
    Click("SelViewer");
    EXPECT_TRUE(Shows(title)) << ToUtf8(Viewer().Caption());
    Click("SelEditor");
    Settle();
  }
  Click("SelViewer");
  EXPECT_TRUE(Shows("Trzy"));
  program.ActiveEditor->SetText("<title>Cztery</title>");
  Click("SelViewer");
  EXPECT_TRUE(Shows("Cztery"));
}

TEST_F(InternalViewer, GoesToATypedPathAndBackByTheKeys) {
  Click("SelViewer");
  ASSERT_TRUE(Shows("Zażółć gęślą"_pl));
  auto& address = Named<QComboBox>(Window(), "cboAddress");
  address.lineEdit()->selectAll();
  TypeIn(*address.lineEdit(), QString::fromStdString((folder.path / "work/druga.html").string()));
  PressIn(address, Qt::Key_Return);
  ASSERT_TRUE(Shows("Druga"));
  EXPECT_EQ(Viewer().brwWebBrowser.LocationURL(), "file://" + Path("work/druga.html"));
  PressIn(*Page().parentWidget(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(Shows("Zażółć gęślą"_pl));
  PressIn(*Page().parentWidget(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_TRUE(Shows("Druga"));
  PressIn(*Page().parentWidget(), Qt::Key_Home, Qt::AltModifier);
  EXPECT_TRUE(Shows("Zażółć gęślą"_pl));
}

TEST_F(InternalViewer, F5FetchesThePageAnewInsteadOfStartingABrowser) {
  program.AlwaysViewFile = Path("work/druga.html");
  Click("SelViewer");
  ASSERT_TRUE(Shows("Druga"));
  Write("work/druga.html", "<title>Inna</title>");
  record.clear();
  PressIn(*Page().parentWidget(), Qt::Key_F5);
  EXPECT_TRUE(Shows("Inna"));
  EXPECT_EQ(record, Record{});
}

TEST_F(InternalViewer, ControlFOpensALineThatEscCloses) {
  Click("SelViewer");
  ASSERT_TRUE(Shows("Zażółć gęślą"_pl));
  auto& line = *dynamic_cast<FindBar*>(Page().findChild<QLineEdit*>()->parentWidget());
  EXPECT_FALSE(line.isVisible());
  PressIn(*Page().parentWidget(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(line.isVisible());
  TypeIn(*line.findChild<QLineEdit*>(), QStringLiteral("Łódź"));
  PressIn(*line.findChild<QLineEdit*>(), Qt::Key_Escape);
  EXPECT_FALSE(line.isVisible());
  EXPECT_NE(ShownViewer(program), nullptr);
}

TEST_F(InternalViewer, APageThatIsNotThereEndsTheWaiting) {
  program.AlwaysViewFile = "c:\\nie\\ma.html";
  Click("SelViewer");
  EXPECT_TRUE(WaitFor([&] { return !Viewer().brwWebBrowser.Busy(); }));
}

TEST_F(InternalViewer, KeepsNothingOnTheDisk) {
  Click("SelViewer");
  ASSERT_TRUE(Shows("Zażółć gęślą"_pl));
  for (const auto place : {QStandardPaths::AppLocalDataLocation, QStandardPaths::CacheLocation})
    EXPECT_FALSE(QDir(QStandardPaths::writableLocation(place) + QStringLiteral("/QtWebEngine")).exists());
}

TEST_F(InternalViewer, WithoutThePlugInItTellsSo) {
  QCoreApplication::removeLibraryPath(kPlugins);
  Click("SelViewer");
  Settle();
  const auto& notice = Named<QLabel>(Page(), "notice");
  EXPECT_TRUE(notice.isVisible());
  EXPECT_TRUE(notice.text().startsWith(QStringLiteral("Wtyczka podglądu wewnętrznego nie jest zainstalowana")));
  EXPECT_FALSE(Viewer().brwWebBrowser.Busy());
  for (const char* key : {"Back", "Refresh", "Search", "Stop"}) EXPECT_TRUE(Viewer().tbToolBar.UserPresses(key));
  PressIn(*Page().parentWidget(), Qt::Key_Escape);
  EXPECT_EQ(ShownViewer(program), nullptr);
}

}  // namespace
}  // namespace morlan
