#include "text/selectlanguage.h"

#include <gtest/gtest.h>

#include "core/languages.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct SelectLanguageTest : testing::Test {
  TestProgram test;
  SelectLanguage& form = test.program.forms.Get<SelectLanguage>();

  SelectLanguageTest() {
    AddLanguage(test.program.MainIni, "Polski");
    AddLanguage(test.program.MainIni, "Angielski");
  }
  void Open(const std::function<void()>& act) {
    test.windows.modals.push_back([act](Form&) { act(); });
    ASSERT_TRUE(test.program.forms.ShowByName("SelectLanguage"));
    ASSERT_FALSE(form.IsVisible());
  }
};

TEST_F(SelectLanguageTest, BearsItsNames) {
  EXPECT_EQ(form.Caption(), "Wybór języka dokumentu"_pl);
  EXPECT_EQ(form.Command3.Caption(), "&Ok");
  EXPECT_EQ(form.Command2.Caption(), "&Anuluj");
  EXPECT_EQ(form.Command1.Caption(), "&Nowy");
}

TEST_F(SelectLanguageTest, ListsTheLanguagesAndSelectsTheFirst) {
  test.OpenText("<HTML></HTML>");
  Open([&] {
    EXPECT_EQ(form.Language.Rows(), (std::vector<std::string>{"Polski", "Angielski"}));
    EXPECT_EQ(form.Language.SelectedRow(), "Polski");
    form.Command2.UserClicks();
  });
}

TEST_F(SelectLanguageTest, SelectsTheLanguageOfTheDocument) {
  test.OpenText("<META NAME=\"Language\" CONTENT=\"angielski\">");
  Open([&] {
    EXPECT_EQ(form.Language.SelectedRow(), "Angielski");
    form.Command2.UserClicks();
  });
}

TEST_F(SelectLanguageTest, WritesTheChoiceIntoTheDocument) {
  test.OpenText("<HTML><HEAD></HEAD></HTML>");
  Open([&] {
    form.Language.UserSelects(1);
    form.Command3.UserClicks();
  });
  EXPECT_EQ(test.Text(), "<HTML><HEAD>\r\n <META NAME=\"Language\" CONTENT=\"Angielski\"></HEAD></HTML>");
}

TEST_F(SelectLanguageTest, CancellingWritesNothing) {
  test.OpenText("<HTML></HTML>");
  Open([&] { form.Command2.UserClicks(); });
  EXPECT_EQ(test.Text(), "<HTML></HTML>");
}

TEST_F(SelectLanguageTest, AddsALanguageThatIsAskedFor) {
  test.OpenText("<HTML></HTML>");
  test.windows.inputs.push_back("Niemiecki");
  test.windows.inputs.push_back("polski");
  test.Asked();
  Open([&] {
    form.Command1.UserClicks();
    form.Command1.UserClicks();
    EXPECT_EQ(form.Language.Rows(), (std::vector<std::string>{"Polski", "Angielski", "Niemiecki"}));
    form.Command2.UserClicks();
  });
  const Record asked = test.Asked();
  EXPECT_EQ(asked[1], "input \"Jaki język dodać ?\" \"Dodaj nowy język\" \"\"");
  EXPECT_EQ(asked[3], "message \"Język polski jest już w liście.\" \"Morlan7\" none ok");
  EXPECT_EQ(test.program.MainIni.GetSubItemValue("Languages", "Count"), "3");
  EXPECT_EQ(test.program.MainIni.GetSubItemValue("Languages", "Language3f"), "Nie");
}

}  // namespace
}  // namespace morlan
