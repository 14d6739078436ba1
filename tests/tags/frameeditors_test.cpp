#include "tags/frameeditors.h"

#include "core/menus.h"
#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class FrameEditors : public TagEditorTest {};

struct EntryCase {
  std::string_view menu, opening;
};

TEST_F(FrameEditors, EachDialogHasAMenuEntry) {
  constexpr EntryCase kEntries[] = {
      {"mn_framesetdialog", "<FRAMESET"},
      {"mn_framedialog", "<FRAME "},
      {"mn_iframedialog", "<IFRAME"},
      {"mn_formshape", "<FORM"},
      {"mn_formtext", "<INPUT TYPE=\"TEXT"},
      {"mn_formpassword", "<INPUT TYPE=\"PASS"},
      {"mn_formtextarea", "<TEXTAREA"},
      {"mn_formcheck", "<INPUT TYPE=\"CHECK"},
      {"mn_formradio", "<INPUT TYPE=\"RADIO"},
      {"mn_formsubmit", "<INPUT TYPE=\"SUBMIT"},
      {"mn_formreset", "<INPUT TYPE=\"RESET"},
      {"mn_formhidden", "<INPUT TYPE=\"HIDDEN"},
      {"mn_formimage", "<INPUT TYPE=\"IMAGE"},
      {"mn_formfile", "<INPUT TYPE=\"FILE"},
      {"mn_formlist", "<SELECT"},
  };
  for (const EntryCase& row : kEntries) {
    TEditor& document = test_.OpenText("");
    ASSERT_NE(document.menu.Find(row.menu), nullptr) << row.menu;
    EXPECT_TRUE(document.menu.Find(row.menu)->visible) << row.menu;
    test_.windows.modals.push_back([](Form& form) { form.defaultButton->UserClicks(); });
    EXPECT_TRUE(test_.program.commands.RunMenu(row.menu));
    EXPECT_TRUE(test_.Text().starts_with(row.opening)) << row.menu << " " << test_.Text();
  }
}

struct FormCase {
  std::string_view form, caption;
};

TEST_F(FrameEditors, EachFormIsShownByItsName) {
  constexpr FormCase kForms[] = {{"FrameSet", "Zestaw ramek"},
                                 {"Frame", "Ramka"},
                                 {"IFrame", "Pływająca ramka"_pl},
                                 {"FormShape", "Zarys formularza"},
                                 {"FormElements", "Elementy formularza"}};
  test_.OpenText("");
  for (const FormCase& row : kForms) {
    test_.windows.modals.push_back([&](Form& form) {
      EXPECT_EQ(form.Name(), row.form);
      EXPECT_EQ(form.Caption(), row.caption);
      form.UserCloses();
    });
    EXPECT_TRUE(test_.program.forms.ShowByName(row.form)) << row.form;
  }
  EXPECT_EQ(test_.Text(), "");
}

}  // namespace
}  // namespace morlan
