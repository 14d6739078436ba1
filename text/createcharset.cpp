#include "text/createcharset.h"

#include <charconv>
#include <optional>

#include "core/status.h"
#include "core/text.h"
#include "text/charsets.h"

namespace morlan {
namespace {

constexpr std::size_t kLettersInRow = 6;
constexpr std::string_view kSymbolMark = "&#";

// The code that an answer names: its first character's, or the number of an answer such as "&#177", where 0 takes the code
// away. Nothing for an answer that is empty or no such number.
std::optional<unsigned char> CodeOfAnswer(std::string_view answer) {
  if (answer.empty()) return std::nullopt;
  if (!answer.starts_with(kSymbolMark)) return static_cast<unsigned char>(answer.front());
  int number = -1;
  const std::string_view digits = answer.substr(kSymbolMark.size());
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (read.ec != std::errc() || number < 0 || number > 255) return std::nullopt;
  return static_cast<unsigned char>(number);
}

}  // namespace

std::string MixedLettersNote(const CharSetFile& file, const CharSetCodes& codes) {
  const std::string letters = MixedLetters(codes, file.CharSetByName(kBaseCharSet).value_or(CharSetRecord()).codes);
  if (letters.empty()) return "";
  std::string list;
  for (const char letter : letters) list += Concat({" ", std::string(1, letter)});
  return Concat({"Przy zamianie mieszają się litery:"_pl, list});
}

CreateCharSet::CreateCharSet(Program& program) : Form("CreateCharSet", "Utwórz nowy format zapisu"_pl), program_(program) {
  CharSetName.SetToolTip("Nazwa formatu, taka jak w znaczniku META strony; wybór z listy pokazuje gotowy format"_pl);
  CharSetInfo.SetToolTip("Kilka słów o formacie"_pl);
  CharSetInfo.MaxLength = kCharSetInfoSize;
  CharSetName.WidthInCharacters = CharSetInfo.WidthInCharacters = 40;
  Mixed.SetAccessibleName("Uwaga");
  CharSetName.OnChange = [this] { ShowRecord(); };
  OnLoad = [this] { Form_Load(); };
  Command2.OnClick = [this] { Command2_Click(); };
  Command1.OnClick = [this] { Hide(); };
  layout = layout::Rows(layout::Field("&Nazwa", CharSetName), layout::Field("&Opis", CharSetInfo), LetterLayout(), Mixed,
                        layout::ButtonRow(Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &CharSetName;
}

CreateCharSet::Letters CreateCharSet::MakeLetters() {
  Letters letters;
  for (std::size_t letter = 0; letter < letters.size(); ++letter) {
    auto button = std::make_unique<Button>(*this, Concat({"n(", NumberText(static_cast<std::int64_t>(letter)), ")"}), "");
    button->OnClick = [this, letter] { n_Click(letter); };
    button->SetToolTip("Kod tej litery w formacie: wprowadź znak o tym kodzie albo &# i liczbę, na przykład &#177"_pl);
    letters[letter] = std::move(button);
  }
  return letters;
}

Layout CreateCharSet::LetterLayout() {
  Layout rows = layout::Group("Podaj kody znaków"_pl);
  for (std::size_t first = 0; first < n.size(); first += kLettersInRow) {
    Layout row = layout::Columns();
    for (std::size_t letter = first; letter < first + kLettersInRow; ++letter) row.children.emplace_back(*n[letter]);
    rows.children.push_back(std::move(row));
  }
  return rows;
}

void CreateCharSet::Form_Load() {
  FillNames();
  ShowCodes();
}

void CreateCharSet::FillNames() {
  const std::string name = CharSetName.Text();
  CharSetName.Clear();
  CharSetName.AddItems(LoadCharSets(program_).CharSetNames());
  CharSetName.SetText(name);
}

// A name that the file has brings its record; any other keeps what the form shows.
void CreateCharSet::ShowRecord() {
  const auto record = LoadCharSets(program_).CharSetByName(Trim(CharSetName.Text()));
  if (!record) return;
  CharSetInfo.SetText(record->info);
  codes_ = record->codes;
  ShowCodes();
}

void CreateCharSet::ShowCodes() {
  for (std::size_t letter = 0; letter < n.size(); ++letter) {
    const std::string code = codes_[letter] ? NumberText(std::int64_t{codes_[letter]}) : "-";
    n[letter]->SetCaption(Concat({kNationalLetters.substr(letter, 1), " ", code}));
  }
  Mixed.SetCaption(MixedLettersNote(LoadCharSets(program_), codes_));
}

void CreateCharSet::n_Click(std::size_t letter) {
  const std::string shown = codes_[letter] ? std::string(1, static_cast<char>(codes_[letter])) : std::string();
  const auto answer = program_.platform.windows.Input("Zmaina znaku do defioniwania. Wprowadź znak "_pl, "Zmiana znaku", shown);
  const auto code = CodeOfAnswer(answer.value_or(""));
  if (!code) return;
  codes_[letter] = *code;
  ShowCodes();
}

void CreateCharSet::Command2_Click() {
  const std::string name(Trim(CharSetName.Text()));
  if (name.empty()) return ShowError(program_, "Nie podana nazwa formatu zapisu. Proszę podać."_pl);
  if (!SaveCharSet(program_, {name, std::string(Trim(CharSetInfo.Text())), codes_}))
    return ShowError(program_, "Nie można zapisać formatu !"_pl);
  CharSetName.SetText(name.substr(0, kCharSetNameSize));
  FillNames();
  ShowReady(program_, Concat({"Zapisano format ", CharSetName.Text()}));
}

void ShowCreateCharSet(Program& program) { program.platform.windows.ShowModal(program.forms.Get<CreateCharSet>()); }

}  // namespace morlan
