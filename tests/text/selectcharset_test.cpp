#include "text/selectcharset.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/text.h"
#include "tests/support/testprogram.h"
#include "text/charsets.h"
#include "text/createcharset.h"

namespace morlan {
namespace {

struct SelectCharSetForm : testing::Test {
  SelectCharSetForm() {
    SaveCharSet(test.program, {"Win1250", "Windows", {0xEA, 0xCA, 0xF3, 0xD3, 0xB9, 0xA5}});
    SaveCharSet(test.program, {"inny", "Zestaw", {0x91, 0x90, 0, 0, 0xA5, 0xA4}});
    test.program.DialogResult = "przedtem";
  }
  void Show(const std::function<void(SelectCharSet&)>& user) {
    test.windows.modals.push_back([&](Form& form) { user(dynamic_cast<SelectCharSet&>(form)); });
    EXPECT_TRUE(test.program.forms.ShowByName("SelectCharSet"));
  }
  TestProgram test;
};

TEST_F(SelectCharSetForm, OkGivesTheName) {
  Show([](SelectCharSet& form) {
    EXPECT_EQ(form.saveformat.Rows(), (std::vector<std::string>{"Win1250", "inny"}));
    form.saveformat.UserSelects(1);
    EXPECT_EQ(form.CharSetInfo.Caption(), "Zestaw");
    EXPECT_EQ(form.Mixed.Caption(), "Przy zamianie mieszają się litery: ą"_pl);
    form.Command2.UserClicks();
  });
  EXPECT_EQ(test.program.DialogResult, "inny");
}

TEST_F(SelectCharSetForm, SoDoesADoubleClick) {
  Show([](SelectCharSet& form) {
    form.saveformat.UserSelects(0);
    form.saveformat.UserDblClicks();
    EXPECT_FALSE(form.IsVisible());
  });
  EXPECT_EQ(test.program.DialogResult, "Win1250");
}

TEST_F(SelectCharSetForm, CancelEmptiesTheResult) {
  Show([](SelectCharSet& form) {
    form.saveformat.UserSelects(1);
    form.Command1.UserClicks();
  });
  EXPECT_EQ(test.program.DialogResult, "");
}

TEST_F(SelectCharSetForm, WithoutAChoiceThereIsNoOk) {
  Show([](SelectCharSet& form) {
    EXPECT_FALSE(form.Command2.Enabled());
    form.saveformat.UserSelects(0);
    EXPECT_TRUE(form.Command2.Enabled());
  });
}

TEST_F(SelectCharSetForm, TheDocumentsSetIsSelected) {
  test.OpenText("<html>").CharSet.SetCaption("inny");
  Show([](SelectCharSet& form) { EXPECT_EQ(form.saveformat.SelectedRow(), "inny"); });
}

TEST_F(SelectCharSetForm, ANewSetCanBeMadeAndIsOfferedAtOnce) {
  Show([&](SelectCharSet& form) {
    form.saveformat.UserSelects(1);
    test.windows.modals.push_back([](Form& inner) {
      auto& create = dynamic_cast<CreateCharSet&>(inner);
      create.CharSetName.UserSets("nowy");
      create.Command2.UserClicks();
    });
    form.Command3.UserClicks();
    EXPECT_EQ(form.saveformat.Rows().back(), "nowy");
    EXPECT_EQ(form.saveformat.SelectedRow(), "inny") << "the choice stays";
  });
}

}  // namespace
}  // namespace morlan
