// The dialogs that write dates, times and file information.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "core/text.h"
#include "tests/support/testprogram.h"
#include "text/insertfileinfo.h"
#include "text/momentforms.h"

namespace morlan {
namespace {

class StampForms : public testing::Test {
 protected:
  StampForms() { test.OpenText(""); }
  template <class Dialog>
  void Show(std::function<void(Dialog&)> user) {
    test.windows.modals.push_back([user](Form& form) { user(dynamic_cast<Dialog&>(form)); });
    test.program.forms.ShowByName(test.program.forms.Get<Dialog>().Name());
  }
  TestProgram test;  // at 12:30:05 on the 7th of March 1998, a Saturday
};

TEST_F(StampForms, TheDateIsWrittenOnce) {
  Show<InsertDate>([](InsertDate& form) {
    form.Format_.UserSets("DD/MMMM/YYYY");
    EXPECT_EQ(form.sample.Caption(), "07/marca/1998");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Text(), "07/marca/1998");
}

TEST_F(StampForms, ATickedBoxMakesADateStamp) {
  Show<InsertDate>([](InsertDate& form) {
    form.Format_.UserSets("DD/MM/YY");
    form.update_.UserSets(true);
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Text(), "<!--MORLAN7AUTOUPDATE TYPE=DATE FORMAT=DD/MM/YY -->07/03/98<!--/MORLAN7AUTOUPDATE-->");
}

TEST_F(StampForms, APatternWithBlanksIsQuotedSoThatItIsReadWhole) {
  Show<InsertDate>([](InsertDate& form) {
    form.Format_.UserSets("D MMMM");
    form.update_.UserSets(true);
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Text(), "<!--MORLAN7AUTOUPDATE TYPE=DATE FORMAT=\"D MMMM\" -->7 marca<!--/MORLAN7AUTOUPDATE-->");
}

TEST_F(StampForms, ChosenPartsMakeAPattern) {
  Show<InsertDate>([](InsertDate& form) {
    form.first_.UserSetsText("DDDD");
    form.third_.UserSetsText("YYYY");
    EXPECT_EQ(form.Format_.Text(), "DDDD/YYYY");
    form.second_.UserSetsText("MMM");
    EXPECT_EQ(form.Format_.Text(), "DDDD/MMM/YYYY");
    form.first_.UserSetsText("-");
    EXPECT_EQ(form.Format_.Text(), "MMM/YYYY");
  });
}

TEST_F(StampForms, OffersTheUsualDatePatterns) {
  const auto& rows = test.program.forms.Get<InsertDate>().Format_.Rows();
  for (const char* pattern : {"D/M/YY", "DD/MM/YY", "DD/MM/YYYY", "DDD/MM/YYYY", "DDD/MMM/YYYY", "DDDD/MMMM/YYYY", "DD/MMMM/YYYY"})
    EXPECT_NE(std::find(rows.begin(), rows.end(), pattern), rows.end()) << pattern;
}

TEST_F(StampForms, TheTimeIsWrittenAsAStamp) {
  Show<InsertTime>([](InsertTime& form) {
    form.first_.UserSetsText("HH");
    form.second_.UserSetsText("MM");
    form.third_.UserSetsText("SS");
    form.update_.UserSets(true);
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Text(), "<!--MORLAN7AUTOUPDATE TYPE=TIME FORMAT=HH:MM:SS -->12:30:05<!--/MORLAN7AUTOUPDATE-->");
}

TEST_F(StampForms, MinutesInFrontOfSecondsAreMinutes) {
  Show<InsertTime>([](InsertTime& form) {
    form.first_.UserSetsText("-");
    form.second_.UserSetsText("MM");
    form.third_.UserSetsText("SS");
    EXPECT_EQ(form.sample.Caption(), "30:05");
  });
}

TEST_F(StampForms, CancelWritesNothing) {
  Show<InsertDate>([](InsertDate& form) { form.Command1.UserClicks(); });
  Show<InsertTime>([](InsertTime& form) { form.Command1.UserClicks(); });
  Show<InsertFileInfo>([](InsertFileInfo& form) { form.Command1.UserClicks(); });
  EXPECT_EQ(test.Text(), "");
}

TEST_F(StampForms, FileInformationIsAlwaysAStamp) {
  test.Write("work\\plik.zip", "12345");
  test.windows.files.push_back(test.Path("work\\plik.zip"));
  Show<InsertFileInfo>([](InsertFileInfo& form) {
    form.fileButton.UserClicks();
    form.FileSize_.UserSets(true);
    EXPECT_EQ(form.TestIt.Caption(), "plik.zip 5 B");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Text(),
            "<!--MORLAN7AUTOUPDATE TYPE=FILEINFO FILENAME=\"plik.zip\" FILESIZE=TRUE -->plik.zip 5 B<!--/MORLAN7AUTOUPDATE-->");
}

TEST_F(StampForms, TheDateOfAFileHasItsPatternInQuotes) {
  test.Write("work\\plik.zip", "12345");
  Show<InsertFileInfo>([](InsertFileInfo& form) {
    EXPECT_FALSE(form.DateFormat.Enabled());
    form.FileName.UserSets("plik.zip");
    form.ModDate_.UserSets(true);
    EXPECT_TRUE(form.DateFormat.Enabled());
    form.DateFormat.UserSets("YYYY");
    form.Command2.UserClicks();
  });
  const std::string text = test.Text();
  EXPECT_TRUE(text.starts_with("<!--MORLAN7AUTOUPDATE TYPE=FILEINFO FILENAME=\"plik.zip\" MODDATE=\"YYYY\" -->plik.zip 2")) << text;
}

}  // namespace
}  // namespace morlan
