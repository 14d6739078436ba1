#include "tags/bodyeditor.h"

#include "core/defs.h"
#include "core/editsurface.h"
#include "core/text.h"
#include "tags/colours.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kOpening = "<BODY", kHeadEnd = "</head>", kFixed = "FIXED";

struct ColourRow {
  std::string_view attribute;
  std::optional<Colour> BodyValues::*value;
  ColourBox BodyTag::*sample;
  Button BodyTag::*none;
  std::string_view toolTip, noneName;
};

// In the order in which they are written.
constexpr ColourRow kColours[] = {
    {"BGCOLOR", &BodyValues::bgColor, &BodyTag::BGColor, &BodyTag::noBGColor, "Kolor tła całej strony"_pl, "Usuń kolor tła"_pl},
    {"TEXT", &BodyValues::textColor, &BodyTag::TextColor, &BodyTag::noTextColor, "Kolor zwykłego tekstu"_pl, "Usuń kolor tekstu"_pl},
    {"LINK", &BodyValues::linksColor, &BodyTag::LinksColor, &BodyTag::noLinksColor, "Kolor odnośników, które czekają na odwiedzenie"_pl,
     "Usuń kolor odnośników"_pl},
    {"VLINK", &BodyValues::visitedLinks, &BodyTag::VisitedLinks, &BodyTag::noVisitedLinks,
     "Kolor odnośników, które czytelnik już odwiedził"_pl, "Usuń kolor odnośników odwiedzonych"_pl},
    {"ALINK", &BodyValues::activeLinks, &BodyTag::ActiveLinks, &BodyTag::noActiveLinks, "Kolor odnośnika w chwili kliknięcia"_pl,
     "Usuń kolor odnośników aktywnych"_pl},
};

void ShowColour(ColourBox& sample, Button& none, std::optional<Colour> colour) {
  if (colour)
    sample.SetValue(*colour);
  else
    sample.Unset();
  sample.SetCaption(colour ? Concat({"#", ColorToHex(*colour)}) : "Niezdefiniowany");
  none.SetEnabled(colour.has_value());
}

bool EndsName(char character) { return character == '>' || static_cast<unsigned char>(character) <= ' '; }

void WriteBody(Program& program, std::string_view tag) {
  MlnEditor& editor = *program.ActiveEditor;
  const std::string& text = editor.Text();
  const std::size_t caret = editor.SelStart();
  const std::string_view old = FindBodyTag(text);
  if (!old.empty()) {
    ReplaceStretch(program, static_cast<std::size_t>(old.data() - text.data()), old.size() + 1, tag);
  } else {
    const std::size_t headEnd = FindNoCase(text, kHeadEnd);
    if (headEnd != 0) editor.Select(headEnd - 1 + kHeadEnd.size(), 0);
    InsertPair(program, tag, Concat({CrLf, "</BODY>"}));
  }
  editor.Select(caret, 0);
}

}  // namespace

std::string BodyText(const BodyValues& values) {
  TagText tag("<BODY");
  tag.QuotedIfText(" BACKGROUND=", values.background);
  if (values.watermark) tag.Quoted(" BGPROPERTIES=", kFixed);
  for (const ColourRow& row : kColours) tag.QuotedColour(Concat({" ", row.attribute, "="}), values.*row.value);
  return tag.Close();
}

std::string_view FindBodyTag(std::string_view text) {
  for (std::size_t position = Find(text, kOpening); position != 0; position = Find(text, kOpening, position + 1)) {
    const std::size_t start = position - 1, behindName = start + kOpening.size();
    if (behindName == text.size() || !EndsName(text[behindName])) continue;
    const std::size_t end = text.find('>', behindName);
    return end == std::string_view::npos ? std::string_view() : text.substr(start, end - start);
  }
  return {};
}

BodyTag::BodyTag(Program& program) : Form("BodyTag", "Właściwości strony"_pl), program_(program) {
  SetUpButtons(program, *this, Command2, Command1);
  SetUpFileButton(program, backgroundFile, background, kPictureFiles);
  SetUpColours();
  Command2.OnClick = [this] { Hide(); };
  OnLoad = [this] { Form_Load(); };
  background.SetToolTip("Rysunek, który wypełni tło strony"_pl);
  watermark.SetToolTip("Tło stoi w miejscu, gdy tekst się przewija"_pl);
  layout = layout::Rows(
      layout::Field("&Rysunek w tle", background, &backgroundFile), watermark,
      layout::Group("Kolory", layout::Field("Kolor &tła"_pl, BGColor, &noBGColor), layout::Field("Kolor t&ekstu", TextColor, &noTextColor),
                    layout::Field("Od&nośniki"_pl, LinksColor, &noLinksColor),
                    layout::Field("Odnośniki od&wiedzone"_pl, VisitedLinks, &noVisitedLinks),
                    layout::Field("Odnośniki akt&ywne"_pl, ActiveLinks, &noActiveLinks)),
      layout::ButtonRow(Command2, Command1));
}

void BodyTag::SetUpColours() {
  for (const ColourRow& row : kColours) {
    ColourBox& sample = this->*row.sample;
    Button& none = this->*row.none;
    ShowColour(sample, none, std::nullopt);
    sample.SetToolTip(row.toolTip);
    none.SetToolTip("Usuwa kolor; przeglądarka użyje własnego"_pl).SetAccessibleName(row.noneName);
    sample.OnClick = [this, &sample, &none] {
      if (const auto colour = program_.platform.windows.AskColour(sample.Value())) ShowColour(sample, none, colour);
    };
    none.OnClick = [&sample, &none] { ShowColour(sample, none, std::nullopt); };
  }
}

// A document without the tag leaves the fields as they were.
void BodyTag::Form_Load() {
  if (!program_.ActiveEditor) return;
  const std::string_view tag = FindBodyTag(program_.ActiveEditor->Text());
  if (tag.empty()) return;
  background.SetText(GetTagParam(tag, "BACKGROUND"));
  watermark.SetValue(GetTagParam(tag, "BGPROPERTIES") == kFixed);
  for (const ColourRow& row : kColours) {
    const std::string value = GetTagParam(tag, row.attribute);
    ShowColour(this->*row.sample, this->*row.none, value.empty() ? std::nullopt : std::optional(ColorNameToValue(value)));
  }
}

BodyValues BodyTag::Values() const {
  BodyValues values;
  values.background = background.Text();
  values.watermark = watermark.Value();
  for (const ColourRow& row : kColours) {
    const ColourBox& sample = this->*row.sample;
    if (sample.IsSet()) values.*row.value = sample.Value();
  }
  return values;
}

void EditBody(Program& program) {
  BodyTag& form = program.forms.Get<BodyTag>();
  if (ShowForNew(program, form)) WriteBody(program, BodyText(form.Values()));
}

}  // namespace morlan
