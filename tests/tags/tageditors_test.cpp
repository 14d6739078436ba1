// What all editors of tags share: the way from the menu's entry to a new tag, and the care that each dialog takes.
#include "tags/tageditors.h"

#include "tags/anchoreditor.h"
#include "tags/celleditor.h"
#include "tags/embededitor.h"
#include "tags/fonteditor.h"
#include "tags/formeditor.h"
#include "tags/formelements.h"
#include "tags/frameeditor.h"
#include "tags/frameseteditor.h"
#include "tags/iframeeditor.h"
#include "tags/imageeditor.h"
#include "tags/lineeditor.h"
#include "tags/roweditor.h"
#include "tags/tableeditor.h"
#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class TagEditors : public TagEditorTest {
 protected:
  template <class Kind>
  Kind& Get() {
    return test_.program.forms.Get<Kind>();
  }
};

TEST_F(TagEditors, OneUndoBringsTheOldTagBack) {
  Rewritten("<hr width=50 class=x>");
  Undo();
  EXPECT_EQ(test_.Text(), "ab<hr width=50 class=x>yz");
  EXPECT_EQ(test_.program.ActiveDocument->UNDO.Count(), 0u);
}

TEST_F(TagEditors, ATagAtTheVeryFrontIsRewritten) {
  test_.OpenText("<hr>x").EditedText.Select(1, 0);
  test_.windows.modals.push_back([](Form& form) { form.defaultButton->UserClicks(); });
  test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
  EXPECT_EQ(test_.Text(), "<HR>x");
  EXPECT_EQ(test_.program.ActiveEditor->SelStart(), 4u);
}

TEST_F(TagEditors, TheRepeatEntryNamesTheRewrittenTag) {
  Rewritten("<hr>");
  EXPECT_EQ(test_.program.tagState.LastTagName, "HR");
  EXPECT_EQ(test_.program.tagState.LastOpenText, "<HR>");
}

TEST_F(TagEditors, ASignInAQuotedValueEndsTheTagOnPurpose) { EXPECT_EQ(Rewritten("<A HREF=\"a>b\">"), "<A HREF=\"a\">b\">"); }

TEST_F(TagEditors, QuotesAndLineEndsGoIntoTheTagAsTheyAre) {
  EXPECT_EQ(Rewritten("<A HREF=\"a\">", {{"etykieta", "b\"\r\nc"}}), "<A HREF=\"a\" NAME=\"b\"\r\nc\">");
}

TEST_F(TagEditors, NothingIsWrittenWhereTheTagHasGone) {
  for (const std::string_view now : {"", "ab", "ab<hr", "abcdef>yz"}) {
    test_.OpenText("ab<hr>yz").EditedText.Select(3, 0);
    test_.windows.modals.push_back([&](Form& form) {
      test_.program.ActiveEditor->SetText(std::string(now));
      form.defaultButton->UserClicks();
    });
    test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
    EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
    EXPECT_EQ(test_.Text(), now);
  }
}

TEST_F(TagEditors, ATagOfADocumentInChannelModeIsRewritten) {
  test_.OpenText("<hr width=5>").EditedText.Select(3, 0);
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_ModeCdf"));
  test_.windows.modals.push_back([](Form& form) { form.defaultButton->UserClicks(); });
  test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
  EXPECT_EQ(test_.Text(), "<HR WIDTH=5>");
}

TEST_F(TagEditors, AVeryLongValueIsKept) {
  const std::string value(100000, 'x');
  EXPECT_EQ(Rewritten("<A HREF=\"a\">", {{"href", value}}), Concat({"<A HREF=\"", value, "\">"}));
}

TEST_F(TagEditors, AnAttributeBehind500CharactersIsNotSeenOnPurpose) {
  const std::string far = Concat({"<hr class=", std::string(500, 'x'), " width=5>"});
  EXPECT_EQ(Rewritten(far), "<HR>");
}

struct EntryCase {
  std::string_view menu, form;
};

TEST_F(TagEditors, EachDialogOpensFromAMenuToo) {
  constexpr EntryCase kEntries[] = {
      {"mn_line", "lineedit"},
      {"mn_anchor", "anchor"},
      {"mn_image", "image"},
      {"mn_basefont", "Fonty"},
      {"mn_quickfont", "Fonty"},
      {"mn_tabledialog", "Tabela"},
      {"mn_rowdialog", "DTR"},
      {"mn_headerdialog", "DTH"},
      {"mn_celldialog", "DTH"},
      {"mn_embed", "embed"},
      {"mn_quickstart", "QuickStart"},
      {"mn_body", "BodyTag"},
      {"mn_coments", "coments"},
      {"mn_email", "email"},
      {"mn_variables", "Variables"},
      {"mn_aspservervar", "ServerVariables"},
      {"mn_aspinclude", "IncludeFile"},
      {"mn_cfservervar", "ServerVariables"},
      {"mn_cfinclude", "IncludeFile"},
      {"mn_cfquery", "CFQUERY"},
      {"mn_cfmail", "CFMAIL"},
      {"mn_cftable", "CFTable"},
      {"mn_cffile", "CFFILE"},
      {"mn_cfcol", "CFCOL"},
      {"mn_applet", "Aplet"},
      {"mn_script", "Script"},
  };
  for (const EntryCase& row : kEntries) {
    const TEditor& document = test_.OpenText("");
    ASSERT_NE(document.menu.Find(row.menu), nullptr) << row.menu;
    EXPECT_TRUE(document.menu.Find(row.menu)->visible) << row.menu;
    std::string opened;
    test_.windows.modals.push_back([&opened](Form& form) {
      opened = form.Name();
      form.UserCloses();
    });
    EXPECT_TRUE(test_.program.commands.RunMenu(row.menu));
    EXPECT_EQ(opened, row.form) << row.menu;
  }
}

TEST_F(TagEditors, WithoutADocumentNothingOpens) {
  while (test_.program.ActiveDocument) test_.program.commands.RunMenu("mn_close");
  test_.program.commands.RunToolbar("Toolbar1", "line");
  EXPECT_EQ(test_.program.forms.FindMade("lineedit"), nullptr);
}

TEST_F(TagEditors, EveryMnemonicIsUniqueAndEveryControlIsExplained) {
  const std::vector<Form*> forms = {&Get<lineedit>(), &Get<Fonty>(),     &Get<embed>(),       &Get<anchor>(),   &Get<image>(),
                                    &Get<Tabela>(),   &Get<DTR>(),       &Get<DTH>(),         &Get<FrameSet>(), &Get<FrameTag>(),
                                    &Get<IFrame>(),   &Get<FormShape>(), &Get<FormElements>()};
  for (const Form* form : forms) {
    std::string seen;
    const auto take = [&](std::string_view caption) {
      const std::size_t mark = caption.find('&');
      if (mark == std::string_view::npos || mark + 1 == caption.size()) return;
      const char letter = LowerCharacter(caption[mark + 1]);
      EXPECT_EQ(seen.find(letter), std::string::npos) << form->Name() << " " << ToUtf8(caption);
      seen += letter;
    };
    const std::function<void(const Layout&)> walk = [&](const Layout& part) {
      take(part.caption);
      for (const Layout& child : part.children) walk(child);
    };
    walk(form->layout);
    for (const Control* control : form->Controls()) {
      take(control->Caption());
      const bool isEndButton = control->Name().starts_with("Command");
      EXPECT_TRUE(isEndButton || !control->ToolTip().empty()) << form->Name() << " " << control->Name();
    }
  }
}

}  // namespace
}  // namespace morlan
