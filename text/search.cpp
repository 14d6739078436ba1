#include "text/search.h"

#include <algorithm>

#include "core/editsurface.h"
#include "core/text.h"
#include "text/textsearch.h"

namespace morlan {
namespace {

// Selects the first hit from an offset on. Without one the selection stays.
std::optional<std::ptrdiff_t> SelectHit(MlnEditor& editor, const SearchForm& search, std::size_t from) {
  const auto hit = FindInText(editor, search.SearchText, from, search.SearchOptions);
  if (!hit) return std::nullopt;
  editor.Select(*hit, search.SearchText.size());
  return static_cast<std::ptrdiff_t>(*hit);
}

}  // namespace

std::uint8_t ChosenOptions(const CheckBox& wholewords, const CheckBox& matchcase) {
  return static_cast<std::uint8_t>((wholewords.Value() ? kWholeWords : 0) + (matchcase.Value() ? kMatchCase : 0));
}

void RememberText(ComboBox& box) {
  if (!box.Text().empty() && box.ListFind(box.Text()) < 0) box.AddItem(box.Text());
}

SearchForm::SearchForm(Program& program) : Form("search", "Szukaj"), program_(program) {
  Command2.OnClick = [this] { Search(); };
  Command1.OnClick = [this] { Hide(); };
  Szukaj.SetToolTip("Tekst, którego szukać w dokumencie"_pl);
  matchcase.SetToolTip("Odróżnia małe litery od wielkich"_pl);
  wholewords.SetToolTip("Pomija tekst, który jest częścią dłuższego wyrazu"_pl);
  layout = layout::Rows(layout::Field("Szukany &tekst", Szukaj), matchcase, wholewords, layout::ButtonRow(Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Szukaj;
}

void SearchForm::Search() {
  RememberText(Szukaj);
  SearchOptions = ChosenOptions(wholewords, matchcase);
  SearchText = Szukaj.Text();
  if (MlnEditor* editor = program_.ActiveEditor) SearchPosition = SelectHit(*editor, *this, editor->SelStart());
  Hide();
}

void FindNext(Program& program) {
  SearchForm& search = program.forms.Get<SearchForm>();
  MlnEditor* editor = program.ActiveEditor;
  if (!editor || search.SearchText.empty()) return;
  // A text that was not found is sought again from the caret.
  const std::ptrdiff_t behind = search.SearchPosition.value_or(0) + static_cast<std::ptrdiff_t>(search.SearchText.size());
  const std::size_t from = search.SearchPosition ? static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind, 0)) : editor->SelStart();
  if (const auto hit = SelectHit(*editor, search, from)) search.SearchPosition = hit;
}

}  // namespace morlan
