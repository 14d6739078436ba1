#include "tags/tageditor.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/filetag.h"
#include "core/paths.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/colours.h"
#include "tags/insertcommands.h"

namespace morlan {
namespace {

constexpr std::string_view kExisting = "1";

bool Show(Program& program, Form& form, std::string_view state, std::string_view cancelled) {
  program.DialogResult = state;
  program.platform.windows.ShowModal(form);
  return program.DialogResult != cancelled;
}

std::string DirectoryOfDocument(Program& program) {
  const std::string directory = program.ActiveDocument ? PathOf(program.ActiveDocument->Caption()) : "";
  return directory.empty() ? program.platform.files.CurrentDirectory() : directory;
}

template <class Field>
void SetUpFileButtonOf(Program& program, Button& button, Field& field, std::string_view filter) {
  button.SetToolTip("Wybiera plik z dysku").SetAccessibleName("Wybierz plik");
  button.OnClick = [&program, &field, filter] {
    if (const auto link = AskForLink(program, filter)) field.UserSets(*link);
  };
}

}  // namespace

const std::string_view kPictureFiles = "Pliki graficzne|*.gif;*.jpg;*.jpeg;*.png;*.svg;*.webp;*.bmp|Wszystkie pliki|*.*";
const std::string_view kSoundFiles = "Pliki multimedialne|*.mid;*.midi;*.wav;*.mp3;*.ogg;*.avi;*.mpg;*.mp4|Wszystkie pliki|*.*";
const std::string_view kPageFiles = "Pliki HTML|*.html;*.htm;*.shtml|Wszystkie pliki|*.*";

bool EditsExisting(const Program& program) { return program.DialogResult == kExisting; }

bool ShowForExisting(Program& program, Form& form, std::string_view cancelled) { return Show(program, form, kExisting, cancelled); }

bool ShowForNew(Program& program, Form& form, std::string_view cancelled) { return Show(program, form, "", cancelled); }

void RewriteTag(Program& program, std::string_view newTag) {
  const std::size_t start = program.tagState.CurrentTagStart;
  if (!program.ActiveDocument || start == 0) return;
  TEditor& document = *program.ActiveDocument;
  MlnEditor& editor = document.EditedText;
  const std::string& text = editor.Text();
  const std::size_t end = Find(text, ">", start);
  if (end == 0 || text[start - 1] != '<') return;
  editor.Select(start - 1, end - start + 1);
  const std::string oldTag = editor.SelText();
  editor.SetSelText("");
  InsertPair(program, newTag, "");
  document.UNDO.AddRemovedToNewest(oldTag);
}

TagText& TagText::Literal(std::string_view text) {
  text_ += text;
  return *this;
}

TagText& TagText::Quoted(std::string_view attribute, std::string_view value) {
  text_ += Concat({attribute, Quote, value, Quote});
  return *this;
}

TagText& TagText::IfText(std::string_view attribute, std::string_view value) {
  if (!value.empty()) text_ += Concat({attribute, value});
  return *this;
}

TagText& TagText::QuotedIfText(std::string_view attribute, std::string_view value) {
  return value.empty() ? *this : Quoted(attribute, value);
}

TagText& TagText::QuotedIfPositive(std::string_view attribute, std::string_view value) {
  return LeadingNumber(value) > 0 ? Quoted(attribute, value) : *this;
}

TagText& TagText::UnquotedIfPositive(std::string_view attribute, std::string_view value) {
  return LeadingNumber(value) > 0 ? IfText(attribute, value) : *this;
}

TagText& TagText::QuotedColour(std::string_view attribute, std::optional<Colour> colour) {
  return colour ? Quoted(attribute, Concat({"#", ColorToHex(*colour)})) : *this;
}

TagText& TagText::Flag(bool on, std::string_view word) { return on ? Literal(word) : *this; }

std::string TagText::Close(std::string_view end) { return std::move(Literal(end).text_); }

int RowOfWord(std::span<const ReadWord> words, std::string_view word) {
  for (const ReadWord& row : words)
    if (EqualNoCase(row.word, word)) return row.row;
  return -1;
}

void ShowBackColour(std::string_view value, CheckBox& isUsed, ColourBox& sample) {
  isUsed.SetValue(!value.empty());
  if (!value.empty()) sample.SetValue(ColorNameToValue(value));
}

std::optional<Colour> BackColour(const CheckBox& isUsed, const ColourBox& sample) {
  return isUsed.Value() ? std::optional(sample.Value()) : std::nullopt;
}

void FillChoices(ComboBox& box, std::initializer_list<std::string_view> rows) {
  for (const std::string_view row : rows) box.AddItem(row);
  box.AddItem("");
}

void FillPictureAlignments(ComboBox& box) { FillChoices(box, {"TOP", "MIDDLE", "BOTTOM", "RIGHT", "LEFT", "TEXTOP"}); }

void FillTargets(ComboBox& box) {
  for (const std::string_view target : {"_blank", "_parent", "_self", "_top"}) box.AddItem(target);
}

void SetUpButtons(Program& program, Form& form, Button& ok, Button& cancel, std::string_view cancelled) {
  form.defaultButton = &ok;
  form.cancelButton = &cancel;
  cancel.OnClick = [&program, &form, word = std::string(cancelled)] {
    program.DialogResult = word;
    form.Hide();
  };
}

std::optional<std::string> AskForLink(Program& program, std::string_view filter) {
  FileRequest request;
  request.title = "Wybierz plik";
  request.filter = filter;
  request.directory = DirectoryOfDocument(program);
  const auto path = program.platform.windows.AskFile(request);
  return path ? std::optional(RelativeLink(*path, request.directory)) : std::nullopt;
}

void SetUpFileButton(Program& program, Button& button, TextBox& field, std::string_view filter) {
  SetUpFileButtonOf(program, button, field, filter);
}

void SetUpFileButton(Program& program, Button& button, ComboBox& field, std::string_view filter) {
  SetUpFileButtonOf(program, button, field, filter);
}

void RefillFromList(Program& program, ComboBox& box, std::string_view listFile) {
  const std::string text = box.Text();
  box.Clear();
  LoadComboFromList(program, box, listFile);
  box.SetText(text);
}

void SetUpColourBox(Program& program, ColourBox& sample, CheckBox& isUsed) {
  sample.SetToolTip("Wybiera kolor").SetAccessibleName("Kolor wypełnienia"_pl);
  sample.OnClick = [&program, &sample, &isUsed] {
    const auto colour = program.platform.windows.AskColour(sample.Value());
    if (!colour) return;
    sample.SetValue(*colour);
    isUsed.SetValue(true);
  };
}

}  // namespace morlan
