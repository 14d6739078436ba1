#include "text/maindictionary.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/dictionaryfiles.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct MainDictionary : testing::Test {
  TestProgram test;
  const std::string path = MainDictionaryPath(test.program, "tst");
};

TEST_F(MainDictionary, LiesBelowTheProgramsData) {
  EXPECT_EQ(path, test.Path("program\\SLOWNIKI\\morlan7s.tst"));
  EXPECT_EQ(AutomatonPath(test.program, "tst"), test.Path("program\\SLOWNIKI\\morlan7i.tst"));
  EXPECT_EQ(UserDictionaryPath(test.program, ""), test.Path("program\\SLOWNIKI\\morlan7u."));
}

TEST_F(MainDictionary, HoldsWordsAsTheyCome) {
  EXPECT_FALSE(MainDictionaryHolds(test.program, path, "kot")) << "a missing file makes the lookup fail";
  test.Write("program\\SLOWNIKI\\morlan7s.tst", BitsOf({"kot"}));
  EXPECT_TRUE(MainDictionaryHolds(test.program, path, "kot"));
  EXPECT_FALSE(MainDictionaryHolds(test.program, path, "Kot"));
  EXPECT_EQ(test.Asked(), Record{});
}

TEST_F(MainDictionary, AWordOfMoreThan40LettersIsTold) {
  test.Write("program\\SLOWNIKI\\morlan7s.tst", BitsOf({"kot"}));
  EXPECT_FALSE(MainDictionaryHolds(test.program, path, std::string(40, 'x')));
  EXPECT_EQ(test.Asked(), Record{});
  EXPECT_FALSE(MainDictionaryHolds(test.program, path, std::string(41, 'x')));
  EXPECT_EQ(test.Asked(), Record{"message \"!!!!!\" \"Morlan7\" none ok"});
}

TEST_F(MainDictionary, UserWordsAreAddedInLowerCaseALineEach) {
  const std::string user = UserDictionaryPath(test.program, "tst");
  AddUserWord(test.program, user, "Źrebak"_pl);
  EXPECT_EQ(test.Read("program\\SLOWNIKI\\morlan7u.tst"), Concat({"źrebak"_pl, CrLf})) << "folder and file are made";
  AddUserWord(test.program, user, "PSA");
  EXPECT_EQ(test.Read("program\\SLOWNIKI\\morlan7u.tst"), Concat({"źrebak"_pl, "\r\npsa\r\n"}));
}

}  // namespace
}  // namespace morlan
