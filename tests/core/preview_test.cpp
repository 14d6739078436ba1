// The preview of the present text in outside browsers and in the window.
#include "core/preview.h"

#include <gtest/gtest.h>

#include "core/alwaysview.h"
#include "core/documents.h"
#include "core/frmbrowser.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class Preview : public testing::Test {
 protected:
  void SetBrowser(std::string_view path) { test_.program.MainIni.SetSubItemValue("Browser", "Current", path); }
  // A browser that exists, by its path.
  std::string MakeBrowser() {
    test_.Write("work\\lis.exe", "x");
    return test_.Path("work\\lis.exe");
  }
  std::string Started(std::string_view browser, std::string_view relative) {
    return Concat({"start ", Quoted(Concat({browser, " ", test_.Path(relative)})), " 3"});
  }
  std::string Opened(std::string_view relative) { return Concat({"shell ", Quoted(test_.Path(relative))}); }
  TestProgram test_;
  Program& program_ = test_.program;
};

TEST_F(Preview, WritesTheTextBesideTheDocumentAndStartsTheBrowserMaximised) {
  const std::string browser = MakeBrowser();
  SetBrowser(browser);
  test_.OpenText("<html>zażółć"_pl, "dom\\strona.html");
  PreviewDocument(program_);
  EXPECT_EQ(test_.Asked(), Record{Started(browser, "work\\dom\\Morlan7.html")});
  EXPECT_EQ(test_.Read("work\\dom\\Morlan7.html"), "<html>zażółć"_pl);
  EXPECT_EQ(program_.PreviewFile, test_.Path("work\\dom\\Morlan7.html"));
}

TEST_F(Preview, LeavesTheDocumentAsItIs) {
  TEditor& document = test_.OpenText("a", "strona.html");
  document.EditedText.SetSelText("b");
  PreviewDocument(program_);
  EXPECT_TRUE(document.EditedText.Modified);
  EXPECT_EQ(document.NeedToBeSaved.Caption(), "True");
  EXPECT_EQ(test_.Read("work\\strona.html"), "<html>");
  EXPECT_EQ(document.Caption(), test_.Path("work\\strona.html"));
}

TEST_F(Preview, ADocumentWithoutADirectoryIsShownFromTheCurrentOne) {
  program_.ActiveEditor->SetText("x");
  ASSERT_EQ(program_.ActiveDocument->Caption(), "BezTytułu.html"_pl);
  PreviewDocument(program_);
  EXPECT_EQ(test_.Asked(), Record{Opened("work\\Morlan7.html")});
}

TEST_F(Preview, TheDesktopsBrowserIsMeantByNoNameAndByDomyslnaInAnyCase) {
  for (const std::string_view name : {std::string_view(), "domyślna"_pl, "Domyślna"_pl, "DOMYŚLNA"_pl}) {
    SetBrowser(name);
    test_.OpenText("x");
    PreviewDocument(program_);
    EXPECT_EQ(test_.Asked(), Record{Opened("work\\Morlan7.html")}) << name;
  }
}

TEST_F(Preview, AFileCalledDomyslnaIsNoBrowser) {
  test_.Write("work\\domyślna"_pl, "x");
  SetBrowser("domyślna"_pl);
  test_.OpenText("x");
  PreviewDocument(program_);
  EXPECT_EQ(test_.Asked(), Record{Opened("work\\Morlan7.html")});
}

TEST_F(Preview, ABrowserThatIsGoneHasItsMessageAndNothingIsWritten) {
  SetBrowser("c:\\nie\\ma.exe");
  test_.OpenText("x");
  PreviewDocument(program_);
  EXPECT_EQ(test_.Asked(), Record{"message \"Nie mogę otworzyć przeglądarki\" \"Morlan7\" stop ok"});
  EXPECT_FALSE(test_.Exists("work\\Morlan7.html"));
}

TEST_F(Preview, AFixedFileIsShownThoughTheTextIsWrittenAllTheSame) {
  program_.AlwaysViewFile = test_.Path("work\\ramki.html");
  test_.OpenText("nowe");
  PreviewDocument(program_);
  EXPECT_EQ(test_.Asked(), Record{Opened("work\\ramki.html")});
  EXPECT_EQ(test_.Read("work\\Morlan7.html"), "nowe");
  const std::string browser = MakeBrowser();
  PreviewInBrowser(program_, browser);
  EXPECT_EQ(test_.Asked(), Record{Started(browser, "work\\ramki.html")});
}

TEST_F(Preview, ThePreviousFileGoesBeforeTheNextIsWritten) {
  test_.OpenText("x", "a\\strona.html");
  PreviewDocument(program_);
  EXPECT_TRUE(test_.Exists("work\\a\\Morlan7.html"));
  test_.OpenText("x", "b\\strona.html");
  PreviewDocument(program_);
  EXPECT_FALSE(test_.Exists("work\\a\\Morlan7.html"));
  EXPECT_TRUE(test_.Exists("work\\b\\Morlan7.html"));
}

TEST_F(Preview, TheFileGoesWithTheProgram) {
  test_.OpenText("x");
  PreviewDocument(program_);
  DeleteTempFiles(program_);
  EXPECT_FALSE(test_.Exists("work\\Morlan7.html"));
}

TEST_F(Preview, APageOfThatVeryNameIsNeitherWrittenNorDeleted) {
  TEditor& document = test_.OpenText("nie zapisane", "Morlan7.html");
  PreviewDocument(program_);
  EXPECT_EQ(test_.Read("work\\Morlan7.html"), "<html>");
  EXPECT_EQ(test_.Asked(), Record{Opened("temp\\Morlan7.html")});
  EXPECT_EQ(test_.Read("temp\\Morlan7.html"), "nie zapisane");
  EXPECT_EQ(document.Caption(), test_.Path("work\\Morlan7.html"));
}

TEST_F(Preview, AFileInADirectoryThatCannotBeWrittenIsPassedOverInSilence) {
  program_.ActiveDocument->SetCaption("c:\\nie\\ma\\strona.html");
  PreviewDocument(program_);
  EXPECT_EQ(test_.Asked(), Record{"shell \"c:\\\\nie\\\\ma\\\\Morlan7.html\""});
}

TEST_F(Preview, WithoutADocumentNothingHappens) {
  CloseAllDocuments(program_);
  test_.Asked();
  PreviewDocument(program_);
  SelViewer_Click(program_);
  EXPECT_EQ(test_.Asked(), Record{});
}

TEST_F(Preview, TheToolbarTheMenuAndTheSwitchRunIt) {
  test_.OpenText("x");
  EXPECT_TRUE(program_.commands.RunToolbar("Toolbar0", "view"));
  EXPECT_TRUE(program_.commands.RunMenu("xmn_preview"));
  EXPECT_EQ(test_.Asked(), (Record{Opened("work\\Morlan7.html"), Opened("work\\Morlan7.html")}));
  EXPECT_TRUE(program_.commands.RunMenu("mn_internal_view"));
  EXPECT_EQ(test_.Asked(), Record{"inside frmBrowser"});
}

TEST_F(Preview, TheInternalViewerShowsTheWrittenFile) {
  test_.OpenText("x");
  test_.frame().SelViewer.UserClicks();
  EXPECT_EQ(test_.Asked(), Record{"inside frmBrowser"});
  ASSERT_NE(ShownViewer(program_), nullptr);
  EXPECT_EQ(ShownViewer(program_)->brwWebBrowser.LocationURL(), Concat({"file://", test_.Path("work\\Morlan7.html")}));
  EXPECT_EQ(test_.Read("work\\Morlan7.html"), "x");
}

TEST_F(Preview, TheInternalViewerShowsTheFixedFileWithoutBlanksInFrontOfIt) {
  program_.AlwaysViewFile = "  c:\\ramki.html";
  test_.OpenText("x");
  SelViewer_Click(program_);
  EXPECT_EQ(ShownViewer(program_)->brwWebBrowser.LocationURL(), "file://c:\\ramki.html");
}

TEST_F(Preview, TheViewerThatIsShownOpensThePageAnew) {
  test_.OpenText("x");
  SelViewer_Click(program_);
  test_.Asked();
  program_.AlwaysViewFile = "c:\\inna.html";
  SelViewer_Click(program_);
  EXPECT_EQ(test_.Asked(), Record{});
  EXPECT_EQ(ShownViewer(program_)->brwWebBrowser.LocationURL(), "file://c:\\inna.html");
}

TEST_F(Preview, EditingComesBackByTheSwitchAndByADocumentThatComesForward) {
  TEditor& document = test_.OpenText("x");
  SelViewer_Click(program_);
  test_.frame().SelEditor.UserClicks();
  EXPECT_EQ(ShownViewer(program_), nullptr);
  SelViewer_Click(program_);
  ActivateDocument(program_, document);
  EXPECT_EQ(ShownViewer(program_), nullptr);
  SelViewer_Click(program_);
  test_.Write("work\\druga.html", "<html>");
  OpenDocument(program_, test_.Path("work\\druga.html"));
  EXPECT_EQ(ShownViewer(program_), nullptr);
}

TEST_F(Preview, TheViewerGoesWithTheLastDocument) {
  test_.OpenText("x");
  SelViewer_Click(program_);
  CloseAllDocuments(program_);
  EXPECT_EQ(ShownViewer(program_), nullptr);
}

TEST_F(Preview, TheViewerStaysWhenTheWindowComesForward) {
  test_.OpenText("x");
  SelViewer_Click(program_);
  test_.frame().splashShown = true;
  ActivateFrame(program_);
  EXPECT_NE(ShownViewer(program_), nullptr);
}

}  // namespace
}  // namespace morlan
