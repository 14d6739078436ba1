// What the editors of tags share: the protocol between a caller and a dialog, the one way in which an old tag gives way
// to a new one, and the pieces that tags are written from.
#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/forms/controls.h"
#include "platform/lettercase.h"

namespace morlan {

class Program;

// True while a dialog is shown for a tag that stands in the document: its OK button then only closes it.
bool EditsExisting(const Program& program);
// Shows a dialog for the tag under the caret. False when the dialog was left with the word for "cancelled"; dialogs that
// tell it otherwise are asked by the caller.
bool ShowForExisting(Program& program, Form& form, std::string_view cancelled = "-1");
// Shows a dialog for a new tag, likewise.
bool ShowForNew(Program& program, Form& form, std::string_view cancelled = "-1");

// Puts a new tag in the place of the one at CurrentTagStart, through its first ">" in the live text, as one undo step.
// Nothing happens without an open document, or when there is no such tag any more.
void RewriteTag(Program& program, std::string_view newTag);

// A tag that is written piece by piece. An attribute is given with its blank and its "=": " WIDTH=". Quotes in a value
// are not escaped.
class TagText {
 public:
  explicit TagText(std::string_view opening) : text_(opening) {}
  TagText& Literal(std::string_view text);
  TagText& Quoted(std::string_view attribute, std::string_view value);            // always
  TagText& IfText(std::string_view attribute, std::string_view value);            // unquoted, unless it is empty
  TagText& QuotedIfText(std::string_view attribute, std::string_view value);      // unless it is empty
  TagText& QuotedIfPositive(std::string_view attribute, std::string_view value);  // when the number in front is above 0
  TagText& UnquotedIfPositive(std::string_view attribute, std::string_view value);
  TagText& QuotedColour(std::string_view attribute, std::optional<Colour> colour);  // "#" and six digits
  TagText& Flag(bool on, std::string_view word);
  std::string Close(std::string_view end = ">");

 private:
  std::string text_;
};

// The item of a table that a list's row stands for; empty for no row, and for the blank one behind the others.
template <class Table>
std::string_view ItemOfRow(const Table& table, int row) {
  return row >= 0 && static_cast<std::size_t>(row) < table.size() ? table[static_cast<std::size_t>(row)] : std::string_view();
}
// The row of a table's item, without regard to case; -1 when absent.
template <class Table>
int RowOfItem(const Table& table, std::string_view item) {
  for (std::size_t i = 0; i < table.size(); ++i)
    if (EqualNoCase(table[i], item)) return static_cast<int>(i);
  return -1;
}

// A word as it stands in a document, and the row of a dialog's list that it selects.
struct ReadWord {
  std::string_view word;
  int row;
};
// -1 for a word that is not read.
int RowOfWord(std::span<const ReadWord> words, std::string_view word);

// The colour of a background: shown when there is one, and taken while its box is ticked.
void ShowBackColour(std::string_view value, CheckBox& isUsed, ColourBox& sample);
std::optional<Colour> BackColour(const CheckBox& isUsed, const ColourBox& sample);

// Gives a list its rows and, last, a blank one that takes a choice back.
void FillChoices(ComboBox& box, std::initializer_list<std::string_view> rows);
// The places of a picture or an embedded file in its line.
void FillPictureAlignments(ComboBox& box);
// The windows and frames that every browser knows.
void FillTargets(ComboBox& box);

// Enter, Esc, and what the cancel button leaves in DialogResult.
void SetUpButtons(Program& program, Form& form, Button& ok, Button& cancel, std::string_view cancelled = "-1");

// Likewise for a dialog whose OK button only closes it, and whose cancel button tells of itself in a field: it leaves that
// empty, or with the word for "cancelled" in it.
template <class Field>
void SetUpFieldButtons(Form& form, Button& ok, Button& cancel, Field& field, std::string_view cancelled = "") {
  form.defaultButton = &ok;
  form.cancelButton = &cancel;
  ok.OnClick = [&form] { form.Hide(); };
  cancel.OnClick = [&form, &field, cancelled] {
    field.SetText(cancelled);
    form.Hide();
  };
}

// Filters of the file buttons.
extern const std::string_view kPictureFiles, kSoundFiles, kPageFiles;

// Asks for a file; the way to it from the active document. Nothing when the question is cancelled.
std::optional<std::string> AskForLink(Program& program, std::string_view filter);

// A click on the button asks for a file and puts the way to it from the active document into the field.
void SetUpFileButton(Program& program, Button& button, TextBox& field, std::string_view filter);
void SetUpFileButton(Program& program, Button& button, ComboBox& field, std::string_view filter);

// Gives a box the rows that its list file ("Listy\HREF.lst") has by now, since dialogs share files; what it holds stays.
void RefillFromList(Program& program, ComboBox& box, std::string_view listFile);

// A click on the sample asks for a colour; choosing one ticks the box that stands for it.
void SetUpColourBox(Program& program, ColourBox& sample, CheckBox& isUsed);

}  // namespace morlan
