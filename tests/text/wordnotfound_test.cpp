#include "text/wordnotfound.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/dictionaryfiles.h"
#include "tests/support/testprogram.h"
#include "text/mlndictionary.h"

namespace morlan {
namespace {

struct WordNotFoundTest : testing::Test {
  TestProgram test;
  WordNotFound& form = test.program.forms.Get<WordNotFound>();
  MlnDictionary dictionary{test.files};

  WordNotFoundTest() {
    dictionary.File = {test.Path("work\\s.tst"), test.Path("work\\i.tst"), test.Path("work\\u.tst")};
    form.Dictionary = &dictionary;
  }
  ~WordNotFoundTest() override { form.Dictionary = nullptr; }

  void Hold(const std::vector<std::string_view>& words) {
    test.Write("work\\s.tst", BitsOf(words));
    test.Write("work\\i.tst", AutomatonOf(words));
    ASSERT_TRUE(dictionary.OpenDictionaries());
  }
  // Opens the dialog for a word, and answers with the choice made in it.
  WordChoice Ask(std::string_view word, const std::function<void()>& act) {
    test.program.DialogResult = word;
    test.windows.modals.push_back([act](Form&) { act(); });
    EXPECT_TRUE(test.program.forms.ShowByName("WordNotFound"));
    return static_cast<WordChoice>(test.program.DialogChoice);
  }
};

TEST_F(WordNotFoundTest, BearsItsNames) {
  EXPECT_EQ(form.Caption(), "Brak słowa w słowniku"_pl);
  EXPECT_EQ(form.Command4.Caption(), "&Zmień"_pl);
  EXPECT_EQ(form.Command3.Caption(), "&Dodaj");
  EXPECT_EQ(form.Command2.Caption(), "&Ignoruj");
  EXPECT_EQ(form.Command1.Caption(), "&Przerwij");
}

TEST_F(WordNotFoundTest, ShowsTheWordAndTheProposals) {
  Hold({"góra"_pl, "chora"});
  Ask("Gura", [&] {
    EXPECT_EQ(form.Word.Caption(), "Gura");
    EXPECT_EQ(form.Change.Rows(), std::vector<std::string>{std::string("góra"_pl)});
    EXPECT_EQ(form.Change.Text(), "");
    form.Command2.UserClicks();
  });
}

TEST_F(WordNotFoundTest, TheFieldIsEmptiedForEachWord) {
  Hold({"góra"_pl});
  Ask("gura", [&] {
    form.Change.UserSelects(0);
    form.Command2.UserClicks();
  });
  Ask("xyz", [&] {
    EXPECT_EQ(form.Change.Text(), "");
    EXPECT_EQ(form.Change.ListCount(), 0u);
    form.Command2.UserClicks();
  });
}

TEST_F(WordNotFoundTest, AWordWhoseBitIsSetGetsOneRowAndItself) {
  Hold({"adad"});
  Ask("AHAA", [&] {
    EXPECT_EQ(form.Change.Rows(), std::vector<std::string>{"<Brak propozycji>"});
    EXPECT_EQ(form.Change.Text(), "ahaa");
    form.Change.UserSelects(0);
    EXPECT_EQ(form.Change.Text(), "ahaa") << "the row is no word to put into a document";
    form.Command2.UserClicks();
  });
}

TEST_F(WordNotFoundTest, AClickOnTheWordCopiesIt) {
  Hold({});
  Ask("Gura", [&] {
    form.Word.UserClicks();
    EXPECT_EQ(form.Change.Text(), "Gura");
    form.Command2.UserClicks();
  });
}

TEST_F(WordNotFoundTest, EachButtonLeavesItsChoice) {
  Hold({});
  EXPECT_EQ(Ask("psa", [&] { form.Command1.UserClicks(); }), WordChoice::Stop);
  EXPECT_EQ(Ask("psa", [&] { form.Command2.UserClicks(); }), WordChoice::Ignore);
  EXPECT_EQ(Ask("psa", [&] { form.UserCloses(); }), WordChoice::Stop);
  EXPECT_FALSE(test.Exists("work\\u.tst"));
  EXPECT_EQ(Ask("Psa", [&] { form.Command3.UserClicks(); }), WordChoice::Add);
  EXPECT_EQ(test.Read("work\\u.tst"), "psa\r\n");
  const WordChoice choice = Ask("psa", [&] {
    form.Change.UserSets("pies");
    form.Command4.UserClicks();
  });
  EXPECT_EQ(choice, WordChoice::Change);
  EXPECT_EQ(form.Replacement, "pies");
}

TEST_F(WordNotFoundTest, EnterChangesOnceThereIsAText) {
  Hold({});
  const WordChoice choice = Ask("psa", [&] {
    KeyPress press{.code = key::kEnter};
    form.Change.OnKeyDown(press);
    EXPECT_EQ(press.code, key::kEnter) << "an empty field is left to the button of the form";
    form.Change.UserSets("pies");
    form.Change.OnKeyDown(press);
    EXPECT_EQ(press.code, 0);
  });
  EXPECT_EQ(choice, WordChoice::Change);
  EXPECT_EQ(form.defaultButton, &form.Command2);
}

TEST_F(WordNotFoundTest, ListsSimilarWordsOfTheExactDictionary) {
  Hold({"strona", "strony"});
  Ask("Stronna", [&] {
    EXPECT_TRUE(form.Similar.Visible());
    EXPECT_EQ(form.Similar.Rows(), std::vector<std::string>{"Strona"});
    form.Similar.UserSelects(0);
    EXPECT_EQ(form.Change.Text(), "Strona");
    form.Similar.UserDblClicks();
  });
  EXPECT_EQ(form.Replacement, "Strona");
  EXPECT_EQ(test.program.DialogChoice, static_cast<std::uint8_t>(WordChoice::Change));
}

TEST_F(WordNotFoundTest, WithoutSimilarWordsThereIsNoList) {
  Hold({"strona"});
  Ask("xyz", [&] {
    EXPECT_FALSE(form.Similar.Visible());
    form.Command2.UserClicks();
  });
}

}  // namespace
}  // namespace morlan
