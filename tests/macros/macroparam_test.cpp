#include "macros/macroparam.h"

#include "core/documents.h"
#include "tests/macros/macroprogram.h"

namespace morlan {
namespace {

constexpr std::string_view kMacro =
    "{var name=\"Kolor\"}red{/var}{var name=\"Wiek\" type=\"num\"}{inputbox prompt=\"Ile?\" title=\"T\" value=\"5\"}{/var}"
    "{inputbox prompt=\"Bez\"}{inputbox prompt=\"Zmienna\" value=\"%%kolor\"}{variable name=\"pusta\"}{/variable}";

TEST(MacroParametersOf, FindsConstantsOfVariablesAndQuestions) {
  std::vector<std::string> found;
  for (const MacroParameter& parameter : MacroParametersOf(kMacro)) found.push_back(parameter.name + "=" + parameter.value);
  EXPECT_EQ(found, (std::vector<std::string>{"Kolor=red", "Ile?=5", "pusta="}));
}

TEST(MacroParametersOf, BrokenMacrosHaveWhatCanBeRead) {
  for (const char* text : {"", "{", "{var", "{var name=\"a\"", "{var name=\"a\"}", "{var name=\"a\"}x{", "{inputbox value=\"", "}"})
    EXPECT_TRUE(MacroParametersOf(text).size() <= 1) << text;
}

TEST(MacroParametersOf, AQuestionThatNamesItsValueInThePromptIsLeftOut) {
  EXPECT_TRUE(MacroParametersOf("{inputbox prompt=\"Podaj value\" value=\"5\"}").empty());
}

TEST(WithMacroParameters, ChangesTheValuesAlone) {
  std::vector<MacroParameter> parameters = MacroParametersOf(kMacro);
  EXPECT_EQ(WithMacroParameters(kMacro, parameters), kMacro);
  parameters[0].value = "green";
  parameters[1].value = "";
  parameters[2].value = "pełna"_pl;
  EXPECT_EQ(WithMacroParameters(kMacro, parameters),
            "{var name=\"Kolor\"}green{/var}{var name=\"Wiek\" type=\"num\"}{inputbox prompt=\"Ile?\" title=\"T\" value=\"\"}{/var}"
            "{inputbox prompt=\"Bez\"}{inputbox prompt=\"Zmienna\" value=\"%%kolor\"}{variable name=\"pusta\"}pełna{/variable}"_pl);
}

class MacroParamTest : public MacroTest {
 protected:
  MacroParamTest() {
    test.OpenText("");
    SetMacro("{var name=\"a\"}1{/var}{print text=\"%%a\"}");
  }
  void SetMacro(std::string_view text) {
    test.Write("program\\MAKRO\\proba.mac", text);
    test.frame().makro.Clear();
    test.frame().makro.AddItem("proba");
    test.frame().makro.SetListIndex(0);
  }
  void Show(std::function<void(MacroParam&)> user) {
    test.windows.modals.push_back([user](Form& form) { user(dynamic_cast<MacroParam&>(form)); });
    test.program.commands.RunToolbar("Toolbar16", "param");
  }
};

TEST_F(MacroParamTest, OkWritesTheMacro) {
  Show([](MacroParam& form) {
    EXPECT_EQ(form.Caption(), "Parametry makra proba");
    EXPECT_EQ(form.Wartosc.Text(), "1");
    form.Wartosc.UserSets("7");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Read("program\\MAKRO\\proba.mac"), "{var name=\"a\"}7{/var}{print text=\"%%a\"}");
  EXPECT_EQ(test.Text(), "");
}

TEST_F(MacroParamTest, TheMacroCanBeRunFromThere) {
  Show([](MacroParam& form) {
    form.Wartosc.UserSets("7");
    form.Command3.UserClicks();
  });
  EXPECT_EQ(test.Text(), "7");
}

TEST_F(MacroParamTest, CancelKeepsTheMacro) {
  Show([](MacroParam& form) {
    form.Wartosc.UserSets("7");
    form.Command1.UserClicks();
  });
  EXPECT_EQ(test.Read("program\\MAKRO\\proba.mac"), "{var name=\"a\"}1{/var}{print text=\"%%a\"}");
}

TEST_F(MacroParamTest, AValueWithABraceIsRefused) {
  Show([](MacroParam& form) {
    form.Wartosc.UserSets("a}b");
    form.Command2.UserClicks();
    EXPECT_TRUE(form.IsVisible());
    form.Wartosc.UserSets("ab");
    form.Command2.UserClicks();
    EXPECT_FALSE(form.IsVisible());
  });
  EXPECT_EQ(test.Read("program\\MAKRO\\proba.mac"), "{var name=\"a\"}ab{/var}{print text=\"%%a\"}");
}

TEST_F(MacroParamTest, AMacroWithoutParametersGetsAMessage) {
  SetMacro("<B>");
  test.record.clear();
  test.program.commands.RunToolbar("Toolbar16", "param");
  EXPECT_EQ(test.Asked(), Record{"message \"To makro nie ma parametrów.\" \"Morlan7 Makro\" information ok"});
}

TEST_F(MacroParamTest, AnOpenMacroShowsTheNewText) {
  OpenDocument(test.program, test.Path("program\\MAKRO\\proba.mac"));
  Show([](MacroParam& form) {
    form.Wartosc.UserSets("7");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.Text(), "{var name=\"a\"}7{/var}{print text=\"%%a\"}");
}

TEST_F(MacroParamTest, ChangesOfTheOldTextCannotSpoilTheNewOne) {
  OpenDocument(test.program, test.Path("program\\MAKRO\\proba.mac"));
  test.program.ActiveDocument->InsertAtCaret("<!--");
  test.program.commands.RunMenu("xmn_save");
  Show([](MacroParam& form) {
    form.Wartosc.UserSets("7");
    form.Command2.UserClicks();
  });
  test.program.commands.RunMenu("xmn_undo");
  EXPECT_EQ(test.Text(), "<!--{var name=\"a\"}7{/var}{print text=\"%%a\"}");
}

TEST_F(MacroParamTest, AnOpenMacroWithChangesIsLeftAlone) {
  OpenDocument(test.program, test.Path("program\\MAKRO\\proba.mac"));
  test.program.ActiveEditor->SetSelText("x");
  test.record.clear();
  test.program.commands.RunToolbar("Toolbar16", "param");
  EXPECT_EQ(test.Asked(),
            Record{"message \"Makro jest otwarte i ma niezapisane zmiany. Najpierw je zapisz.\" \"Morlan7 Makro\" information ok"});
}

}  // namespace
}  // namespace morlan
