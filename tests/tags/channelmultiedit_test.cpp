#include "tags/channelmultiedit.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class ChannelMultiEdit : public testing::Test {
 protected:
  ChannelMultiEdit() { test_.Write("program\\Listy\\CHCat.lst", "Film\r\nGry\r\n"); }
  // Asks, changes the field to `typed` if there is something in it, and presses OK.
  std::string Asked(std::string_view list, std::optional<std::string_view> value, const std::function<void(Channel_MultiEdit&)>& act,
                    bool ok = true) {
    test_.windows.modals.push_back([act, ok](Form& form) {
      auto& dialog = static_cast<Channel_MultiEdit&>(form);
      if (act) act(dialog);
      (ok ? dialog.Command2 : dialog.Command1).UserClicks();
    });
    return test_.program.forms.Get<Channel_MultiEdit>().Ask("Kategoria", "Kategoria:", list, value);
  }
  TestProgram test_;
};

TEST_F(ChannelMultiEdit, ShowsWhatItIsToldAndTheLastEntryOfTheList) {
  EXPECT_EQ(Asked("Listy\\CHCat.lst", std::nullopt,
                  [](Channel_MultiEdit& dialog) {
                    EXPECT_EQ(dialog.Caption(), "Kategoria");
                    EXPECT_EQ(dialog.Info.Caption(), "Kategoria:");
                    EXPECT_EQ(dialog.Items.ListCount(), 2u);
                  }),
            "Gry");
}

TEST_F(ChannelMultiEdit, ShowsTheValueThatThereIs) {
  EXPECT_EQ(Asked("Listy\\CHCat.lst", "Film", {}), "Film");
  EXPECT_EQ(Asked("Listy\\CHCat.lst", "", {}), "");
}

TEST_F(ChannelMultiEdit, WithoutAListTheFieldIsEmpty) {
  Asked("Listy\\CHCat.lst", std::nullopt, {});
  EXPECT_EQ(Asked("", std::nullopt, [](Channel_MultiEdit& dialog) { EXPECT_EQ(dialog.Items.ListCount(), 0u); }), "");
}

TEST_F(ChannelMultiEdit, ANewTextIsRemembered) {
  EXPECT_EQ(Asked("Listy\\CHCat.lst", std::nullopt, [](Channel_MultiEdit& dialog) { dialog.Items.UserSets("Sport"); }), "Sport");
  EXPECT_EQ(test_.Read("program\\Listy\\CHCat.lst"), "Film\r\nGry\r\nSport\r\n");
}

TEST_F(ChannelMultiEdit, CancelAnswersWithNothing) {
  EXPECT_EQ(Asked(
                "Listy\\CHCat.lst", "a", [](Channel_MultiEdit& dialog) { dialog.Items.UserSets("Sport"); }, false),
            "");
  EXPECT_EQ(test_.Read("program\\Listy\\CHCat.lst"), "Film\r\nGry\r\n");
}

}  // namespace
}  // namespace morlan
