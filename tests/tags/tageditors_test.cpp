// The two ways of each editor: the toolbar's button that inserts a tag, and the context menu's entry that rewrites one.
#include "tags/tageditors.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tags/anchoreditor.h"
#include "tags/celleditor.h"
#include "tags/embededitor.h"
#include "tags/fonteditor.h"
#include "tags/imageeditor.h"
#include "tags/lineeditor.h"
#include "tags/roweditor.h"
#include "tags/tableeditor.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class TagEditors : public testing::Test {
 protected:
  template <class Kind>
  Kind& Get() {
    return test_.program.forms.Get<Kind>();
  }
  static void Press(Form& form, bool ok) {
    const bool swapped = form.Name() == "lineedit";
    form.FindAs<Button>(ok != swapped ? "Command2" : "Command1")->UserClicks();
  }
  // Rewrites a tag in the middle of a text and answers with what stands in its place.
  std::string Rewritten(std::string_view tag, const std::function<void(Form&)>& change = {}, bool ok = true) {
    MlnEditor& editor = test_.OpenText(Concat({"ab", tag, "yz"})).EditedText;
    editor.Select(3, 0);
    test_.windows.modals.push_back([change, ok](Form& form) {
      if (change) change(form);
      Press(form, ok);
    });
    test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
    EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
    const std::string text = test_.Text();
    EXPECT_TRUE(text.starts_with("ab") && text.ends_with("yz")) << text;
    return text.substr(2, text.size() - 4);
  }
  // Inserts a tag round "x" by a toolbar's button.
  std::string Inserted(std::string_view toolbar, std::string_view key, const std::function<void(Form&)>& fill, bool ok = true) {
    test_.OpenText("x").EditedText.Select(0, 1);
    test_.windows.modals.push_back([fill, ok](Form& form) {
      fill(form);
      Press(form, ok);
    });
    EXPECT_TRUE(test_.program.commands.RunToolbar(toolbar, key));
    return test_.Text();
  }
  void Undo() { test_.program.ActiveDocument->UNDO.DoUndo(*test_.program.ActiveDocument); }
  TestProgram test_;
};

TEST_F(TagEditors, ATagIsWrittenAnewFromTheDialog) {
  EXPECT_EQ(Rewritten("<hr width=50 class=x>"), "<HR WIDTH=50>");
  EXPECT_EQ(Rewritten("<HR WIDTH=50% SIZE=3 ALIGN=\"center\" NOSHADE COLOR=\"RED\">"),
            "<HR WIDTH=50% SIZE=3 ALIGN=\"center\" NOSHADE COLOR=\"RED\">");
}

TEST_F(TagEditors, OneUndoBringsTheOldTagBack) {
  Rewritten("<hr width=50 class=x>");
  Undo();
  EXPECT_EQ(test_.Text(), "ab<hr width=50 class=x>yz");
  EXPECT_EQ(test_.program.ActiveDocument->UNDO.Count(), 0u);
}

TEST_F(TagEditors, CancelLeavesTheDocumentAlone) {
  for (const std::string_view tag : {"<hr size=1>", "<font size=1>", "<basefont size=1>", "<embed src=a.mid>", "<a href=b>",
                                     "<img src=\"a\">", "<table border=1>", "<tr align=left>", "<td width=1>", "<th width=1>"}) {
    EXPECT_EQ(Rewritten(tag, {}, false), tag);
    EXPECT_FALSE(test_.program.ActiveDocument->IsModified()) << tag;
  }
}

TEST_F(TagEditors, ALineAlignedToTheRightLosesItsAlignmentOnPurpose) {
  EXPECT_EQ(Rewritten("<HR ALIGN=\"center\">"), "<HR ALIGN=\"center\">");
  EXPECT_EQ(Rewritten("<HR ALIGN=\"right\">"), "<HR>");
}

TEST_F(TagEditors, TheWhiteOptionOfALineWritesNoColourOnPurpose) {
  EXPECT_EQ(Rewritten("<HR>", [](Form& form) { form.FindAs<OptionButton>("kolory(15)")->UserSets(); }), "<HR>");
}

TEST_F(TagEditors, AUserColourLosesADigitAtEachEditOnPurpose) {
  EXPECT_EQ(Rewritten("<HR COLOR=\"#FF0000\">"), "<HR COLOR=\"F0000\">");
  EXPECT_EQ(Rewritten("<HR COLOR=\"F0000\">"), "<HR COLOR=\"0000\">");
  EXPECT_EQ(Rewritten("<FONT COLOR=\"#12AB34\">"), "<FONT COLOR=\"2AB34\">");
  EXPECT_EQ(Rewritten("<HR COLOR=\"white\">"), "<HR COLOR=\"HITE\">");
}

TEST_F(TagEditors, AUserColourIsChosenInTheColourDialog) {
  test_.windows.colours.push_back(RgbColour(0x12, 0xAB, 0x34));
  EXPECT_EQ(Rewritten("<HR>", [](Form& form) { form.FindAs<OptionButton>("kolory(14)")->UserSets(); }), "<HR COLOR=\"#12AB34\">");
}

TEST_F(TagEditors, EveryColourOptionWritesItsWord) {
  const std::string_view words[] = {"FUCHSIA", "GREEN", "BLACK",  "RED",    "NAVY",   "MAROON", "AQUA",
                                    "BLUE",    "OLIVE", "PURPLE", "SILVER", "SILWER", "YELLOW"};
  for (std::size_t i = 0; i < std::size(words); ++i) {
    const std::string option = Concat({"kolory(", NumberText(static_cast<std::int64_t>(i + 1)), ")"});
    const std::string tag = Rewritten("<FONT>", [&](Form& form) { form.FindAs<OptionButton>(option)->UserSets(); });
    EXPECT_EQ(tag, Concat({"<FONT COLOR=\"", words[i], "\">"}));
    EXPECT_EQ(Rewritten(tag), tag);
  }
  EXPECT_EQ(Rewritten("<FONT COLOR=white>"), "<FONT COLOR=\"WHITE\">");
}

TEST_F(TagEditors, AFontSizeHasASignAndANumber) {
  for (const std::string_view tag : {"<FONT SIZE=+1>", "<FONT SIZE=-2 FACE=\"Courier\">", "<BASEFONT SIZE=3>"})
    EXPECT_EQ(Rewritten(tag), tag);
  EXPECT_EQ(Rewritten("<FONT FACE=\"courier\">"), "<FONT FACE=\"Courier\">");
  EXPECT_EQ(Rewritten("<FONT FACE=\"Arial, Helvetica\">"), "<FONT FACE=\"Arial, Helvetica\">");
}

TEST_F(TagEditors, TheFontDialogIsCaptionedByItsTag) {
  Rewritten("<BASEFONT>", [](Form& form) { EXPECT_EQ(form.Caption(), "Czcionka podstawowa"); });
  Rewritten("<FONT>", [](Form& form) { EXPECT_EQ(form.Caption(), "Czcionka chwilowa"); });
}

TEST_F(TagEditors, ASoundHasItsSwitchesAndALineEnd) {
  EXPECT_EQ(Rewritten("<EMBED SRC=\"../a.mid\" WIDTH=1 HEIGHT=2 BORDER=3 ALIGN=TEXTOP AUTOSTART=True LOOP=False>"),
            "<EMBED SRC=\"../a.mid\" WIDTH=1 HEIGHT=2 BORDER=3 ALIGN=TEXTOP AUTOSTART=True LOOP=False>\r\n");
  EXPECT_EQ(Rewritten("<EMBED SRC=\"a.avi\" AUTOSTART=True>"), "<EMBED SRC=\"a.avi\">\r\n");
}

TEST_F(TagEditors, TheSwitchesOfASoundAreShownForMidiAlone) {
  Rewritten("<EMBED SRC=\"a.avi\">", [](Form& form) {
    auto& dialog = static_cast<embed&>(form);
    EXPECT_FALSE(dialog.midi0.Visible());
    dialog.source.UserSets("b.MID");
    EXPECT_TRUE(dialog.midi0.Visible() && dialog.midi1.Visible());
  });
}

TEST_F(TagEditors, ALinkLosesTheSignOfItsLabelOnPurpose) {
  EXPECT_EQ(Rewritten("<A HREF=\"a.html\" NAME=\"n\" TARGET=\"_top\">"), "<A HREF=\"a.html\" NAME=\"n\" TARGET=\"_top\">");
  EXPECT_EQ(Rewritten("<A HREF=\"#top\">"), "<A HREF=\"top\">");
  EXPECT_EQ(Rewritten("<a name=x>"), "<a name=x>");
}

TEST_F(TagEditors, APictureIsReadAndWritten) {
  constexpr std::string_view kTag =
      "<IMG SRC=\"a b.gif\" ALT=\"a b\" USEMAP=\"#m\" WIDTH=1 HEIGHT=2 BORDER=0 VSPACE=4 HSPACE=5 ALIGN=MIDDLE ISMAP>";
  EXPECT_EQ(Rewritten(kTag), kTag);
  EXPECT_EQ(Rewritten("<IMG SRC=\"a\">"), "<IMG SRC=\"a\">");
  EXPECT_EQ(Rewritten("<IMG SRC=\"a\" USEMAP=\"m\">"), "<IMG SRC=\"a\" USEMAP=\"#m\">");
  EXPECT_EQ(Rewritten("<IMG SRC=a.gif ALT=\"x\">"), "<IMG SRC=\"x\" ALT=\"x\">") << "an unquoted value reads wrongly on purpose";
  EXPECT_EQ(Rewritten("<img src=a.gif>"), "<img src=a.gif>");
}

TEST_F(TagEditors, ATableIsReadAndWritten) {
  constexpr std::string_view kTag =
      "<TABLE BORDER=1 HEIGHT=\"2\" WIDTH=\"50%\" BACKGROUND=\"a.gif\" BGCOLOR=\"#12AB34\" ALIGN=\"BLEEDRIGHT\" VALIGN=\"TOP\" NOFLOW "
      "NOWARP "
      "CELLSPACING=\"3\" CELLPADDING=\"4\">";
  EXPECT_EQ(Rewritten(kTag), kTag);
  EXPECT_EQ(Rewritten("<TABLE BORDER=\"0\" CELLSPACING=0>"), "<TABLE>");
  EXPECT_EQ(Rewritten("<TABLE BGCOLOR=red>"), "<TABLE BGCOLOR=\"#0000FF\">") << "a named colour has its channels exchanged on purpose";
}

TEST_F(TagEditors, ARowIsReadAndWritten) {
  constexpr std::string_view kTag = "<TR ALIGN=\"RIGHT\" VALIGN=\"BASELINE\" BGCOLOR=\"#12AB34\">";
  EXPECT_EQ(Rewritten(kTag), kTag);
  EXPECT_EQ(Rewritten("<TR VALIGN=middle>"), "<TR VALIGN=\"CENTER\">");
  EXPECT_EQ(Rewritten("<TR VALIGN=\"CENTER\">"), "<TR>");
}

TEST_F(TagEditors, ACellIsReadAndWritten) {
  constexpr std::string_view kRest =
      " ALIGN=\"LEFT\" VALIGN=\"BASELINE\" BACKGROUND=\"a.gif\" BGCOLOR=\"#12AB34\" NOWARP WIDTH=\"1\" HEIGHT=\"2\" ROWSPAWN=\"3\" "
      "COLSPAWN=\"4\">";
  for (const std::string_view name : {"<TD", "<TH"}) EXPECT_EQ(Rewritten(Concat({name, kRest})), Concat({name, kRest}));
  EXPECT_EQ(Rewritten("<TD ROWSPAN=2 COLSPAN=3>"), "<TD>") << "the spans are spelt ROWSPAWN and COLSPAWN on purpose";
}

TEST_F(TagEditors, NewTagsComeFromTheToolbars) {
  const auto nothing = [](Form&) {};
  EXPECT_EQ(Inserted("Toolbar1", "line", nothing), "<HR>x");
  EXPECT_EQ(Inserted("Toolbar2", "basefont", [](Form& form) { static_cast<Fonty&>(form).Rozmiar.UserSets("3"); }), "<BASEFONT SIZE=3>x");
  EXPECT_EQ(Inserted("Toolbar2", "quickfont", nothing), "<FONT SIZE=3>x</FONT>");
  EXPECT_EQ(Inserted("Toolbar1", "anchor", [](Form& form) { static_cast<anchor&>(form).href.UserSets("a"); }), "<A HREF=\"a\">x</A>");
  EXPECT_EQ(Inserted("Toolbar1", "image", [](Form& form) { static_cast<image&>(form).source.UserSets("a"); }), "<IMG SRC=\"a\">x");
  EXPECT_EQ(Inserted("Toolbar13", "embed", [](Form& form) { static_cast<embed&>(form).source.UserSets("a"); }), "<EMBED SRC=\"a\">\r\nx");
  EXPECT_EQ(Inserted("Toolbar3", "metadtbl", nothing), "<TABLE>x</TABLE>");
  EXPECT_EQ(Inserted("Toolbar3", "metadtr", nothing), "<TR>x</TR>");
  EXPECT_EQ(Inserted("Toolbar3", "metadth", nothing), "<TH>x</TH>");
  EXPECT_EQ(Inserted("Toolbar3", "metadtd", nothing), "<TD>x</TD>");
}

TEST_F(TagEditors, ANewTagAfterAnEditedOneIsInserted) {
  Rewritten("<TABLE BORDER=1>");
  EXPECT_EQ(Inserted("Toolbar3", "metadtbl", [](Form&) {}), "<TABLE BORDER=1>x</TABLE>");
}

TEST_F(TagEditors, ALineCanBeInsertedAfterACancelledOne) {
  EXPECT_EQ(Inserted(
                "Toolbar1", "line", [](Form&) {}, false),
            "x");
  EXPECT_EQ(Inserted("Toolbar1", "line", [](Form& form) { EXPECT_EQ(static_cast<lineedit&>(form).Dlugosc.Text(), ""); }), "<HR>x");
}

TEST_F(TagEditors, EveryMnemonicIsUniqueAndEveryControlIsExplained) {
  const std::vector<Form*> forms = {&Get<lineedit>(), &Get<Fonty>(),  &Get<embed>(), &Get<anchor>(),
                                    &Get<image>(),    &Get<Tabela>(), &Get<DTR>(),   &Get<DTH>()};
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
