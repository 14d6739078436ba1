#include "core/languages.h"

#include <gtest/gtest.h>

#include "core/configuration.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Languages : testing::Test {
  TestProgram test;
  Program& program = test.program;
  std::string Stored(std::string_view key) { return program.MainIni.GetSubItemValue("Languages", key); }
  // The rows of the dialog's list behind as many presses of its button as there are answers.
  std::vector<std::string> Add(std::deque<std::optional<std::string>> names) {
    const std::size_t presses = names.size();
    test.windows.inputs = std::move(names);
    std::vector<std::string> rows;
    test.windows.modals.push_back([&](Form& shown) {
      auto& form = static_cast<configuration&>(shown);
      for (std::size_t i = 0; i < presses; ++i) form.Command4.UserClicks();
      rows = form.Language.Rows();
      form.Command1.UserClicks();
    });
    program.commands.RunMenu("xmn_configuration");
    return rows;
  }
};

TEST_F(Languages, AreStoredAtOnceWithTheExtensionOfTheirDictionaries) {
  EXPECT_EQ(Add({"Polski", "Angielski"}), (std::vector<std::string>{"Polski", "Angielski"}));
  EXPECT_EQ(Stored("Count"), "2");
  EXPECT_EQ(Stored("Language1"), "Polski");
  EXPECT_EQ(Stored("Language1f"), "Pol");
  EXPECT_EQ(Stored("Language2"), "Angielski");
  EXPECT_EQ(Stored("Language2f"), "Ang");
  EXPECT_EQ(LanguageNames(program.MainIni), (std::vector<std::string>{"Polski", "Angielski"}));
  EXPECT_EQ(Add({std::nullopt}), (std::vector<std::string>{"Polski", "Angielski"})) << "shown again";
}

TEST_F(Languages, OfShortNamesHaveShortExtensions) {
  Add({"fi", "x"});
  EXPECT_EQ(Stored("Language1f"), "fi");
  EXPECT_EQ(Stored("Language2f"), "x");
}

TEST_F(Languages, AreAskedForByTheirName) {
  Add({std::nullopt});
  EXPECT_EQ(test.Asked().at(1), R"(input "Jaki język dodać ?" "Dodaj nowy język" "")");
}

TEST_F(Languages, WithoutANameAreNone) {
  EXPECT_TRUE(Add({"", std::nullopt}).empty());
  EXPECT_EQ(Stored("Count"), "");
}

TEST_F(Languages, StandInTheListOnce) {
  EXPECT_EQ(Add({"Polski", "Polski"}), std::vector<std::string>{"Polski"});
  EXPECT_EQ(test.Asked().at(3), R"(message "Język Polski jest już w liście." "Morlan7" none ok)");
  EXPECT_EQ(Stored("Count"), "1");
}

TEST_F(Languages, MakeNoFiles) {
  Add({"Polski"});
  EXPECT_FALSE(test.files.DirectoryExists(test.Path("program\\SLOWNIKI")));
}

TEST_F(Languages, OfAGarbledCountAreNone) {
  program.MainIni.SetSubItemValue("Languages", "Count", "4000000000");
  program.MainIni.SetSubItemValue("Languages", "Language1", "Polski");
  EXPECT_TRUE(LanguageNames(program.MainIni).empty());
}

}  // namespace
}  // namespace morlan
