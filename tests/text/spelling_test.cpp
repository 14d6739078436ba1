#include "text/spelling.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/settings.h"
#include "core/text.h"
#include "tests/support/dictionaryfiles.h"
#include "tests/support/testprogram.h"
#include "text/selectlanguage.h"
#include "text/wordnotfound.h"

namespace morlan {
namespace {

constexpr std::string_view kMeta = "<META NAME=\"Language\" CONTENT=\"testowy\">";

struct Spelling : testing::Test {
  TestProgram test;
  WordNotFound& dialog = test.program.forms.Get<WordNotFound>();
  MlnEditor* editor = nullptr;

  Spelling() {
    Settings settings(test.program.MainIni);
    settings.SetText(Setting::LanguageCount, "2");
    settings.SetText(Setting::Language, "Inny", 1);
    settings.SetText(Setting::LanguageExtension, "Inn", 1);
    settings.SetText(Setting::Language, "Testowy", 2);
    settings.SetText(Setting::LanguageExtension, "tst", 2);
    const std::vector<std::string_view> words = {"ala", "ma", "kota", "chleb", "góra"_pl};
    test.Write("program\\SLOWNIKI\\morlan7s.tst", BitsOf(words));
    test.Write("program\\SLOWNIKI\\morlan7i.tst", AutomatonOf(words));
  }
  // A page whose META names the language, with that text behind it.
  void Open(std::string_view text) { editor = &test.OpenText(Concat({kMeta, text})).EditedText; }
  std::string Body() const { return editor->Text().substr(kMeta.size()); }
  std::size_t Offset(std::size_t inBody) const { return kMeta.size() + inBody; }

  // What the user does with the next unknown word, which the page has as `selected`.
  void Next(std::string_view word, std::string_view selected, std::function<void()> act) {
    test.windows.modals.push_back([this, word = std::string(word), selected = std::string(selected), act = std::move(act)](Form& form) {
      ASSERT_EQ(&form, &dialog);
      EXPECT_EQ(test.program.DialogResult, word);
      EXPECT_EQ(editor->SelText(), selected);
      act();
    });
  }
  void Next(std::string_view word, std::function<void()> act) { Next(word, word, std::move(act)); }
  void NextChangedTo(std::string_view word, std::string_view text) {
    Next(word, [this, text] {
      dialog.Change.UserSets(text);
      dialog.Command4.UserClicks();
    });
  }
  void NextIgnored(std::string_view word) {
    Next(word, [this] { dialog.Command2.UserClicks(); });
  }
  // Runs the command; the record without the dialogs' comings and goings.
  Record Check() {
    test.Asked();
    EXPECT_TRUE(test.program.commands.RunToolbar("Toolbar0", "spelling"));
    Record messages;
    for (const std::string& line : test.Asked())
      if (line.starts_with("message")) messages.push_back(line);
    EXPECT_TRUE(test.windows.modals.empty());
    return messages;
  }
  const Record kFinished{"message \"Sprawdzanie pisowni zakończone\" \"Morlan7\" none ok"};
  const Record kStopped{"message \"Sprawdzanie pisowni przerwane\" \"Morlan7\" none ok"};
};

TEST_F(Spelling, OfAKnownTextEndsWithoutAQuestion) {
  Open("<P>Ala ma kota</P>");
  EXPECT_EQ(Check(), kFinished);
  EXPECT_EQ(test.frame().statusBar.Panels().front().text, "Gotowy");
  EXPECT_EQ(Body(), "<P>Ala ma kota</P>");
}

TEST_F(Spelling, SelectsEachUnknownWordAndAsks) {
  Open("ala ma psa, psy");
  NextIgnored("psa");
  NextIgnored("psy");
  EXPECT_EQ(Check(), kFinished);
  EXPECT_FALSE(editor->Modified);
}

TEST_F(Spelling, AnIgnoredWordIsAskedForAgain) {
  Open("psa psa");
  NextIgnored("psa");
  NextIgnored("psa");
  EXPECT_EQ(Check(), kFinished);
}

TEST_F(Spelling, ChangesMoveTheFollowingChecksByTheDifference) {
  Open("hleb psa chlep ma gora");
  NextChangedTo("hleb", "chleb");
  NextChangedTo("psa", "pieska");
  NextChangedTo("chlep", "");
  NextChangedTo("gora", "góra"_pl);
  EXPECT_EQ(Check(), kFinished);
  EXPECT_EQ(Body(), "chleb pieska  ma góra"_pl);
}

TEST_F(Spelling, ChangesAreUndoneOneByOne) {
  Open("hleb psa");
  NextChangedTo("hleb", "chleb");
  NextChangedTo("psa", "kota");
  Check();
  EXPECT_EQ(Body(), "chleb kota");
  test.program.ActiveDocument->UNDO.DoUndo(*test.program.ActiveDocument);
  EXPECT_EQ(Body(), "chleb psa");
  EXPECT_EQ(editor->SelStart(), Offset(6));
  EXPECT_EQ(editor->SelLength(), 3u);
  test.program.ActiveDocument->UNDO.DoUndo(*test.program.ActiveDocument);
  EXPECT_EQ(Body(), "hleb psa");
}

TEST_F(Spelling, AWordWithReferencesIsReplacedAsAWhole) {
  Open("g&oacute;rra ma psa");
  Next("górra"_pl, "g&oacute;rra", [this] {
    dialog.Change.UserSets("góra"_pl);
    dialog.Command4.UserClicks();
  });
  NextIgnored("psa");
  EXPECT_EQ(Check(), kFinished);
  EXPECT_EQ(Body(), "góra ma psa"_pl);
}

TEST_F(Spelling, StoppingEndsTheCheck) {
  Open("psa psy");
  Next("psa", [this] { dialog.Command1.UserClicks(); });
  EXPECT_EQ(Check(), kStopped);
  EXPECT_EQ(test.frame().statusBar.Panels().front().text, "Gotowy");
}

TEST_F(Spelling, EscStopsALongCheck) {
  std::string text;
  while (text.size() < 50'000) text += "ala ";
  Open(text);
  int asked = 0;
  test.windows.onYieldToEscape = [&] { return ++asked == 2; };
  EXPECT_EQ(Check(), kStopped);
  EXPECT_EQ(asked, 2);
}

TEST_F(Spelling, ShowsHowFarItIs) {
  Open("ala ma kota");
  std::string shown;
  test.windows.onYieldToEscape = [&] {
    shown = test.frame().statusBar.Panels().front().text;
    return false;
  };
  Check();
  EXPECT_EQ(shown, "Pisownia...100 % (3 słów)"_pl);
}

TEST_F(Spelling, AWordAddedIsKnownAtOnceAndInTheNextCheck) {
  Open("psa Psa psa");
  Next("psa", [this] { dialog.Command3.UserClicks(); });
  EXPECT_EQ(Check(), kFinished);
  EXPECT_EQ(test.Read("program\\SLOWNIKI\\morlan7u.tst"), "psa\r\n");
  EXPECT_EQ(Check(), kFinished);
}

TEST_F(Spelling, HeedsTheSettings) {
  Open("PKP x2");
  NextIgnored("PKP");
  NextIgnored("x2");
  EXPECT_EQ(Check(), kFinished);
  Settings settings(test.program.MainIni);
  settings.SetFlag(Setting::IgnoreUpperCase, true);
  settings.SetFlag(Setting::IgnoreNumbers, true);
  EXPECT_EQ(Check(), kFinished);
}

TEST_F(Spelling, AsksForTheLanguageWhereThePageNamesNone) {
  editor = &test.OpenText("<HTML><HEAD></HEAD>ala psa</HTML>").EditedText;
  test.windows.modals.push_back([this](Form& form) {
    EXPECT_EQ(form.Name(), "SelectLanguage");
    auto& select = test.program.forms.Get<SelectLanguage>();
    select.Language.UserSelects(1);
    select.Command3.UserClicks();
  });
  Next("psa", [this] { dialog.Command2.UserClicks(); });
  EXPECT_EQ(Check(), kFinished);
  EXPECT_EQ(test.Text(), "<HTML><HEAD>\r\n <META NAME=\"Language\" CONTENT=\"Testowy\"></HEAD>ala psa</HTML>");
}

TEST_F(Spelling, CancellingTheLanguageStartsNothing) {
  editor = &test.OpenText("psa").EditedText;
  test.windows.modals.push_back([](Form& form) { form.UserCloses(); });
  EXPECT_EQ(Check(), Record{});
  EXPECT_EQ(test.Text(), "psa");
}

TEST_F(Spelling, WithoutADictionaryTheControlSaysSo) {
  editor = &test.OpenText("<META NAME=\"Language\" CONTENT=\"Inny\">psa").EditedText;
  EXPECT_EQ(Check(), Record{"message " + Quoted(Concat({"Brak słownika : "_pl, test.Path("program\\SLOWNIKI\\morlan7s.Inn")})) +
                            " \"Morlan7\" stop ok"});
}

TEST_F(Spelling, ALanguageThatIsNotInTheListHasAnEmptyExtension) {
  editor = &test.OpenText("<META NAME=\"Language\" CONTENT=\"obcy\">psa").EditedText;
  EXPECT_EQ(Check(), Record{"message " + Quoted(Concat({"Brak słownika : "_pl, test.Path("program\\SLOWNIKI\\morlan7s.")})) +
                            " \"Morlan7\" stop ok"});
}

TEST_F(Spelling, ASecondCheckWithinTheFirstDoesNothing) {
  Open("psa");
  Next("psa", [this] {
    EXPECT_TRUE(test.program.commands.RunMenu("xmn_checkspeeling"));
    EXPECT_TRUE(test.windows.modals.empty());
    dialog.Command2.UserClicks();
  });
  EXPECT_EQ(Check(), kFinished);
}

TEST_F(Spelling, ADocumentThatIsClosedMeanwhileIsLeftAlone) {
  Open("hleb psa");
  Next("hleb", [this] {
    test.program.ActiveDocument->EditedText.Modified = false;
    CloseAllDocuments(test.program);
    test.program.ForgetClosed();
    dialog.Change.UserSets("chleb");
    dialog.Command4.UserClicks();
  });
  test.windows.modals.push_back([this](Form&) { dialog.Command1.UserClicks(); });
  EXPECT_EQ(Check(), kStopped);
}

TEST_F(Spelling, WithoutADocumentDoesNothing) {
  CloseAllDocuments(test.program);
  ASSERT_EQ(test.program.ActiveDocument, nullptr);
  EXPECT_EQ(Check(), Record{});
}

}  // namespace
}  // namespace morlan
