#include "text/wordnotfound.h"

#include "core/text.h"
#include "text/maindictionary.h"
#include "text/makeproposal.h"
#include "text/mlndictionary.h"

namespace morlan {
namespace {

constexpr std::string_view kNoProposal = "<Brak propozycji>";

}  // namespace

WordNotFound::WordNotFound(Program& program) : Form("WordNotFound", "Brak słowa w słowniku"_pl), program_(program) {
  Word.OnClick = [this] { Change.SetText(program_.DialogResult); };
  Change.OnChange = [this] {
    if (Change.Text() == kNoProposal) Change.SetText(LowerCase(program_.DialogResult));
  };
  Change.OnKeyDown = Similar.OnKeyDown = [this](KeyPress& press) { ChangeOnEnter(press); };
  Similar.OnChange = [this] { Change.SetText(Similar.SelectedRow()); };
  Similar.OnDblClick = [this] { Command4.UserClicks(); };
  Command4.OnClick = [this] {
    Replacement = Change.Text();
    Choose(WordChoice::Change);
  };
  Command3.OnClick = [this] {
    if (Dictionary) AddUserWord(program_, Dictionary->File[MlnDictionary::kUserWords], program_.DialogResult);
    Choose(WordChoice::Add);
  };
  Command2.OnClick = [this] { Choose(WordChoice::Ignore); };
  Command1.OnClick = [this] { Choose(WordChoice::Stop); };
  OnLoad = [this] { Form_Load(); };

  Word.SetToolTip("Kliknij, aby poprawić to słowo w polu „Zmień na”"_pl);
  Change.SetToolTip("Słowo, które zajmie miejsce nieznanego; lista podaje propozycje"_pl);
  Similar.SetToolTip("Słowa ze słownika podobne do nieznanego"_pl);
  Command4.SetToolTip("Wstawia do dokumentu słowo z pola „Zmień na”"_pl);
  Command3.SetToolTip("Dopisuje słowo do własnego słownika"_pl);
  Command2.SetToolTip("Zostawia słowo tak, jak jest"_pl);
  Command1.SetToolTip("Kończy sprawdzanie pisowni"_pl);
  Similar.HeightInRows = 6;
  layout = layout::Rows(layout::Field("Brak słowa"_pl, Word), layout::Field("Zmień &na"_pl, Change),
                        layout::Field("P&odobne słowa"_pl, Similar), layout::ButtonRow(Command4, Command3, Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Change;
}

void WordNotFound::Form_Load() {
  program_.DialogChoice = static_cast<std::uint8_t>(WordChoice::None);
  Replacement.clear();
  Word.SetCaption(program_.DialogResult);
  Change.Clear();
  Change.SetText("");
  Similar.Clear();
  if (Dictionary) ShowProposals();
  Similar.SetVisible(Similar.ListCount() != 0);
}

void WordNotFound::ShowProposals() {
  const std::string& path = Dictionary->File[MlnDictionary::kBits];
  const Proposals proposals =
      MakeProposal(program_.DialogResult, [&](std::string_view word) { return MainDictionaryHolds(program_, path, word); });
  Change.AddItems(proposals.words);
  if (proposals.wordIsHeld) {
    Change.AddItem(kNoProposal);
    Change.SetText(LowerCase(program_.DialogResult));
  }
  Similar.AddItems(Dictionary->Similar(program_.DialogResult));
}

// Once there is a word to take, Enter takes it; else it is left to the button of the form.
void WordNotFound::ChangeOnEnter(KeyPress& press) {
  if (press.code != key::kEnter || Change.Text().empty()) return;
  press.code = 0;
  Command4.UserClicks();
}

void WordNotFound::Choose(WordChoice choice) {
  program_.DialogChoice = static_cast<std::uint8_t>(choice);
  Hide();
}

}  // namespace morlan
