#include "tags/propertieseditor.h"

#include "tests/tags/sheetfixture.h"

namespace morlan {
namespace {

class PropertiesEditorTest : public SheetTest {
 protected:
  PropertiesEditorTest() {
    form.BecomeVisible();
    test_.Asked();
  }
  PropertyFile File() { return PropertyFile(test_.Read("program\\Morlan7.tpf")); }
  PropertiesEditor& form = test_.program.forms.Get<PropertiesEditor>();
};

using Rows = std::vector<std::string>;

TEST_F(PropertiesEditorTest, BothListsFollowTheFile) {
  EXPECT_EQ(form.Caption(), "Edycja Właściwości"_pl);
  EXPECT_EQ(form.Znaczniki.Rows(), (Rows{"input", "basefont", "pusty"}));
  EXPECT_EQ(form.Parametry.Rows(), (Rows{"type", "name", "size", "checked", "bgcolor", "target", "src", "onclick", "style"}));
  form.Znaczniki.UserSelects(2);
  EXPECT_EQ(form.Parametry.Rows(), Rows{});
  EXPECT_FALSE(form.Command3.Enabled() || form.Command6.Enabled());
  EXPECT_TRUE(form.Command4.Enabled());
}

TEST_F(PropertiesEditorTest, ANewTagIsAskedForAndSelected) {
  test_.windows.inputs.push_back(" nowy ");
  form.Command1.UserClicks();
  EXPECT_EQ(test_.Asked(), Record{"input \"Jaki znacznik dodać\" \"Dodaj nowy znacznik\" \"\""});
  EXPECT_EQ(form.Znaczniki.SelectedRow(), "nowy");
  EXPECT_NE(File().FindTag("nowy"), 0u);
}

TEST_F(PropertiesEditorTest, ATagThatIsThereIsNotAddedAgain) {
  test_.windows.inputs.push_back("INPUT");
  form.Command1.UserClicks();
  EXPECT_EQ(test_.Asked().back(), "message \"Znacznik jest już dodany\" \"Morlan7\" stop ok");
  EXPECT_EQ(File().Tags().size(), 3u);
}

TEST_F(PropertiesEditorTest, ACancelledQuestionAddsNothing) {
  test_.windows.inputs = {std::nullopt, ""};
  form.Command1.UserClicks();
  form.Command1.UserClicks();
  EXPECT_EQ(File().Tags().size(), 3u);
}

TEST_F(PropertiesEditorTest, ATagIsRemovedWhenTheUserIsSure) {
  form.Znaczniki.UserSelects(2);
  test_.windows.answers = {Answer::No, Answer::Yes};
  form.Command2.UserClicks();
  EXPECT_EQ(test_.Asked(), Record{"message \"Jesteś pewny, że chcesz usunąć znacznik pusty\" \"Morlan7\" question yesno"});
  EXPECT_EQ(form.Znaczniki.ListCount(), 3u);
  form.Command2.UserClicks();
  EXPECT_EQ(form.Znaczniki.Rows(), (Rows{"input", "basefont"}));
}

TEST_F(PropertiesEditorTest, ABuiltInTagStays) {
  test_.windows.answers = {Answer::Yes};
  form.Command2.UserClicks();
  EXPECT_EQ(test_.Asked().back(), "message \"Ten znacznik nie może zostać usunięty\" \"Morlan7\" stop ok");
  EXPECT_EQ(form.Znaczniki.ListCount(), 3u);
}

TEST_F(PropertiesEditorTest, AParameterIsRemovedWhenTheUserIsSure) {
  form.Parametry.UserSelects(2);
  test_.windows.answers = {Answer::Yes, Answer::Yes};
  form.Command6.UserClicks();
  EXPECT_EQ(test_.Asked(), Record{"message \"Jesteś pewny, że chcesz usunąć parametr size\" \"Morlan7\" question yesno"});
  EXPECT_EQ(form.Parametry.SelectedRow(), "checked");
  form.Command6.UserClicks();
  EXPECT_EQ(test_.Asked().back(), "message \"Ten parametr nie może zostać usunięty\" \"Morlan7\" stop ok");
  EXPECT_EQ(File().Params(1)->size(), 8u);
}

TEST_F(PropertiesEditorTest, ParametersAreAddedAndChangedInTheirDialog) {
  test_.windows.modals.push_back([](Form& dialog) {
    dialog.FindAs<TextBox>("name_")->UserSets("id");
    dialog.FindAs<Button>("Command2")->UserClicks();
  });
  form.Command4.UserClicks();
  EXPECT_EQ(form.Parametry.SelectedRow(), "id");
  test_.windows.modals.push_back([](Form& dialog) {
    EXPECT_EQ(dialog.FindAs<TextBox>("name_")->Text(), "id");
    dialog.FindAs<TextBox>("name_")->UserSets("id2");
    dialog.FindAs<Button>("Command2")->UserClicks();
  });
  form.Parametry.UserDblClicks();
  EXPECT_EQ(form.Parametry.SelectedRow(), "id2");
}

TEST_F(PropertiesEditorTest, TheMenuOpensIt) {
  test_.windows.modals.push_back([](Form& dialog) {
    EXPECT_EQ(dialog.Name(), "PropertiesEditor");
    dialog.FindAs<Button>("Command5")->UserClicks();
    EXPECT_FALSE(dialog.IsVisible());
  });
  EXPECT_TRUE(test_.program.commands.RunMenu("mn_propertieseditor"));
}

}  // namespace
}  // namespace morlan
