#include "tags/serverdialog.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tags/cfmail.h"
#include "tags/cfquery.h"
#include "tags/tageditor.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(AddAttribute, WritesANonEmptyTextInQuotes) {
  EXPECT_EQ(AddAttribute("a b", "TO"), " TO=\"a b\"");
  EXPECT_EQ(AddAttribute("", "TO"), "");
  EXPECT_EQ(AddAttribute("a\"b", "TO"), " TO=\"a\"b\"");
}

class ServerDialogTest : public testing::Test {
 protected:
  ServerDialogTest() { test_.files.CreateDirectory(test_.Path("program\\Listy")); }
  CFQUERY& Query() { return test_.program.forms.Get<CFQUERY>(); }
  // Fills the dialog in and leaves it; what is left in DialogResult.
  std::string Ask(std::string_view source, std::string_view name, bool ok = true) {
    test_.windows.modals.push_back([=, this](Form&) {
      Query().text_0.UserSets(source);
      Query().text_1.UserSets(name);
      (ok ? Query().Command2 : Query().Command1).UserClicks();
    });
    Query().Ask();
    return test_.program.DialogResult;
  }
  TestProgram test_;
};

TEST_F(ServerDialogTest, AChoiceIsARowOrTheTextOfAnEditableBox) {
  Form form("a", "a");
  ComboBox editable(form, "b"), listOnly(form, "c", ComboBox::Style::ListOnly);
  for (ComboBox* box : {&editable, &listOnly}) {
    box->AddItems({"LEFT", "RIGHT"});
    ShowChoice(*box, "right");
    EXPECT_EQ(box->Text(), "RIGHT");
    EXPECT_EQ(box->ListIndex(), 1);
    ShowChoice(*box, "absmiddle");
    EXPECT_EQ(box->ListIndex(), -1);
  }
  EXPECT_EQ(editable.Text(), "absmiddle");
  EXPECT_EQ(listOnly.Text(), "");
  ShowChoice(editable, "");
  EXPECT_EQ(editable.Text(), "");
}

TEST_F(ServerDialogTest, OkLeavesTheTextAndCancelNothing) {
  EXPECT_EQ(Ask("s", "n"), " DATASOURCE=\"s\" NAME=\"n\"");
  EXPECT_EQ(Ask("s", "n", false), "");
  EXPECT_EQ(Ask("", ""), "");
}

TEST_F(ServerDialogTest, TheWindowsCloseButtonCancels) {
  test_.program.DialogResult = "x";
  test_.windows.modals.push_back([](Form& form) {
    static_cast<CFQUERY&>(form).text_0.UserSets("s");
    form.UserCloses();
  });
  EXPECT_EQ(Query().Ask(), "");
}

TEST_F(ServerDialogTest, OkAddsWhatWasTypedToTheLists) {
  Ask("Sklep", "towary"_pl);
  Ask("Sklep", "");
  Ask("SKLEP", "klienci");
  EXPECT_EQ(test_.Read("program\\Listy\\QSource.lst"), "Sklep\r\n");
  EXPECT_EQ(test_.Read("program\\Listy\\Query.lst"), "towary\r\nklienci\r\n");
}

TEST_F(ServerDialogTest, CancelAddsNothingToTheLists) {
  Ask("Sklep", "towary", false);
  EXPECT_FALSE(test_.Exists("program\\Listy\\QSource.lst"));
}

TEST_F(ServerDialogTest, ANewDialogHoldsTheLastEntryOfItsList) {
  test_.Write("program\\Listy\\QSource.lst", "a\r\nb\r\n");
  EXPECT_EQ(Query().text_0.Text(), "b");
  EXPECT_EQ(Query().text_1.Text(), "");
}

TEST_F(ServerDialogTest, AListServesTheNextDialogAtOnceAndFieldsKeepTheirTexts) {
  test_.program.forms.Get<CFMAIL>().MailQuery.SetText("stare");
  Ask("s", "towary");
  test_.windows.modals.push_back([](Form& form) {
    const auto& dialog = static_cast<CFMAIL&>(form);
    EXPECT_EQ(dialog.MailQuery.Rows(), std::vector<std::string>{"towary"});
    EXPECT_EQ(dialog.MailQuery.Text(), "stare");
    form.Hide();
  });
  test_.program.forms.Get<CFMAIL>().Ask();
}

TEST_F(ServerDialogTest, AListOfFilesIsFilledByAFileButton) {
  test_.OpenText("");
  Form form("a", "a");
  ComboBox box(form, "b");
  Button button(form, "c", "...");
  SetUpFileButton(test_.program, button, box, "");
  test_.windows.files.push_back(test_.Path("work\\kat\\a.inc"));
  button.UserClicks();
  EXPECT_EQ(box.Text(), "kat/a.inc");
  test_.windows.files.push_back(std::nullopt);
  button.UserClicks();
  EXPECT_EQ(box.Text(), "kat/a.inc");
}

}  // namespace
}  // namespace morlan
