#include "core/document.h"

#include "core/colourtext.h"
#include "core/defs.h"
#include "core/documents.h"
#include "core/filetag.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/sizetext.h"
#include "core/status.h"
#include "core/text.h"
#include "core/toolbars.h"

namespace morlan {
namespace {

constexpr std::string_view kDocumentTag = "edytor";
constexpr int kModifiedImage = 1;

FontChoice StoredFont(Settings& settings) {
  return {.name = settings.Text(Setting::FontName),
          .size = settings.Number(Setting::FontSize),
          .bold = settings.Flag(Setting::FontBold),
          .italic = settings.Flag(Setting::FontItalic),
          .underline = settings.Flag(Setting::FontUnderline),
          .strikeThrough = settings.Flag(Setting::FontStrikeThrough)};
}

// The colour of text that nothing paints: the font's own one, if there is one, holds where colouring is switched off.
Colour PlainColour(Program& program) {
  const TagState& colours = program.tagState;
  const std::string ofFont = colours.UseColorize ? std::string() : Settings(program.MainIni).Text(Setting::FontColor);
  return ofFont.empty() ? colours.GlobalColor : HexToRgb(ofFont);
}

}  // namespace

TEditor::TEditor(Program& program) : Form("TEditor", ""), menu(DocumentMenuRows()), xmnm_editpopup(EditPopupRows()), program_(program) {
  Tag = kDocumentTag;
  menu.HideWithoutCommand(program.commands);
  xmnm_editpopup.HideWithoutCommand(program.commands);
  FastHelpL.SetVisible(false);
  FastHelpC.SetVisible(false);
  FastHelpC.OnDblClick = [this] { FastHelpC_DblClick(); };
  FastHelpC.OnKeyDown = [this](KeyPress& press) {
    if (press.code != key::kEnter && press.code != key::kEscape) return;
    if (press.code == key::kEnter) {
      FastHelpC_DblClick();
    } else {
      HideHints();
      EditedText.SetFocus();
    }
    press.code = 0;
  };
  EditedText.OnChange = [this] { editedtext_onChange(); };
}

bool TEditor::IsModified() const { return TextToBool(NeedToBeSaved.Caption()); }

void TEditor::Form_Initialize() {
  if (program_.DocumentLoading) return;
  TakeColours();
  EditedText.UseColorise = program_.tagState.UseColorize;
}

void TEditor::Form_Load() {
  TakeSettings();
  EditedText.SetWordWrap(menu.IsChecked("xmn_warp"));
}

void TEditor::TakeSettings() {
  Settings settings(program_.MainIni);
  EditedText.SetFont(StoredFont(settings));
  TakeColours();
  EditedText.SetupCarret = settings.Flag(Setting::SetupCarret);
  EditedText.ExtendLI = settings.Flag(Setting::ExtendLI);
}

void TEditor::TakeColours() {
  const TagState& colours = program_.tagState;
  EditedText.SetTextColor(PlainColour(program_));
  EditedText.TagColor = colours.TagsColor;
  EditedText.ParameterColor = colours.LinksColor;
  EditedText.CommentColor = colours.CommentsColor;
}

void TEditor::editedtext_onChange() {
  if (program_.DocumentLoading) return;
  if (EditedText.Modified && !IsModified() && EditedText.Length() != 0) MarkAsModified();
  const std::size_t length = EditedText.Length();
  if (length != shownLength_ && program_.ActiveDocument == this) ShowSize();
  ProcessLine();
}

void TEditor::MarkAsModified() {
  Tabs& tabs = program_.frame().WindowsManager;
  if (const int index = tabs.IndexOfKey(Caption()); index >= 0) {
    Tabs::Tab tab = tabs.All()[static_cast<std::size_t>(index)];
    tab.image = kModifiedImage;
    tabs.Replace(static_cast<std::size_t>(index), tab);
  }
  NeedToBeSaved.SetCaption("True");
  program_.platform.windows.Yield();
}

void TEditor::ProcessLine() {
  if (!lineEdited_) return;
  lineEdited_ = false;
  if (program_.passes.colourEdited) program_.passes.colourEdited(EditedText, EditedText.EditedFrom(), EditedText.EditedTo());
}

void TEditor::ReplaceAndColour(std::string_view text) {
  if (text.empty() && EditedText.SelLength() == 0) return;
  lineEdited_ = true;
  EditedText.SetSelText(text);
  const auto caret = static_cast<std::ptrdiff_t>(EditedText.SelStart());
  // An empty block at the very front would mean the whole text.
  if (caret != 0 && program_.passes.colourBlock)
    program_.passes.colourBlock(EditedText, caret - static_cast<std::ptrdiff_t>(text.size()), caret);
}

void TEditor::ShowLineInfo() {
  const std::size_t line = EditedText.LineFromChar(EditedText.SelStart());
  const auto number = static_cast<std::int64_t>(line + 1);
  const auto column = static_cast<std::int64_t>(EditedText.SelStart() - EditedText.LineIndex(line) + 1);
  program_.frame().statusBar.SetPanel("docline", Concat({NumberText(number), "/", NumberText(column)}));
}

void TEditor::ShowSize() {
  shownLength_ = EditedText.Length();
  program_.frame().statusBar.SetPanel("docsize", SizeText(shownLength_));
}

void TEditor::InsertAtCaret(std::string_view text) {
  if (program_.hooks.insertPair) program_.hooks.insertPair(text, "");
}

void TEditor::DropFile(std::string_view path) {
  const std::string directory = PathOf(Caption());
  const TagPair pair = TagForFile(path, directory.empty() ? program_.platform.files.CurrentDirectory() : directory);
  if (program_.ActiveDocument != this) ActivateDocument(program_, *this);
  if (program_.hooks.insertPair) program_.hooks.insertPair(pair.open, pair.close);
}

void TEditor::EditedText_GotFocus() {
  if (program_.ActiveDocument != this && !program_.DocumentLoading) Form_Activate();
}

void TEditor::EditedText_OnMouseDown(MouseButton button) {
  if (program_.hooks.mouseDown) program_.hooks.mouseDown(*this, button);
}

void TEditor::FastHelpC_DblClick() {
  const std::string row = FastHelpC.SelectedRow();
  if (!row.empty()) {
    UNDO.AddChange(EditedText.SelStart(), EditedText.SelLength(), row, EditedText.SelText(), ChangeKind::Replacement);
    ReplaceAndColour(row);
  }
  HideHints();
  EditedText.SetFocus();
}

}  // namespace morlan
