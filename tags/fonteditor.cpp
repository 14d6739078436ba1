#include "tags/fonteditor.h"

#include <cmath>

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/colours.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kCancelled = "cancel";

struct FontTag {
  std::string_view name, caption, close;
};
constexpr FontTag kBaseFont = {"BASEFONT", "Czcionka podstawowa", ""};
constexpr FontTag kFont = {"FONT", "Czcionka chwilowa", "</FONT>"};

void Edit(Program& program, const FontTag& tag) {
  Fonty& form = program.forms.Get<Fonty>();
  form.SetCaption(tag.caption);
  form.Read(program.tagState.CurrentTagText);
  if (ShowForExisting(program, form, kCancelled)) RewriteTag(program, FontText(tag.name, form.Values()));
}

void Insert(Program& program, const FontTag& tag) {
  Fonty& form = program.forms.Get<Fonty>();
  form.SetCaption(tag.caption);
  if (ShowForNew(program, form, kCancelled)) InsertPair(program, FontText(tag.name, form.Values()), tag.close);
}

}  // namespace

std::string FontText(std::string_view name, const FontValues& values) {
  TagText tag(Concat({"<", name}));
  if (!values.rozmiar.empty()) tag.Literal(" SIZE=").Literal(values.znak).Literal(values.rozmiar);
  tag.QuotedIfText(" FACE=", values.czcionka);
  if (values.colour) tag.Quoted(" COLOR=", *values.colour);
  return tag.Close();
}

Fonty::Fonty(Program& program) : Form("Fonty", "Czcionka chwilowa"), kolory(program, *this, wzor, WhiteOption::Works) {
  FillChoices(Znak, {"+", "-"});
  ShowBusy(program, "Wczytuję listę czcionek"_pl);
  LoadFontNames(program, Czcionka);
  ShowReady(program);
  SetUpButtons(program, *this, Command2, Command1, kCancelled);
  Command2.OnClick = [this] { Hide(); };
  Rozmiar.SetToolTip("Wielkość czcionki od 1 do 7, ze znakiem: zmiana wielkości podstawowej"_pl);
  Znak.SetToolTip("Plus powiększa, minus pomniejsza, bez znaku wielkość jest bezwzględna"_pl);
  Czcionka.SetToolTip("Krój pisma; musi być zainstalowany u czytelnika"_pl);
  Rozmiar.WidthInCharacters = Znak.WidthInCharacters = 4;
  layout = layout::Rows(layout::Field("&Rozmiar", Rozmiar), layout::Field("&Znak", Znak), layout::Field("&Czcionka", Czcionka),
                        kolory.Page(), layout::ButtonRow(Command2, Command1));
}

void Fonty::Read(std::string_view tag) {
  const std::string size = GetTagParam(tag, "SIZE"), face = GetTagTextParam(tag, "FACE"), colour = GetTagParam(tag, "COLOR");
  Rozmiar.SetText(size.empty() ? std::string() : NumberText(std::abs(LeadingNumber(size))));
  Znak.SetListIndex(size.empty() ? -1 : Znak.IndexOf(size.substr(0, 1)));
  // A font that is not installed here stays what it was.
  const int row = Czcionka.ListFind(face);
  Czcionka.SetText(row >= 0 ? Czcionka.List(static_cast<std::size_t>(row)) : face);
  kolory.SelectValue(LowerCase(colour));
  wzor.SetValue(colour.empty() ? Colour{} : ColorNameToValue(colour));
  if (colour.empty()) wzor.Unset();
}

FontValues Fonty::Values() const {
  return {.znak = Znak.Text(), .rozmiar = Rozmiar.Text(), .czcionka = Czcionka.Text(), .colour = kolory.Word()};
}

void EditBaseFont(Program& program) { Edit(program, kBaseFont); }
void EditFont(Program& program) { Edit(program, kFont); }
void InsertBaseFont(Program& program) { Insert(program, kBaseFont); }
void InsertQuickFont(Program& program) { Insert(program, kFont); }

}  // namespace morlan
