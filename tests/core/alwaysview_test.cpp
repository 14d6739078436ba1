// The dialog that names a page to be shown instead of the document.
#include "core/alwaysview.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class AlwaysViewTest : public testing::Test {
 protected:
  void Show(std::function<void(AlwaysView&)> act) {
    test_.windows.modals.push_back([act](Form& form) { act(static_cast<AlwaysView&>(form)); });
    EXPECT_TRUE(test_.program.forms.ShowByName("AlwaysView"));
  }
  const std::string& File() { return test_.program.AlwaysViewFile; }
  TestProgram test_;
};

TEST_F(AlwaysViewTest, OkTakesTheFile) {
  Show([](AlwaysView& form) {
    form.FileName.UserSets("c:\\ramki.html");
    form.Command2.UserClicks();
    EXPECT_FALSE(form.IsVisible());
  });
  EXPECT_EQ(File(), "c:\\ramki.html");
}

TEST_F(AlwaysViewTest, EnterInTheFieldIsOk) {
  Show([](AlwaysView& form) { EXPECT_EQ(form.defaultButton, &form.Command2); });
}

TEST_F(AlwaysViewTest, AnEmptyFieldSwitchesTheRuleOff) {
  test_.program.AlwaysViewFile = "c:\\ramki.html";
  Show([](AlwaysView& form) {
    EXPECT_EQ(form.FileName.Text(), "c:\\ramki.html");
    form.FileName.UserSets("");
    form.Command2.UserClicks();
  });
  EXPECT_EQ(File(), "");
}

TEST_F(AlwaysViewTest, CancelAndEscChangeNothing) {
  test_.program.AlwaysViewFile = "c:\\ramki.html";
  for (const bool escape : {false, true})
    Show([escape](AlwaysView& form) {
      form.FileName.UserSets("c:\\inne.html");
      escape ? form.UserCloses() : static_cast<void>(form.Command1.UserClicks());
      EXPECT_FALSE(form.IsVisible());
    });
  EXPECT_EQ(File(), "c:\\ramki.html");
}

TEST_F(AlwaysViewTest, TheToolbarAsksForTheFileAsTheOpenCommandDoes) {
  test_.windows.files = {"c:\\wybrane.html", std::nullopt};
  Show([](AlwaysView& form) {
    EXPECT_TRUE(form.Toolbar1.UserPresses("open"));
    EXPECT_EQ(form.FileName.Text(), "c:\\wybrane.html");
    EXPECT_TRUE(form.Toolbar1.UserPresses("open"));
    EXPECT_EQ(form.FileName.Text(), "c:\\wybrane.html");
  });
  const std::string dialog =
      "filedialog open \"Otwórz dokument\" \"Pliki HTML (*.HTML,*.HTM,*SHTM)|*.html;*.htm;*.shtm|Pliki kanałów inf. (*.CDF)|*.cdf|"
      "Wszystkie pliki (*.*)|*.*|\" \"\"";
  EXPECT_EQ(test_.Asked(), (Record{"modal AlwaysView \"Zawsze pokazuj plik\"", dialog, dialog, "closed AlwaysView"}));
  EXPECT_EQ(File(), "");
}

}  // namespace
}  // namespace morlan
