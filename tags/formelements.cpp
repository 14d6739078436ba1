#include "tags/formelements.h"

#include <algorithm>

#include "core/defs.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

enum class Part { None, Name, Value, Size, MaxLength, Source, Align, Rows, Columns, Checked };

struct ElementRow {
  std::string_view caption, opening;
  std::array<Part, 4> parts;  // in the order in which they are written
  std::string_view close;
};

// clang-format off
constexpr std::array<ElementRow, kFormElementCount> kElements = {{
    {"Pole tekstowe",             "<INPUT TYPE=\"TEXT\"",     {Part::Name, Part::Value, Part::Size, Part::MaxLength}, ""},
    {"Pole hasła"_pl,             "<INPUT TYPE=\"PASSWORD\"", {Part::Name, Part::Value, Part::Size, Part::MaxLength}, ""},
    {"Obszar tekstu",             "<TEXTAREA",                {Part::Name, Part::Rows, Part::Columns},                "</TEXTAREA>"},
    {"Pole wyboru",               "<INPUT TYPE=\"CHECKBOX\"", {Part::Name, Part::Value, Part::Checked},               ""},
    {"Przycisk opcji",            "<INPUT TYPE=\"RADIO\"",    {Part::Name, Part::Value, Part::Checked},               ""},
    {"Przycisk wysyłania"_pl,     "<INPUT TYPE=\"SUBMIT\"",   {Part::Name, Part::Value},                              ""},
    {"Przycisk czyszczenia",      "<INPUT TYPE=\"RESET\"",    {Part::Value},                                          ""},
    {"Pole ukryte",               "<INPUT TYPE=\"HIDDEN\"",   {Part::Name, Part::Value},                              ""},
    {"Przycisk graficzny",        "<INPUT TYPE=\"IMAGE\"",    {Part::Name, Part::Source, Part::Align},                ""},
    {"Wybór pliku"_pl,            "<INPUT TYPE=\"FILE\"",     {Part::Name, Part::Value, Part::Size, Part::MaxLength}, ""},
    {"Lista wyboru",              "<SELECT",                  {Part::Name, Part::Rows},                               ""},
}};

struct PartRow {
  Part part;
  std::string_view attribute;
  std::string FormElementValues::* value;
};
// The alignment goes out as a NAME and must stay so.
constexpr PartRow kTexts[] = {
    {Part::Name,      " NAME=",      &FormElementValues::name},
    {Part::Value,     " VALUE=",     &FormElementValues::value},
    {Part::Size,      " SIZE=",      &FormElementValues::size},
    {Part::MaxLength, " MAXLENGTH=", &FormElementValues::maxlength},
    {Part::Source,    " SRC=",       &FormElementValues::src},
    {Part::Align,     " NAME=",      &FormElementValues::align},
    {Part::Rows,      " ROWS=",      &FormElementValues::rows},
    {Part::Columns,   " COLS=",      &FormElementValues::cols},
};
// clang-format on

const ElementRow& RowOf(FormElement element) { return kElements[static_cast<std::size_t>(element)]; }

bool Has(FormElement element, Part part) {
  const auto& parts = RowOf(element).parts;
  return std::find(parts.begin(), parts.end(), part) != parts.end();
}

std::string OptionLines(std::string_view rows) {
  std::string lines(CrLf);
  const int count = std::clamp(LeadingInteger(rows), 0, kMostOptions);
  for (int i = 0; i < count; ++i) lines += Concat({" <OPTION>", CrLf});
  return lines;
}

}  // namespace

FormElementText TextOfFormElement(FormElement element, const FormElementValues& values) {
  TagText tag(RowOf(element).opening);
  for (const Part part : RowOf(element).parts) {
    if (part == Part::Checked) tag.Flag(values.checked, " CHECKED");
    for (const PartRow& row : kTexts)
      if (row.part == part) tag.QuotedIfText(row.attribute, values.*row.value);
  }
  std::string text = tag.Close();
  if (element == FormElement::List) text += Concat({OptionLines(values.rows), "</SELECT>"});
  return {std::move(text), std::string(RowOf(element).close)};
}

FormElements::FormElements(Program& program) : Form("FormElements", "Elementy formularza"), program_(program) {
  for (const ElementRow& row : kElements) Element.AddItem(row.caption);
  FillChoices(align_, {"TOP", "MIDDLE", "BOTTOM", "LEFT", "RIGHT"});
  SetUpButtons(program, *this, Command2, Command1);
  SetUpFileButton(program, srcFile, src_, kPictureFiles);
  OnLoad = [this] {
    const int last = static_cast<int>(kElements.size()) - 1;
    Element.SetListIndex(std::clamp(LeadingInteger(program_.DialogResult), 0, last));
    SetControls();
  };
  Element.OnChange = [this] { SetControls(); };
  Command2.OnClick = [this] {
    Hide();
    const FormElementText text = TextOfFormElement(Kind(), Values());
    InsertPair(program_, text.open, text.close);
  };
  SetUpToolTips();
  firstFocus = &name_;
  resizable = false;
  for (TextBox* box : {&size_, &maxlength_, &rows_, &cols_}) box->WidthInCharacters = 8;
  align_.WidthInCharacters = 12;
  layout = layout::Rows(layout::Field("&Element", Element), layout::Field("&Nazwa", name_), layout::Field("", value_),
                        layout::Field("Źró&dło"_pl, src_, &srcFile), layout::Field("W&yrównanie"_pl, align_),
                        layout::Field("&Rozmiar", size_), layout::Field("&Maksymalna długość"_pl, maxlength_),
                        layout::Field("W&ierszy", rows_), layout::Field("&Kolumn", cols_), checked_, layout::ButtonRow(Command2, Command1));
}

void FormElements::SetUpToolTips() {
  Element.SetToolTip("Rodzaj elementu");
  name_.SetToolTip("Nazwa, pod którą serwer dostanie wartość elementu"_pl);
  value_.SetToolTip("Wartość na początku; na przycisku: jego napis"_pl);
  src_.SetToolTip("Plik z rysunkiem przycisku");
  align_.SetToolTip("Położenie rysunku; trafia do drugiego atrybutu NAME"_pl);
  size_.SetToolTip("Szerokość pola w znakach"_pl);
  maxlength_.SetToolTip("Ile znaków najwyżej można wpisać"_pl);
  rows_.SetToolTip("Ile wierszy widać; lista dostaje tyle pustych pozycji, najwyżej 1000"_pl);
  cols_.SetToolTip("Szerokość obszaru w znakach"_pl);
  checked_.SetToolTip("Element jest zaznaczony, gdy strona się otwiera"_pl);
}

void FormElements::SetControls() {
  const FormElement element = Kind();
  const bool isButton = element == FormElement::Submit || element == FormElement::Reset;
  value_.SetCaption(isButton ? "Na&pis"_pl : "&Wartość"_pl);
  const std::pair<Part, Control*> fields[] = {
      {Part::Name, &name_}, {Part::Value, &value_}, {Part::Source, &src_},          {Part::Source, &srcFile}, {Part::Align, &align_},
      {Part::Size, &size_}, {Part::Rows, &rows_},   {Part::MaxLength, &maxlength_}, {Part::Columns, &cols_},  {Part::Checked, &checked_}};
  for (const auto& [part, control] : fields) control->SetVisible(Has(element, part));
}

FormElement FormElements::Kind() const { return static_cast<FormElement>(std::max(0, Element.ListIndex())); }

FormElementValues FormElements::Values() const {
  return {.name = name_.Text(),
          .value = value_.Text(),
          .size = size_.Text(),
          .maxlength = maxlength_.Text(),
          .rows = rows_.Text(),
          .cols = cols_.Text(),
          .src = src_.Text(),
          .align = align_.Text(),
          .checked = checked_.Value()};
}

void InsertFormElement(Program& program, FormElement element) {
  program.DialogResult = NumberText(static_cast<std::int64_t>(element));
  program.platform.windows.ShowModal(program.forms.Get<FormElements>());
}

}  // namespace morlan
