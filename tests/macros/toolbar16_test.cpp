#include "macros/toolbar16.h"

#include "macros/shorttagwizard.h"
#include "tests/macros/macroprogram.h"

namespace morlan {
namespace {

class Toolbar16 : public MacroTest {
 protected:
  void Press(std::string_view key) {
    test.record.clear();
    EXPECT_TRUE(test.program.commands.RunToolbar("Toolbar16", key));
  }
  void Select(std::string_view name) {
    test.frame().makro.UserLeaves();
    RefreshMacroList(test.program);
    EXPECT_TRUE(test.frame().makro.UserSetsText(name));
  }
  void ShowWizard(std::function<void(ShortTagWizard&)> user) {
    test.windows.modals.push_back([user](Form& form) { user(dynamic_cast<ShortTagWizard&>(form)); });
    Press("creator");
  }
};

TEST_F(Toolbar16, TheListHoldsTheMacrosWithoutTheirExtension) {
  test.Write("program\\MAKRO\\Drugie.mac", "x");
  test.Write("program\\MAKRO\\pierwsze.MAC", "x");
  test.Write("program\\MAKRO\\notatka.txt", "x");
  RefreshMacroList(test.program);
  EXPECT_EQ(test.frame().makro.Rows(), (std::vector<std::string>{"Drugie", "pierwsze"}));
}

TEST_F(Toolbar16, RunsTheSelectedMacro) {
  test.Write("program\\MAKRO\\a.mac", "<HR>");
  test.OpenText("");
  Select("a");
  Press("run");
  EXPECT_EQ(test.Text(), "<HR>");
}

TEST_F(Toolbar16, OpensTheSelectedMacroAsADocument) {
  test.Write("program\\MAKRO\\a.mac", "<HR>");
  Select("a");
  Press("open");
  EXPECT_EQ(test.program.ActiveDocument->Caption(), test.Path("program\\MAKRO\\a.mac"));
  EXPECT_EQ(test.program.ActiveDocument->FileType.Caption(), "makro");
}

TEST_F(Toolbar16, NothingSelectedDoesNothing) {
  test.OpenText("x");
  for (const char* key : {"run", "open", "param"}) Press(key);
  EXPECT_EQ(test.Text(), "x");
  EXPECT_EQ(test.Asked(), Record{});
}

TEST_F(Toolbar16, ANewMacroIsADocumentOfItsName) {
  test.windows.inputs = {"nowe"};
  Press("new");
  EXPECT_EQ(test.Asked().at(0), "input \"Podaj nazwę dla makra\" \"Makro\" \"\"");
  EXPECT_EQ(test.program.ActiveDocument->Caption(), test.Path("program\\MAKRO\\nowe.mac"));
  EXPECT_EQ(test.program.ActiveDocument->FileType.Caption(), "makro");
  EXPECT_FALSE(test.Exists("program\\MAKRO\\nowe.mac")) << "its first save writes it";
  test.program.ActiveEditor->SetSelText("<HR>");
  test.program.commands.RunMenu("xmn_save");
  EXPECT_EQ(test.Read("program\\MAKRO\\nowe.mac"), "<HR>");
}

TEST_F(Toolbar16, AMacroThatIsThereIsNotMadeAgain) {
  test.Write("program\\MAKRO\\a.mac", "<HR>");
  test.windows.inputs = {"a"};
  Press("new");
  EXPECT_EQ(test.Asked().back(), "message \"Makro o podanej nazwie już istnieje !\" \"Morlan7 Makro\" warning ok");
}

TEST_F(Toolbar16, ANameCannotLeadOutOfTheDirectory) {
  for (const char* name : {"..\\x", "a/b", "c:x", "a*"}) {
    test.windows.inputs = {name};
    Press("new");
    EXPECT_EQ(test.Asked().back(), "message \"Nazwa makra zawiera znaki, których nie może mieć plik.\" \"Morlan7 Makro\" warning ok")
        << name;
    EXPECT_FALSE(test.program.runMacro(name));
  }
}

TEST_F(Toolbar16, AnEmptyNameMakesNothing) {
  test.windows.inputs = {""};
  Press("new");
  EXPECT_EQ(test.Asked().size(), 1u);
}

TEST_F(Toolbar16, TheWizardMakesAMacroThatWritesBothTextsAsTheyAre) {
  ShowWizard([](ShortTagWizard& form) {
    form.Nazwa.UserSets("ramka");
    form.Poczatek.UserSets("<DIV>\r\n");
    form.Koniec.UserSets("\r\n\r\n</DIV>");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.frame().makro.SelectedRow(), "ramka");
  test.OpenText("abc").EditedText.Select(1, 1);
  Press("run");
  EXPECT_EQ(test.Text(), "a<DIV>\r\nb\r\n\r\n</DIV>c");
}

TEST_F(Toolbar16, TheWizardRefusesWhatAMacroCannotHold) {
  test.Write("program\\MAKRO\\jest.mac", "x");
  ShowWizard([this](ShortTagWizard& form) {
    const auto refusal = [&](std::string_view name, std::string_view before) {
      test.record.clear();
      form.Nazwa.UserSets(name);
      form.Poczatek.UserSets(before);
      form.Command2.UserClicks();
      EXPECT_TRUE(form.IsVisible());
      return test.Asked().at(0);
    };
    EXPECT_EQ(refusal("", ""), "message \"Podaj nazwę makra.\" \"Morlan7 Makro\" warning ok");
    EXPECT_EQ(refusal("jest", ""), "message \"Makro o podanej nazwie już istnieje !\" \"Morlan7 Makro\" warning ok");
    EXPECT_EQ(refusal("b", "{"), "message \"Tekst nie może zawierać nawiasów klamrowych.\" \"Morlan7 Makro\" warning ok");
    form.Command1.UserClicks();
  });
  EXPECT_FALSE(test.Exists("program\\MAKRO\\b.mac"));
}

}  // namespace
}  // namespace morlan
