#include "core/savedocument.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include "core/documents.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

// As long as it lives, no file grows above a number of bytes: what a full disk does, for root too.
class SmallFilesOnly {
 public:
  explicit SmallFilesOnly(rlim_t bytes) : signal_(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallFilesOnly() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, signal_);
  }

 private:
  rlimit before_{};
  sighandler_t signal_;
};

struct Saving : testing::Test {
  TestProgram test;
  Program& program = test.program;
  TEditor& Modified(std::string_view text, std::string_view name = "strona.html") {
    TEditor& document = test.OpenText("", name);
    document.EditedText.SetSelText(text);
    return document;
  }
  void WantBackup() { program.MainIni.SetSubItemValue("Document", "CreateBackup", "True"); }
  std::vector<std::string> Names(std::string_view directory) {
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : test.files.List(test.Path(directory))) names.push_back(entry.name);
    return names;
  }
  // As long as it lasts, nothing can be written to the file: a directory has taken its place.
  void BlockFile(const char* name) {
    std::filesystem::remove(test.folder.path / "work" / name);
    std::filesystem::create_directories(test.folder.path / "work" / name / "pelny");
  }
};

TEST_F(Saving, WritesAModifiedDocument) {
  TEditor& document = Modified("zażółć"_pl);
  EXPECT_TRUE(document.IsModified());
  SaveDocument(program);
  EXPECT_EQ("zażółć"_pl, test.Read("work\\strona.html"));
  EXPECT_EQ("False", document.NeedToBeSaved.Caption());
  EXPECT_FALSE(document.EditedText.Modified);
  EXPECT_EQ(0, test.frame().WindowsManager.All()[0].image);
}

TEST_F(Saving, LeavesAnUnmodifiedDocumentAlone) {
  test.OpenText("inny tekst");
  SaveDocument(program);
  EXPECT_EQ("<html>", test.Read("work\\strona.html"));
}

TEST_F(Saving, KeepsLineEndsAndOddBytes) {
  const std::string bytes = std::string("a\nb\r\nc\rd\0e", 11) + "\x81\x98";
  Modified(bytes);
  SaveDocument(program);
  EXPECT_EQ(bytes, test.Read("work\\strona.html"));
}

TEST_F(Saving, MakesNoBackupUnlessWanted) {
  Modified("nowa");
  SaveDocument(program);
  EXPECT_FALSE(test.Exists("work\\strona.Bak"));
}

TEST_F(Saving, KeepsTheOldFileAsTheBackup) {
  WantBackup();
  Modified("nowa");
  SaveDocument(program);
  EXPECT_EQ("nowa", test.Read("work\\strona.html"));
  EXPECT_EQ("<html>", test.Read("work\\strona.Bak"));
}

TEST_F(Saving, LeavesTheFirstBackupAsItIs) {
  WantBackup();
  TEditor& document = Modified("druga");
  SaveDocument(program);
  document.EditedText.SetSelText(" i trzecia");
  SaveDocument(program);
  EXPECT_EQ("druga i trzecia", test.Read("work\\strona.html"));
  EXPECT_EQ("<html>", test.Read("work\\strona.Bak"));
}

TEST_F(Saving, CutsOnlyTheLastExtensionForTheBackup) {
  WantBackup();
  Modified("x", "a.b.html");
  SaveDocument(program);
  EXPECT_TRUE(test.Exists("work\\a.b.Bak"));
}

TEST_F(Saving, LeavesTheOldFileWholeWhenTheWriteFails) {
  WantBackup();
  TEditor& document = Modified("nowa");
  BlockFile("strona.html");
  SaveDocument(program);
  EXPECT_EQ(Record{}, test.Asked());
  EXPECT_EQ("False", document.NeedToBeSaved.Caption());
  EXPECT_TRUE(document.EditedText.Modified);
  EXPECT_FALSE(test.Exists("work\\strona.Bak"));
}

TEST_F(Saving, LeavesTheOldBytesWhenTheDiskTakesOnlyTheFirstOfTheNew) {
  WantBackup();
  TEditor& document = Modified(std::string(1000, 'x'));
  {
    const SmallFilesOnly limit(100);
    SaveDocument(program);
  }
  EXPECT_EQ("<html>", test.Read("work\\strona.html"));
  EXPECT_EQ((std::vector<std::string>{"strona.html"}), Names("work"));
  EXPECT_FALSE(document.IsModified());
  EXPECT_TRUE(document.EditedText.Modified);
}

TEST_F(Saving, RunsTheTextThroughThePasses) {
  program.passes.updateBlocks = [](std::string text, std::string_view path) { return text + (path.empty() ? "?" : "u"); };
  program.passes.encode = [](std::string text) { return text + "e"; };
  Modified("t");
  SaveDocument(program);
  EXPECT_EQ("tue", test.Read("work\\strona.html"));
  EXPECT_EQ("t", test.Text());
}

TEST_F(Saving, AsksForTheNameOfAnUntitledDocument) {
  program.ActiveEditor->SetSelText("tekst");
  test.windows.files.push_back(test.Path("work\\nowa"));
  SaveDocument(program);
  EXPECT_EQ(
      (Record{"filedialog save \"Zapisz jako\" \"Plik HTML (*.HTML,*.HTM,*.SHTML)|*.htm,*.html,*.shtml|Pliki kanałów inf. (*.CDF)|*.cdf|"
              "Plik tekstowy (*.TXT)|*.txt|Plik Map (*.MAP)|*.map|Plik skryptu CGI (*.CGI)|*.cgi\" " +
              Quoted(test.Path("work"))}),
      test.Asked());
  EXPECT_EQ("tekst", test.Read("work\\nowa.html"));
  EXPECT_EQ(test.Path("work\\nowa.html"), program.ActiveDocument->Caption());
  const Tabs::Tab& tab = test.frame().WindowsManager.All()[0];
  EXPECT_EQ(test.Path("work\\nowa.html"), tab.key);
  EXPECT_EQ("nowa.html", tab.text);
  EXPECT_EQ(tab.key, tab.tag);
  EXPECT_EQ(0, tab.image);
}

TEST_F(Saving, TakesAPageInADirectoryOfThatNameForUntitled) {
  test.files.CreateDirectory(test.Path("work\\BezTytułu"_pl));
  Modified("x", "BezTytułu\\index.html"_pl);
  test.windows.files.push_back(std::nullopt);
  SaveDocument(program);
  EXPECT_EQ("<html>", test.Read("work\\BezTytułu\\index.html"_pl));
  EXPECT_TRUE(program.ActiveDocument->IsModified());
}

TEST_F(Saving, LeavesANameWithADotAsItIs) {
  Modified("x");
  test.windows.files.push_back(test.Path("work\\strona.v2"));
  SaveDocumentAs(program);
  EXPECT_TRUE(test.Exists("work\\strona.v2"));
}

TEST_F(Saving, LooksForTheDotInTheBareNameOnly) {
  test.files.CreateDirectory(test.Path("work\\www.pl"));
  Modified("x");
  test.windows.files.push_back(test.Path("work\\www.pl\\index"));
  SaveDocumentAs(program);
  EXPECT_TRUE(test.Exists("work\\www.pl\\index.html"));
}

struct ExtensionCase {
  const char *opened, *saved;
};
class SavedExtension : public Saving, public testing::WithParamInterface<ExtensionCase> {};

TEST_P(SavedExtension, FollowsTheFileType) {
  Modified("x", GetParam().opened);
  test.windows.files.push_back(test.Path("work\\nowy"));
  SaveDocumentAs(program);
  EXPECT_TRUE(test.Exists(Concat({"work\\nowy", GetParam().saved})));
}

INSTANTIATE_TEST_SUITE_P(All, SavedExtension,
                         testing::Values(ExtensionCase{"a.html", ".html"}, ExtensionCase{"a.hst", ".hst"}, ExtensionCase{"a.mac", ".mac"},
                                         ExtensionCase{"a.cdf", ".cdf"}, ExtensionCase{"a.txt", ".html"}));

TEST(SaveFilter, PutsTheTypesOwnFilesFirst) {
  const std::string pages = SaveFilter("html");
  EXPECT_EQ(pages, SaveFilter(""));
  EXPECT_EQ("Plik szablonu (*.HST)|*.hst|" + pages, SaveFilter("szablon"));
  EXPECT_EQ("Plik makrodefinicji (*.MAC)|*.mac|" + pages, SaveFilter("makro"));
  EXPECT_EQ(
      "Pliki kanałów inf. (*.CDF)|*.cdf|Plik HTML (*.HTML,*.HTM,*.SHTML)|*.htm,*.html,*.shtml|Plik tekstowy (*.TXT)|*.txt|"
      "Plik Map (*.MAP)|*.map|Plik skryptu CGI (*.CGI)|*.cgi"_pl,
      SaveFilter("cdf"));
}

TEST_F(Saving, UnderANewNameWritesAnUnmodifiedDocumentToo) {
  test.OpenText("bez zmian");
  test.windows.files.push_back(test.Path("work\\kopia.html"));
  SaveDocumentAs(program);
  EXPECT_EQ("bez zmian", test.Read("work\\kopia.html"));
  EXPECT_EQ("<html>", test.Read("work\\strona.html"));
}

TEST_F(Saving, EndsQuietlyWhenTheDialogIsCancelled) {
  TEditor& document = Modified("x");
  test.windows.files.push_back(std::nullopt);
  SaveDocumentAs(program);
  EXPECT_TRUE(document.IsModified());
  EXPECT_EQ(test.Path("work\\strona.html"), document.Caption());
}

TEST_F(Saving, ToAnotherFileLeavesTheDocumentAlone) {
  TEditor& document = Modified("podglad");
  test.Write("temp\\Morlan7.html", "dluzszy stary tekst");
  WriteDocumentTo(program, program.PreviewFile);
  EXPECT_EQ("podglad", test.Read("temp\\Morlan7.html"));
  EXPECT_TRUE(document.IsModified());
  EXPECT_EQ(test.Path("work\\strona.html"), document.Caption());
  EXPECT_EQ("<html>", test.Read("work\\strona.html"));
}

TEST_F(Saving, WithoutADocumentDoesNothing) {
  CloseActiveDocument(program);
  SaveDocument(program);
  SaveDocumentAs(program);
  WriteDocumentTo(program, program.PreviewFile);
  EXPECT_FALSE(test.Exists("temp\\Morlan7.html"));
  EXPECT_EQ(Record{}, test.Asked());
}

}  // namespace
}  // namespace morlan
