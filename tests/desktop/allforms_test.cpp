// All forms of the program, as they come up for new tags and for tags of a page, at the scale that the run has.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "core/defs.h"
#include "platform/qt/formdialog.h"
#include "tests/desktop/support/formchecks.h"
#include "tests/desktop/support/formtour.h"

namespace morlan {
namespace {

// A list that is answered by Enter and a page to look at; the form itself closes with Esc.
const std::set<std::string> kWithoutButtons = {"Browsers", "frmBrowser"};

enum class Check { Clipped, Overlapping, Outside, Nameless, Mnemonics, Size, Buttons, Reach, Jumps, ToolTips };

// Goes round once and keeps what each check finds, for the tests to read.
class AllForms : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    FormTour tour;
    names_ = tour.program().forms.Names();
    for (const FormStop& stop : tour.Stops())
      if (!tour.Open(stop, [&](FormDialog& dialog) { Look(stop, dialog); })) closed_.insert(stop.Name());
  }
  static void TearDownTestSuite() {
    findings_.clear();
    closed_.clear();
  }
  // What a check found in all forms together; "form: finding" in each line.
  static std::string Found(Check check) {
    std::string all;
    for (const std::string& finding : findings_[check]) all += finding + "\n";
    return all;
  }

  static std::vector<std::string> names_;
  static std::set<std::string> closed_;

 private:
  static void Take(Check check, const std::string& where, const Findings& findings) {
    for (const std::string& finding : findings) findings_[check].insert(where + ": " + finding);
  }
  static void Look(const FormStop& stop, FormDialog& dialog) {
    if (!kWithoutButtons.contains(stop.form)) Take(Check::Buttons, stop.form, MissingButtons(dialog.ShownForm()));
    VisitPages(dialog, [&](int page) { LookAtPage(stop.Name() + (page ? " " + std::to_string(page) : ""), dialog); });
  }
  static void LookAtPage(const std::string& where, FormDialog& dialog) {
    Take(Check::Clipped, where, ClippedTexts(dialog));
    Take(Check::Overlapping, where, OverlappingControls(dialog));
    Take(Check::Outside, where, ControlsOutsideTheirParents(dialog));
    Take(Check::Nameless, where, NamelessControls(dialog));
    Take(Check::Mnemonics, where, DuplicateMnemonics(dialog));
    Take(Check::Size, where, TooLarge(dialog));
    Take(Check::Reach, where, OutOfReach(dialog));
    Take(Check::Jumps, where, TabJumps(dialog));
    Take(Check::ToolTips, where, MissingToolTips(dialog));
  }

  static std::map<Check, std::set<std::string>> findings_;
};

std::vector<std::string> AllForms::names_;
std::set<std::string> AllForms::closed_;
std::map<Check, std::set<std::string>> AllForms::findings_;

TEST_F(AllForms, EachComesUp) {
  EXPECT_GE(names_.size(), 40u);
  EXPECT_EQ(closed_, std::set<std::string>());
}

TEST_F(AllForms, NoTextIsClipped) { EXPECT_TRUE(Found(Check::Clipped).empty()) << Found(Check::Clipped); }
TEST_F(AllForms, NoControlsOverlap) { EXPECT_TRUE(Found(Check::Overlapping).empty()) << Found(Check::Overlapping); }
TEST_F(AllForms, NoControlReachesOutOfItsParent) { EXPECT_TRUE(Found(Check::Outside).empty()) << Found(Check::Outside); }
TEST_F(AllForms, EveryControlHasAnAccessibleName) { EXPECT_TRUE(Found(Check::Nameless).empty()) << Found(Check::Nameless); }
TEST_F(AllForms, NoMnemonicStandsTwice) { EXPECT_TRUE(Found(Check::Mnemonics).empty()) << Found(Check::Mnemonics); }
TEST_F(AllForms, EachFitsOnASmallScreen) { EXPECT_TRUE(Found(Check::Size).empty()) << Found(Check::Size); }
TEST_F(AllForms, EnterAndEscPressButtons) { EXPECT_TRUE(Found(Check::Buttons).empty()) << Found(Check::Buttons); }
TEST_F(AllForms, TabReachesEveryControl) { EXPECT_TRUE(Found(Check::Reach).empty()) << Found(Check::Reach); }
TEST_F(AllForms, TabGoesAsOneReads) { EXPECT_TRUE(Found(Check::Jumps).empty()) << Found(Check::Jumps); }
TEST_F(AllForms, EveryFieldExplainsItself) { EXPECT_TRUE(Found(Check::ToolTips).empty()) << Found(Check::ToolTips); }

}  // namespace
}  // namespace morlan
