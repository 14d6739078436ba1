#include "text/autoupdate.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/savedocument.h"
#include "core/text.h"
#include "tests/support/memoryfiles.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class UpdateBlocksTest : public testing::Test {
 protected:
  UpdateBlocksTest() {
    files.CreateDirectory("c:\\strona");
    files.CreateDirectory("c:\\strona\\pod");
    files.Write("c:\\strona\\plik.zip", std::string(2048, 'x'));
    files.Write("c:\\strona\\pod\\krótki.txt"_pl, "12345");
    files.modified = {.year = 1998, .month = 2, .day = 1, .hour = 10, .minute = 20, .second = 30, .dayOfWeek = 0};
  }
  std::string Updated(std::string_view text) { return UpdateBlocks(std::string(text), source); }
  // What a stamp of those attributes comes to.
  std::string TextOf(std::string_view attributes) {
    const std::string start = Concat({"<!--morlan7autoupdate ", attributes, "-->"});
    const std::string text = Updated(start + "stary<!--/morlan7autoupdate-->");
    const std::string_view end = "\r\n<!--/morlan7autoupdate-->";
    EXPECT_TRUE(text.starts_with(start + "\r\n") && text.ends_with(end)) << text;
    return text.substr(start.size() + 2, text.size() - start.size() - 2 - end.size());
  }

  MemoryFiles files;
  StampSource source{files, {.year = 1998, .month = 3, .day = 7, .hour = 9, .minute = 5, .second = 4, .dayOfWeek = 6}, "c:\\strona"};
};

TEST_F(UpdateBlocksTest, TheNewTextStandsOnALineOfItsOwn) {
  EXPECT_EQ(Updated("a<!--morlan7autoupdate type=date format=DD/MM/YY -->06/03/98<!--/morlan7autoupdate-->b"),
            "a<!--morlan7autoupdate type=date format=DD/MM/YY -->\r\n07/03/98\r\n<!--/morlan7autoupdate-->b");
}

TEST_F(UpdateBlocksTest, ASecondRunChangesNothing) {
  const std::string once = Updated("<!--MORLAN7AUTOUPDATE TYPE=DATE FORMAT=D/M/YY -->x<!--/MORLAN7AUTOUPDATE-->");
  EXPECT_EQ(Updated(once), once);
}

TEST_F(UpdateBlocksTest, LetterCaseDoesNotCountAndStays) {
  EXPECT_EQ(Updated("<!--MORLAN7AutoUpdate TYPE=DATE FORMAT=D/M/YY -->x<!--/morlan7AUTOUPDATE-->"),
            "<!--MORLAN7AutoUpdate TYPE=DATE FORMAT=D/M/YY -->\r\n7/3/98\r\n<!--/morlan7AUTOUPDATE-->");
}

TEST_F(UpdateBlocksTest, EveryBlockIsFound) {
  EXPECT_EQ(Updated("1<!--morlan7autoupdate type=date format=D-->a<!--/morlan7autoupdate-->2"
                    "<!--morlan7autoupdate type=time format=HH:MM-->b<!--/morlan7autoupdate-->3"),
            "1<!--morlan7autoupdate type=date format=D-->\r\n7\r\n<!--/morlan7autoupdate-->2"
            "<!--morlan7autoupdate type=time format=HH:MM-->\r\n09:05\r\n<!--/morlan7autoupdate-->3");
}

TEST_F(UpdateBlocksTest, AStartWithoutAnEndStaysAsItStands) {
  for (const std::string_view text :
       {"<!--morlan7autoupdate type=date format=D-->stary", "<!--/morlan7autoupdate--><!--morlan7autoupdate type=date format=D-->stary",
        "<!--morlan7autoupdate type=date"})
    EXPECT_EQ(Updated(text), text);
}

TEST_F(UpdateBlocksTest, ATextWithoutStampsStaysAsItIs) {
  EXPECT_EQ(Updated(""), "");
  EXPECT_EQ(Updated("<HTML><!-- morlan7autoupdate --></HTML>"), "<HTML><!-- morlan7autoupdate --></HTML>");
}

TEST_F(UpdateBlocksTest, ADatePatternInQuotesMayHoldBlanks) {
  EXPECT_EQ(TextOf("type=date format=\"D MMMM YYYY\""), "7 marca 1998");
  EXPECT_EQ(TextOf("type=date format=D MMMM YYYY"), "7");
}

TEST_F(UpdateBlocksTest, ATimePatternWithoutQuotesEndsAtTheFirstBlank) {
  EXPECT_EQ(TextOf("type=time format=HH:MM SS"), "09:05");
  EXPECT_EQ(TextOf("type=time format=HH:MM:SS"), "09:05:04");
}

TEST_F(UpdateBlocksTest, AFileIsNamedWithWhatIsAskedFor) {
  EXPECT_EQ(TextOf("type=fileinfo filename=\"plik.zip\""), "plik.zip");
  EXPECT_EQ(TextOf("type=fileinfo filename=\"plik.zip\" filesize=true"), "plik.zip 2 KB");
  EXPECT_EQ(TextOf("type=fileinfo filename=\"plik.zip\" filesize=false moddate=\"DD/MM/YY HH:MM:SS\""), "plik.zip 01/02/98 10:20:30");
  EXPECT_EQ(TextOf("type=fileinfo filename=\"plik.zip\" filesize=TRUE moddate=\"D MMMM\""), "plik.zip 2 KB 1 lutego");
}

TEST_F(UpdateBlocksTest, AFileIsSoughtFromTheDirectoryOfThePage) {
  EXPECT_EQ(TextOf("type=fileinfo filename=\"pod/krótki.txt\" filesize=true"_pl), "krótki.txt 5 B"_pl);
  source.directory = "";
  EXPECT_EQ(TextOf("type=fileinfo filename=\"strona/plik.zip\""), "plik.zip") << "from the current directory";
  EXPECT_EQ(TextOf("type=fileinfo filename=\"c:\\strona\\plik.zip\""), "plik.zip") << "a whole path";
}

TEST_F(UpdateBlocksTest, AMissingFileAndAnUnknownTypeGiveNothing) {
  EXPECT_EQ(TextOf("type=fileinfo filename=\"brak.zip\" filesize=true"), "");
  EXPECT_EQ(TextOf("type=fileinfo"), "");
  EXPECT_EQ(TextOf("type=pogoda"), "");
  EXPECT_EQ(TextOf(""), "");
}

TEST(UpdateBlocksOnTheWay, LoadingAndSavingComputeTheStamps) {
  TestProgram test;
  test.Write("work\\a.html", "<!--morlan7autoupdate type=date format=D/M/YY -->1/1/98<!--/morlan7autoupdate-->");
  OpenDocument(test.program, test.Path("work\\a.html"));
  EXPECT_EQ(test.Text(), "<!--morlan7autoupdate type=date format=D/M/YY -->\r\n7/3/98\r\n<!--/morlan7autoupdate-->");
  EXPECT_FALSE(test.program.ActiveDocument->IsModified());
  test.clock.now.day = 8;
  test.program.ActiveEditor->SetSelText("!");
  SaveDocument(test.program);
  EXPECT_EQ(test.Read("work\\a.html"), "!<!--morlan7autoupdate type=date format=D/M/YY -->\r\n8/3/98\r\n<!--/morlan7autoupdate-->");
}

}  // namespace
}  // namespace morlan
