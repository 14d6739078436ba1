#include "tags/colouroptions.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/colours.h"

namespace morlan {
namespace {

struct OptionRow {
  std::string_view caption, tag;
  std::optional<Colour> sample;
};

// "silwer" goes into documents as it stands.
constexpr std::array<OptionRow, 16> kOptions = {{
    {"Niezdefiniowany", "", std::nullopt},
    {"Amarant", "fuchsia", RgbColour(0xFF, 0x00, 0xFF)},
    {"Ciemnozielony", "green", RgbColour(0x00, 0x80, 0x00)},
    {"Czarny", "black", RgbColour(0x00, 0x00, 0x00)},
    {"Czerwony", "red", RgbColour(0xFF, 0x00, 0x00)},
    {"Granatowy", "navy", RgbColour(0x00, 0x00, 0x80)},
    {"Kasztanowy", "maroon", RgbColour(0x80, 0x00, 0x00)},
    {"Mlecznoniebieski", "aqua", RgbColour(0x00, 0xFF, 0xFF)},
    {"Niebieski", "blue", RgbColour(0x00, 0x00, 0xFF)},
    {"Oliwkowy", "olive", RgbColour(0x80, 0x80, 0x00)},
    {"Purpurowy", "purple", RgbColour(0x80, 0x00, 0x80)},
    {"Srebrny", "silver", RgbColour(0xC0, 0xC0, 0xC0)},
    {"Szary", "silwer", RgbColour(0x80, 0x80, 0x80)},
    {"Żółty"_pl, "yellow", RgbColour(0xFF, 0xFF, 0x00)},
    {"Użytkownika"_pl, "user", std::nullopt},
    {"Biały"_pl, "white", RgbColour(0xFF, 0xFF, 0xFF)},
}};
constexpr std::size_t kUndefined = 0, kUser = 14, kWhite = 15;
constexpr std::string_view kNotChosen = kOptions[kUser].tag;

}  // namespace

ColourOptions::ColourOptions(Program& program, Form& form, ColourBox& sample, WhiteOption white)
    : program_(program), sample_(sample), white_(white) {
  for (std::size_t i = 0; i < options_.size(); ++i) {
    const std::string name = Concat({"kolory(", NumberText(static_cast<std::int64_t>(i)), ")"});
    options_[i] = std::make_unique<OptionButton>(form, name, kOptions[i].caption, "kolory", i == kUndefined);
    options_[i]->Tag = kOptions[i].tag;
    options_[i]->SetToolTip(i == kUndefined ? "Znacznik nie określa koloru"_pl : "Kolor, który określi znacznik"_pl);
    options_[i]->sample = kOptions[i].sample;
    options_[i]->showsSample = true;
    options_[i]->OnClick = [this, i] { ShowSample(kOptions[i].sample); };
  }
  if (white == WhiteOption::IsNotSeen) options_[kWhite]->Tag = "White";
  options_[kUser]->OnClick = [this] { AskUserColour(); };
  sample.SetToolTip("Wybiera kolor użytkownika"_pl).SetAccessibleName("Próbka koloru"_pl);
  sample.OnClick = [this] {
    Select(kUser);
    AskUserColour();
  };
}

void ColourOptions::ShowSample(std::optional<Colour> colour) {
  if (colour)
    sample_.SetValue(*colour);
  else
    sample_.Unset();
}

void ColourOptions::ShowSelected() {
  const std::size_t selected = Selected();
  ShowSample(selected == kUser ? std::optional(UserColour()) : kOptions[selected].sample);
}

void ColourOptions::Select(std::size_t index) { options_[index]->SetValue(true); }

std::size_t ColourOptions::Selected() const {
  for (std::size_t i = 0; i < options_.size(); ++i)
    if (options_[i]->Value()) return i;
  return kUndefined;
}

void ColourOptions::SelectValue(std::string_view value) {
  if (value.empty()) return Select(kUndefined);
  for (std::size_t i = 1; i < options_.size(); ++i) {
    const bool isSeen = i != kUser && (i != kWhite || white_ == WhiteOption::Works);
    if (isSeen && EqualNoCase(options_[i]->Tag, value)) return Select(i);
  }
  options_[kUser]->Tag = LowerCase(value.substr(1));
  Select(kUser);
}

std::optional<std::string> ColourOptions::Word() const {
  const std::size_t selected = Selected();
  if (selected == kUndefined || (selected == kWhite && white_ == WhiteOption::IsNotSeen)) return std::nullopt;
  return UpperCase(options_[selected]->Tag);
}

Colour ColourOptions::UserColour() const {
  const std::string_view word = options_[kUser]->Tag;
  return HexToLong(word.starts_with('#') ? word.substr(1) : word);
}

void ColourOptions::AskUserColour() {
  const auto colour = program_.platform.windows.AskColour(sample_.Value());
  if (colour) {
    options_[kUser]->Tag = Concat({"#", ColorToHex(*colour)});
    sample_.SetValue(*colour);
  } else if (options_[kUser]->Tag == kNotChosen) {
    Select(kUndefined);
  }
}

Layout ColourOptions::Page() const {
  constexpr std::size_t kColumns = 4;
  Layout columns = layout::Columns();
  for (std::size_t column = 0; column < kColumns; ++column) {
    Layout rows = layout::Rows();
    for (std::size_t i = column * kColumns; i < (column + 1) * kColumns; ++i) rows.children.emplace_back(*options_[i]);
    columns.children.push_back(std::move(rows));
  }
  return layout::Group("Kolor", columns, sample_);
}

}  // namespace morlan
