#include "text/pageconversion.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

std::string Page(std::string_view charset, std::string_view body) {
  return Concat({"<HTML><HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=", charset, "\"></HEAD>", body, "</HTML>"});
}

struct PageConversion : testing::Test {
  PageConversion() {
    std::ifstream stream(MORLAN7_TREE "/CharSets.Def", std::ios::binary);
    file = CharSetFile(std::string(std::istreambuf_iterator<char>(stream), {}));
  }
  ConvertedPage Convert(std::string bytes, std::string_view target) {
    return ConvertPage(test.program, file, std::move(bytes), test.Path("work\\a.html"), target);
  }
  std::vector<std::string> Pages(std::string_view source, Subdirectories subdirectories = Subdirectories::No) {
    std::vector<std::string> pages = PagesOfSource(test.program, source, subdirectories);
    const std::string root = test.Path("");
    for (std::string& page : pages)
      if (page.starts_with(root)) page = page.substr(root.size());
    return pages;
  }
  TestProgram test;
  CharSetFile file;
};

TEST_F(PageConversion, LettersAndTagFollowTheTarget) {
  const ConvertedPage page = Convert(Page("iso-8859-2", "\xB1\xB6"), "UTF-8");
  EXPECT_EQ(page.bytes, Page("UTF-8", "ąś"));
  EXPECT_TRUE(page.isWhole);
}

TEST_F(PageConversion, ThereAndBackNoByteIsLost) {
  std::string body;
  for (int byte = 128; byte < 256; ++byte) body += Concat({std::string(1, static_cast<char>(byte)), " "});
  // The codes of letters in Windows-1250 that are none in ISO 8859-2 would come back as letters.
  for (const char code : {'\xB9', '\xA5', '\x9C', '\x8C', '\x9F', '\x8F'}) std::erase(body, code);
  const std::string page = Page("iso-8859-2", body);
  const ConvertedPage utf8 = Convert(page, "utf-8");
  EXPECT_TRUE(utf8.isWhole);
  EXPECT_EQ(Convert(utf8.bytes, "iso-8859-2").bytes, page);
}

TEST_F(PageConversion, APageWithoutATagGetsOne) {
  EXPECT_EQ(Convert("<html><head></head>\xB9</html>", "iso-8859-2").bytes,
            "<html><head>\r\n <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=iso-8859-2\"></head>\xB1</html>");
}

TEST_F(PageConversion, SymbolsStaySymbolsOfTheNewSet) {
  EXPECT_EQ(Convert(Page("iso-8859-2", "&#177"), "windows-1250").bytes, Page("windows-1250", "&#185"));
}

TEST_F(PageConversion, StampsAreBroughtUpToDate) {
  const ConvertedPage page = Convert(Page("utf-8", "<!--morlan7autoupdate TYPE=DATE FORMAT=YYYY -->x<!--/morlan7autoupdate-->"), "utf-8");
  EXPECT_NE(page.bytes.find("1998"), std::string::npos);
}

TEST_F(PageConversion, TellsOfLettersThatDoNotComeThrough) {
  EXPECT_FALSE(Convert(Page("utf-8", "\xC3\xB9"), "utf-8").isWhole) << "on reading";
  EXPECT_FALSE(Convert(Page("utf-8", "ą"), "cp852").isWhole) << "on writing";
}

TEST_F(PageConversion, Utf8WithoutATagIsRefused) {
  const ConvertedPage page = Convert("<html>ó</html>", "iso-8859-2");
  EXPECT_TRUE(page.isRefused);
  EXPECT_EQ(page.bytes, "<html>ó</html>");
  EXPECT_FALSE(Convert("<html>\xF3</html>", "iso-8859-2").isRefused);
  EXPECT_FALSE(Convert("<html>o</html>", "iso-8859-2").isRefused);
}

TEST_F(PageConversion, AFileIsItsOwnSource) {
  EXPECT_EQ(Pages(test.Path("work\\brak.txt")), std::vector<std::string>{"work\\brak.txt"});
  EXPECT_TRUE(Pages("").empty());
}

TEST_F(PageConversion, ADirectoryGivesItsPages) {
  for (const char* name : {"work\\a.html", "work\\B.HTM", "work\\c.shtml", "work\\d.txt", "work\\e\\f.html"}) test.Write(name, "");
  EXPECT_EQ(Pages(test.Path("work")), (std::vector<std::string>{"work\\a.html", "work\\B.HTM", "work\\c.shtml"}));
  EXPECT_EQ(Pages(test.Path("work"), Subdirectories::Yes),
            (std::vector<std::string>{"work\\a.html", "work\\B.HTM", "work\\c.shtml", "work\\e\\f.html"}));
}

TEST_F(PageConversion, AProjectGivesItsFiles) {
  test.Write("program\\PROJEKTY\\strony.pro", "[Files]\r\nFileCount=1\r\nBaseDir=c:\\x\\\r\nFileName1=a.html\r\n");
  EXPECT_EQ(Pages("@strony"), std::vector<std::string>{"c:\\x\\a.html"});
  EXPECT_EQ(Pages("@" + test.Path("program\\PROJEKTY\\strony.pro")), std::vector<std::string>{"c:\\x\\a.html"});
  EXPECT_TRUE(Pages("@brak").empty());
}

}  // namespace
}  // namespace morlan
