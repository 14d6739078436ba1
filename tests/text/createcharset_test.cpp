#include "text/createcharset.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/text.h"
#include "tests/support/testprogram.h"
#include "text/charsets.h"

namespace morlan {
namespace {

struct CreateCharSetForm : testing::Test {
  CreateCharSetForm() {
    SaveCharSet(test.program, {"Win1250", "Windows", {0xEA, 0xCA, 0xF3, 0xD3, 0xB9, 0xA5}});
    SaveCharSet(test.program, {"inny", "Zestaw", {0x91, 0x90}});
  }
  void Show(const std::function<void(CreateCharSet&)>& user) {
    test.windows.modals.push_back([&](Form& form) { user(dynamic_cast<CreateCharSet&>(form)); });
    EXPECT_TRUE(test.program.forms.ShowByName("CreateCharSet"));
  }
  void Answer(CreateCharSet& form, std::size_t letter, std::optional<std::string> answer) {
    test.windows.inputs.push_back(std::move(answer));
    form.n[letter]->UserClicks();
  }
  CharSetRecord Stored(std::string_view name) { return LoadCharSets(test.program).CharSetByName(name).value_or(CharSetRecord()); }
  TestProgram test;
};

TEST_F(CreateCharSetForm, OffersTheNamesOfTheFile) {
  Show([](CreateCharSet& form) { EXPECT_EQ(form.CharSetName.Rows(), (std::vector<std::string>{"Win1250", "inny"})); });
}

TEST_F(CreateCharSetForm, AChosenNameShowsItsRecord) {
  Show([](CreateCharSet& form) {
    form.CharSetName.UserSets("inny");
    EXPECT_EQ(form.CharSetInfo.Text(), "Zestaw");
    EXPECT_EQ(form.n[0]->Caption(), "\xEA 145");
    EXPECT_EQ(form.n[2]->Caption(), "\xF3 -") << "a letter without a code";
  });
}

TEST_F(CreateCharSetForm, AsksForTheCharacterOfALetter) {
  Show([&](CreateCharSet& form) {
    Answer(form, 0, "\xB1");
    EXPECT_EQ(test.Asked().back(), "input \"Zmaina znaku do defioniwania. Wprowadź znak \" \"Zmiana znaku\" \"\"");
    EXPECT_EQ(form.n[0]->Caption(), "\xEA 177");
    Answer(form, 0, "\xB2x");
    EXPECT_EQ(test.Asked().back(), "input \"Zmaina znaku do defioniwania. Wprowadź znak \" \"Zmiana znaku\" \"±\"")
        << "the answer before is offered";
    EXPECT_EQ(form.n[0]->Caption(), "\xEA 178") << "the first character counts";
  });
}

TEST_F(CreateCharSetForm, ACodeMayBeGivenAsANumber) {
  Show([&](CreateCharSet& form) {
    Answer(form, 1, "&#141");
    EXPECT_EQ(form.n[1]->Caption(), "\xCA 141");
    for (const char* wrong : {"&#256", "&#", "&#x", ""}) Answer(form, 1, wrong);
    Answer(form, 1, std::nullopt);
    EXPECT_EQ(form.n[1]->Caption(), "\xCA 141") << "what is no code, and a cancelled question, change nothing";
    Answer(form, 1, "&#0");
    EXPECT_EQ(form.n[1]->Caption(), "\xCA -");
  });
}

TEST_F(CreateCharSetForm, SavesANewRecord) {
  Show([&](CreateCharSet& form) {
    form.CharSetName.UserSets(" nowy ");
    form.CharSetInfo.UserSets("Opis");
    Answer(form, 17, "\xD1");
    form.Command2.UserClicks();
    EXPECT_TRUE(form.IsVisible()) << "it stays open for the next one";
    EXPECT_EQ(form.CharSetName.Rows().back(), "nowy");
  });
  CharSetRecord expected{"nowy", "Opis", {}};
  expected.codes[17] = 0xD1;
  EXPECT_EQ(Stored("nowy"), expected);
}

TEST_F(CreateCharSetForm, SavesOverARecordOfThatName) {
  Show([&](CreateCharSet& form) {
    form.CharSetName.UserSets("inny");
    Answer(form, 0, "\xA0");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(LoadCharSets(test.program).CharSetCount(), 2u);
  EXPECT_EQ(Stored("inny").codes[0], 0xA0);
  EXPECT_EQ(Stored("inny").codes[1], 0x90);
}

TEST_F(CreateCharSetForm, ANamelessSetIsNotSaved) {
  Show([&](CreateCharSet& form) {
    form.CharSetName.UserSets("  ");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Asked().at(1), "message \"Nie podana nazwa formatu zapisu. Proszę podać.\" \"Morlan7\" stop ok");
  EXPECT_EQ(LoadCharSets(test.program).CharSetCount(), 2u);
}

TEST_F(CreateCharSetForm, AFailedWriteIsTold) {
  test.files.Delete(test.Path("program\\CharSets.Def"));
  test.files.CreateDirectory(test.Path("program\\CharSets.Def"));
  Show([](CreateCharSet& form) {
    form.CharSetName.UserSets("nowy");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Asked().at(1), "message \"Nie można zapisać formatu !\" \"Morlan7\" stop ok");
}

TEST_F(CreateCharSetForm, WarnsOfLettersThatGetMixedUp) {
  Show([&](CreateCharSet& form) {
    form.CharSetName.UserSets("inny");
    EXPECT_EQ(form.Mixed.Caption(), "");
    Answer(form, 4, "\xA5");  // ą in the place of the edited Ą, which is exchanged behind it
    EXPECT_EQ(form.Mixed.Caption(), "");
    Answer(form, 5, "\xA4");
    EXPECT_EQ(form.Mixed.Caption(), "Przy zamianie mieszają się litery: ą"_pl);
  });
}

TEST_F(CreateCharSetForm, ThePictureOfTheLettersIsClosedByItsButton) {
  Show([](CreateCharSet& form) {
    form.Command1.UserClicks();
    EXPECT_FALSE(form.IsVisible());
  });
}

}  // namespace
}  // namespace morlan
