#include "text/searchreplace.h"

#include <algorithm>

#include "core/document.h"
#include "core/text.h"
#include "text/search.h"
#include "text/textsearch.h"

namespace morlan {
namespace {

constexpr std::string_view kTitle = "Szukaj & Zastąp"_pl;

// Replaces the selected hit as one undo step and leaves the caret behind the new text.
void ReplaceHit(TEditor& document, std::string_view text) {
  MlnEditor& editor = document.EditedText;
  document.UNDO.AddChange(editor.SelStart(), editor.SelLength(), text, editor.SelText(), ChangeKind::Replacement);
  editor.SetSelText(text);
}

void Report(Program& program, std::string text) { program.platform.windows.Message({.text = std::move(text)}); }

}  // namespace

SearchReplace::SearchReplace(Program& program) : Form("SearchReplace", kTitle), program_(program) {
  Command2.OnClick = [this] { Run(Extent::Asking); };
  Command3.OnClick = [this] { Run(Extent::All); };
  Command1.OnClick = [this] { Hide(); };
  Szukaj.SetToolTip("Tekst, którego szukać w dokumencie"_pl);
  zastap.SetToolTip("Tekst, który zajmie miejsce znalezionego"_pl);
  matchcase.SetToolTip("Odróżnia małe litery od wielkich"_pl);
  wholewords.SetToolTip("Pomija tekst, który jest częścią dłuższego wyrazu"_pl);
  layout = layout::Rows(layout::Field("Szukany &tekst", Szukaj), layout::Field("&Nowy tekst", zastap), matchcase, wholewords,
                        layout::ButtonRow(Command2, Command3, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Szukaj;
}

void SearchReplace::Run(Extent extent) {
  RememberText(Szukaj);
  RememberText(zastap);
  SearchForm& search = program_.forms.Get<SearchForm>();
  search.SearchText = Szukaj.Text();
  search.SearchOptions = ChosenOptions(wholewords, matchcase);
  search.SearchPosition.reset();
  if (program_.ActiveDocument && !Szukaj.Text().empty()) extent == Extent::All ? ReplaceAll() : ReplaceAsking();
  Hide();
}

void SearchReplace::ReplaceAsking() {
  TEditor& document = *program_.ActiveDocument;
  MlnEditor& editor = document.EditedText;
  const std::string sought = Szukaj.Text(), text = zastap.Text();
  const std::uint8_t options = ChosenOptions(wholewords, matchcase);
  std::int64_t replaced = 0, skipped = 0;
  std::size_t from = editor.SelStart();
  while (const auto hit = FindInText(editor, sought, from, options)) {
    editor.Select(*hit, sought.size());
    const Answer answer = program_.platform.windows.Message({.text = std::string("Zasąpić znaleziony fragment"_pl),
                                                             .title = std::string(kTitle),
                                                             .icon = Icon::Question,
                                                             .buttons = Buttons::YesNoCancel});
    if (answer != Answer::Yes && answer != Answer::No) break;
    ++(answer == Answer::Yes ? replaced : skipped);
    from = *hit + (answer == Answer::Yes ? text.size() : sought.size());
    if (answer == Answer::No) continue;
    document.ExpectTyping();
    ReplaceHit(document, text);
  }
  Report(program_, Concat({"Zastąpiłem "_pl, NumberText(replaced), " fragmentów, pominąłem "_pl, NumberText(skipped), "."}));
}

void SearchReplace::ReplaceAll() {
  TEditor& document = *program_.ActiveDocument;
  MlnEditor& editor = document.EditedText;
  const std::string sought = Szukaj.Text(), text = zastap.Text();
  const std::uint8_t options = ChosenOptions(wholewords, matchcase);
  std::int64_t replaced = 0;
  std::size_t first = 0, from = 0;
  while (const auto hit = FindInText(editor, sought, from, options)) {
    if (replaced++ == 0) first = *hit;
    editor.Select(*hit, sought.size());
    ReplaceHit(document, text);
    from = *hit + text.size();
  }
  // Once for all hits: each of them may recolour a long stretch.
  if (replaced != 0 && program_.passes.colourEdited) program_.passes.colourEdited(editor, first, from);
  Report(program_, Concat({"Zastąpiłem "_pl, NumberText(replaced), " fragmentów."_pl}));
}

}  // namespace morlan
