#include "tags/formelements.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class FormElementsTest : public TagEditorTest {
 protected:
  static std::string Text(FormElement element, const FormElementValues& values) {
    const FormElementText text = TextOfFormElement(element, values);
    return Concat({text.open, "|", text.close});
  }
  // The names of the fields that a kind shows, and the caption of its value.
  std::string Fields(std::string_view key) {
    std::string names;
    Inserted(
        "Toolbar5", key,
        [&](Form& form) {
          for (const Control* control : form.Controls())
            if (control->Visible() && !control->Name().starts_with("Command")) names += Concat({names.empty() ? "" : " ", control->Name()});
        },
        End::Cancel);
    return names;
  }
};

const FormElementValues kAll = {
    .name = "n", .value = "v", .size = "1", .maxlength = "2", .rows = "3", .cols = "4", .src = "s.gif", .align = "TOP", .checked = true};

TEST_F(FormElementsTest, EachKindWritesItsOwnAttributes) {
  EXPECT_EQ(Text(FormElement::Text, kAll), "<INPUT TYPE=\"TEXT\" NAME=\"n\" VALUE=\"v\" SIZE=\"1\" MAXLENGTH=\"2\">|");
  EXPECT_EQ(Text(FormElement::Password, kAll), "<INPUT TYPE=\"PASSWORD\" NAME=\"n\" VALUE=\"v\" SIZE=\"1\" MAXLENGTH=\"2\">|");
  EXPECT_EQ(Text(FormElement::TextArea, kAll), "<TEXTAREA NAME=\"n\" ROWS=\"3\" COLS=\"4\">|</TEXTAREA>");
  EXPECT_EQ(Text(FormElement::Check, kAll), "<INPUT TYPE=\"CHECKBOX\" NAME=\"n\" VALUE=\"v\" CHECKED>|");
  EXPECT_EQ(Text(FormElement::Radio, kAll), "<INPUT TYPE=\"RADIO\" NAME=\"n\" VALUE=\"v\" CHECKED>|");
  EXPECT_EQ(Text(FormElement::Submit, kAll), "<INPUT TYPE=\"SUBMIT\" NAME=\"n\" VALUE=\"v\">|");
  EXPECT_EQ(Text(FormElement::Reset, kAll), "<INPUT TYPE=\"RESET\" VALUE=\"v\">|");
  EXPECT_EQ(Text(FormElement::Hidden, kAll), "<INPUT TYPE=\"HIDDEN\" NAME=\"n\" VALUE=\"v\">|");
  EXPECT_EQ(Text(FormElement::File, kAll), "<INPUT TYPE=\"FILE\" NAME=\"n\" VALUE=\"v\" SIZE=\"1\" MAXLENGTH=\"2\">|");
  EXPECT_EQ(Text(FormElement::List, kAll), "<SELECT NAME=\"n\" ROWS=\"3\">\r\n <OPTION>\r\n <OPTION>\r\n <OPTION>\r\n</SELECT>|");
}

TEST_F(FormElementsTest, AnImageWritesItsAlignmentAsASecondNameOnPurpose) {
  EXPECT_EQ(Text(FormElement::Image, kAll), "<INPUT TYPE=\"IMAGE\" NAME=\"n\" SRC=\"s.gif\" NAME=\"TOP\">|");
}

TEST_F(FormElementsTest, EmptyFieldsAreNotWritten) {
  EXPECT_EQ(Text(FormElement::Text, {}), "<INPUT TYPE=\"TEXT\">|");
  EXPECT_EQ(Text(FormElement::TextArea, {}), "<TEXTAREA>|</TEXTAREA>");
  EXPECT_EQ(Text(FormElement::Check, {}), "<INPUT TYPE=\"CHECKBOX\">|");
  EXPECT_EQ(Text(FormElement::Image, {}), "<INPUT TYPE=\"IMAGE\">|");
  EXPECT_EQ(Text(FormElement::List, {}), "<SELECT>\r\n</SELECT>|");
}

TEST_F(FormElementsTest, WhatIsNoNumberIsWrittenAllTheSame) {
  EXPECT_EQ(Text(FormElement::Text, {.size = "0", .maxlength = "x"}), "<INPUT TYPE=\"TEXT\" SIZE=\"0\" MAXLENGTH=\"x\">|");
  EXPECT_EQ(Text(FormElement::List, {.rows = "x2"}), "<SELECT ROWS=\"x2\">\r\n</SELECT>|");
  EXPECT_EQ(Text(FormElement::List, {.rows = "-1"}), "<SELECT ROWS=\"-1\">\r\n</SELECT>|");
  EXPECT_EQ(Text(FormElement::List, {.rows = "1.9 x"}), "<SELECT ROWS=\"1.9 x\">\r\n <OPTION>\r\n</SELECT>|");
}

TEST_F(FormElementsTest, AHugeListHasABound) {
  const std::string text = Text(FormElement::List, {.rows = "99999999999"});
  const std::string line = " <OPTION>\r\n";
  EXPECT_EQ(text.size(), std::string_view("<SELECT ROWS=\"99999999999\">\r\n</SELECT>|").size() + kMostOptions * line.size());
}

struct ButtonCase {
  std::string_view key, row, fields;
};

TEST_F(FormElementsTest, EachButtonShowsItsKindAndItsFields) {
  constexpr ButtonCase kButtons[] = {
      {"text", "Pole tekstowe", "Element name_ value_ size_ maxlength_"},
      {"password", "Pole hasła"_pl, "Element name_ value_ size_ maxlength_"},
      {"textarea", "Obszar tekstu", "Element name_ rows_ cols_"},
      {"check", "Pole wyboru", "Element name_ value_ checked_"},
      {"radio", "Przycisk opcji", "Element name_ value_ checked_"},
      {"submit", "Przycisk wysyłania"_pl, "Element name_ value_"},
      {"reset", "Przycisk czyszczenia", "Element value_"},
      {"hidden", "Pole ukryte", "Element name_ value_"},
      {"image", "Przycisk graficzny", "Element name_ src_ srcFile align_"},
      {"file", "Wybór pliku"_pl, "Element name_ value_ size_ maxlength_"},
      {"list", "Lista wyboru", "Element name_ rows_"},
  };
  for (const ButtonCase& row : kButtons) {
    EXPECT_EQ(Fields(row.key), row.fields) << row.key;
    EXPECT_EQ(test_.program.forms.Get<FormElements>().Element.Text(), row.row);
  }
}

struct NumberCase {
  std::string_view key, number;
};

TEST_F(FormElementsTest, TheCallerPutsTheNumberIntoTheExchange) {
  constexpr NumberCase kNumbers[] = {{"text", "0"},  {"password", "1"}, {"textarea", "2"}, {"check", "3"}, {"radio", "4"}, {"submit", "5"},
                                     {"reset", "6"}, {"hidden", "7"},   {"image", "8"},    {"file", "9"},  {"list", "10"}};
  for (const NumberCase& row : kNumbers)
    Inserted("Toolbar5", row.key, [&](Form&) { EXPECT_EQ(test_.program.DialogResult, row.number) << row.key; });
}

TEST_F(FormElementsTest, AnotherKindCanBeChosenInTheDialog) {
  EXPECT_EQ(Inserted("Toolbar5", "text", {{"value_", "v"}, {"Element", "Obszar tekstu"}, {"rows_", "5"}, {"cols_", "40"}}),
            "<TEXTAREA ROWS=\"5\" COLS=\"40\">x</TEXTAREA>");
  EXPECT_EQ(Inserted("Toolbar5", "password"), "<INPUT TYPE=\"PASSWORD\" VALUE=\"v\">x") << "hidden fields keep what they hold";
}

TEST_F(FormElementsTest, TheValueOfAButtonIsItsCaption) {
  FormElements& form = test_.program.forms.Get<FormElements>();
  for (const std::string_view key : {"submit", "reset"}) {
    Inserted("Toolbar5", key);
    EXPECT_EQ(form.value_.Caption(), "Na&pis") << key;
  }
  Inserted("Toolbar5", "hidden");
  EXPECT_EQ(form.value_.Caption(), "&Wartość"_pl);
}

TEST_F(FormElementsTest, EachElementIsInsertedByItsButton) {
  EXPECT_EQ(Inserted("Toolbar5", "text", {{"name_", "imie"}, {"size_", "20"}, {"maxlength_", "30"}}),
            "<INPUT TYPE=\"TEXT\" NAME=\"imie\" SIZE=\"20\" MAXLENGTH=\"30\">x");
  EXPECT_EQ(Inserted("Toolbar5", "check", {{"checked_", "true"}}), "<INPUT TYPE=\"CHECKBOX\" NAME=\"imie\" CHECKED>x");
  EXPECT_EQ(Inserted("Toolbar5", "image", {{"src_", "a.gif"}, {"align_", "LEFT"}}),
            "<INPUT TYPE=\"IMAGE\" NAME=\"imie\" SRC=\"a.gif\" NAME=\"LEFT\">x");
  EXPECT_EQ(Inserted("Toolbar5", "list", {{"rows_", "1"}}), "<SELECT NAME=\"imie\" ROWS=\"1\">\r\n <OPTION>\r\n</SELECT>x");
  EXPECT_EQ(Inserted("Toolbar5", "textarea", {{"rows_", ""}}), "<TEXTAREA NAME=\"imie\">x</TEXTAREA>");
}

TEST_F(FormElementsTest, OneUndoForEachHalfTakesAnElementBack) {
  Inserted("Toolbar5", "textarea");
  Undo();
  EXPECT_EQ(test_.Text(), "<TEXTAREA>x");
  Undo();
  EXPECT_EQ(test_.Text(), "x");
}

TEST_F(FormElementsTest, AsksForAPicture) {
  const auto choose = [&](Form& form) {
    test_.windows.files.emplace_back(test_.Path("work\\a.gif"));
    EXPECT_TRUE(form.Find("srcFile")->UserClicks());
  };
  EXPECT_EQ(Inserted("Toolbar5", "image", choose), "<INPUT TYPE=\"IMAGE\" SRC=\"a.gif\">x");
}

TEST_F(FormElementsTest, CancelInsertsNothing) {
  for (const std::string_view key : {"text", "password", "list"}) ExpectCancelInsertsNothing("Toolbar5", key);
  EXPECT_EQ(test_.program.DialogResult, "-1");
}

TEST_F(FormElementsTest, WithoutADocumentNoDialogComesUp) {
  while (test_.program.ActiveDocument) test_.program.commands.RunMenu("mn_close");
  EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar5", "text"));
  EXPECT_EQ(test_.program.forms.FindMade("FormElements"), nullptr);
}

}  // namespace
}  // namespace morlan
