#include "text/momentforms.h"

#include <array>
#include <initializer_list>
#include <span>

#include "core/document.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "text/autoupdate.h"
#include "text/dateformat.h"

namespace morlan {

struct MomentKind {
  std::string_view form, title, type, separator, update;
  std::string_view initial;  // the pattern at first
  std::span<const std::string_view> patterns;
  struct Part {
    std::string_view control, caption;
    std::span<const std::string_view> tokens;
  };
  std::array<Part, 3> parts;
};

namespace {

constexpr std::string_view kDatePatterns[] = {"D/M/YY",         "DD/MM/YY",     "DD/MM/YYYY", "DDD/MM/YYYY", "DDD/MMM/YYYY",
                                              "DDDD/MMMM/YYYY", "DD/MMMM/YYYY", "DD.MM.YYYY", "YYYY-MM-DD",  "MMMM/YYYY"};
constexpr std::string_view kDays[] = {"D", "DD", "DDD", "DDDD"};
constexpr std::string_view kMonths[] = {"M", "MM", "MMM", "MMMM"};
constexpr std::string_view kYears[] = {"YY", "YYYY"};
constexpr MomentKind kDate = {
    .form = "InsertDate",
    .title = "Wstaw datę"_pl,
    .type = "DATE",
    .separator = "/",
    .update = "&Uaktualniaj datę przy otwieraniu dokumentu"_pl,
    .initial = "DD/MM/YYYY",
    .patterns = kDatePatterns,
    .parts = {{{"day_", "&Dzień"_pl, kDays}, {"month_", "&Miesiąc"_pl, kMonths}, {"year_", "&Rok", kYears}}},
};

constexpr std::string_view kTimePatterns[] = {"H:MM", "HH:MM", "H:MM:SS", "HH:MM:SS", "HH.MM", "HH.MM.SS"};
constexpr std::string_view kHours[] = {"H", "HH"};
constexpr std::string_view kMinutes[] = {"M", "MM"};
constexpr std::string_view kSeconds[] = {"S", "SS"};
constexpr MomentKind kTime = {
    .form = "InsertTime",
    .title = "Wstaw godzinę"_pl,
    .type = "TIME",
    .separator = ":",
    .update = "&Uaktualniaj godzinę przy otwieraniu dokumentu"_pl,
    .initial = "HH:MM",
    .patterns = kTimePatterns,
    .parts = {{{"hour_", "&Godzina", kHours}, {"minute_", "&Minuta", kMinutes}, {"second_", "&Sekunda", kSeconds}}},
};

constexpr std::string_view kNoPart = "-";

void FillPart(ListBox& list, const MomentKind::Part& part) {
  list.AddItem(kNoPart);
  for (const std::string_view token : part.tokens) list.AddItem(token);
  list.HeightInRows = 5;
  list.SetToolTip("Zapis tej części; \"-\" ją pomija"_pl);
}

}  // namespace

MomentForm::MomentForm(Program& program, const MomentKind& kind)
    : Form(kind.form, kind.title),
      first_(*this, kind.parts[0].control),
      second_(*this, kind.parts[1].control),
      third_(*this, kind.parts[2].control),
      update_(*this, "update_", kind.update),
      program_(program),
      kind_(kind) {
  for (const std::string_view pattern : kind.patterns) Format_.AddItem(pattern);
  std::size_t number = 0;
  for (ListBox* list : {&first_, &second_, &third_}) {
    FillPart(*list, kind.parts[number++]);
    list->OnChange = [this] { JoinParts(); };
  }
  Format_.OnChange = [this] { ShowSample(); };
  Format_.SetToolTip("Wzór, według którego powstaje tekst"_pl);
  update_.SetToolTip("Tekst będzie wyliczany na nowo przy każdym otwarciu i zapisie dokumentu"_pl);
  sample.SetAccessibleName("Wynik");
  OnLoad = [this] { Form_Load(); };
  Command2.OnClick = [this] { Insert(); };
  Command1.OnClick = [this] { Hide(); };
  layout = layout::Rows(layout::Field("&Format", Format_),
                        layout::Columns(layout::Field(kind.parts[0].caption, first_), layout::Field(kind.parts[1].caption, second_),
                                        layout::Field(kind.parts[2].caption, third_)),
                        layout::Field("Wynik", sample), update_, layout::ButtonRow(Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Format_;
}

void MomentForm::Form_Load() {
  if (Format_.Text().empty()) Format_.SetText(kind_.initial);
  ShowSample();
}

// The chosen parts with the separator between them.
void MomentForm::JoinParts() {
  std::string pattern;
  for (const ListBox* list : {&first_, &second_, &third_}) {
    const std::string part = list->SelectedRow();
    if (part.empty() || part == kNoPart) continue;
    pattern += pattern.empty() ? part : Concat({kind_.separator, part});
  }
  Format_.SetText(pattern);
  ShowSample();
}

void MomentForm::ShowSample() { sample.SetCaption(FormatDateTime(program_.platform.clock.Now(), Format_.Text())); }

void MomentForm::Insert() {
  const std::string& pattern = Format_.Text();
  std::string text = FormatDateTime(program_.platform.clock.Now(), pattern);
  // Without quotes a pattern ends at its first blank.
  const std::string_view quote = pattern.find(' ') == std::string::npos ? "" : Quote;
  if (update_.Value()) text = Stamp(Concat({" TYPE=", kind_.type, " FORMAT=", quote, pattern, quote}), text);
  InsertPair(program_, text, "");
  Hide();
}

InsertDate::InsertDate(Program& program) : MomentForm(program, kDate) {}
InsertTime::InsertTime(Program& program) : MomentForm(program, kTime) {}

}  // namespace morlan
