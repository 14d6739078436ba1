#include "tags/cffile.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// clang-format off
constexpr bool yes = true, no = false;
constexpr CfFileAction kActions[] = {
    // action   SOURCE DESTINATION OUTPUT FILE VARIABLE FILEFIELD NAMECONFLICT
    {"append",  no,    no,         yes,   yes, no,      no,       no},
    {"copy",    yes,   yes,        no,    no,  no,      no,       no},
    {"delete",  no,    no,         no,    yes, no,      no,       no},
    {"move",    yes,   yes,        no,    no,  no,      no,       no},
    {"read",    no,    no,         no,    yes, yes,     no,       no},
    {"rename",  yes,   yes,        no,    no,  no,      no,       no},
    {"upload",  no,    yes,        no,    no,  no,      yes,      yes},
    {"write",   no,    no,         yes,   yes, no,      no,       no},
};
constexpr CfFileAction kNoAction = {"", no, no, no, no, no, no, no};
// clang-format on

std::string IfKnown(bool known, std::string_view text, std::string_view name) { return known ? AddAttribute(text, name) : std::string(); }

}  // namespace

const CfFileAction& CfFileActionOf(std::string_view action) {
  for (const CfFileAction& row : kActions)
    if (EqualNoCase(row.action, action)) return row;
  return kNoAction;
}

std::string CfFileText(const CfFileValues& values) {
  const CfFileAction& known = CfFileActionOf(values.action);
  return AddAttribute(values.action, "ACTION") + IfKnown(known.source, values.source, "SOURCE") +
         IfKnown(known.destination, values.destination, "DESTINATION") + IfKnown(known.output, values.output, "OUTPUT") +
         IfKnown(known.file, values.file, "FILE") + IfKnown(known.variable, values.variable, "VARIABLE") +
         IfKnown(known.filefield, values.filefield, "FILEFIELD") + IfKnown(known.nameconflict, values.nameconflict, "NAMECONFLICT");
}

CFFILE::CFFILE(Program& program) : ServerDialog(program, "CFFILE", "CFFILE") {
  action.AddItems({"Append", "Copy", "Delete", "Move", "Read", "Rename", "Upload", "Write"});
  nameconflict_.AddItems({"Error", "OverWrite", "MakeUnique"});
  // The names are offered; none of them is the likely one.
  LoadComboFromList(program, variable_, "Listy\\FileVar.lst");
  variable_.SetText("");
  SetUp(Command2, Command1);
  action.OnChange = [this] { Action_Click(); };
  Action_Click();
  action.WidthInCharacters = nameconflict_.WidthInCharacters = 14;
  for (TextBox* box : {&source_, &destination_, &output_, &file_}) box->WidthInCharacters = 32;
  SetUpToolTips();
  layout = layout::Rows(layout::Field("&Działanie"_pl, action), layout::Field("Ź&ródło"_pl, source_), layout::Field("&Cel", destination_),
                        layout::Field("&Treść"_pl, output_), layout::Field("&Plik", file_), layout::Field("&Zmienna", variable_),
                        layout::Field("Po&le formularza", filefield_), layout::Field("&Konflikt nazw", nameconflict_),
                        layout::ButtonRow(Command2, Command1));
}

void CFFILE::SetUpToolTips() {
  action.SetToolTip("Co serwer zrobi z plikiem; dostępne są pola, których to działanie używa"_pl);
  source_.SetToolTip("Pełna ścieżka na serwerze: skąd wziąć plik"_pl);
  destination_.SetToolTip("Pełna ścieżka na serwerze: dokąd trafi plik"_pl);
  output_.SetToolTip("Tekst, który trafi do pliku"_pl);
  file_.SetToolTip("Pełna ścieżka pliku na serwerze"_pl);
  variable_.SetToolTip("Zmienna, która dostanie treść pliku"_pl);
  filefield_.SetToolTip("Nazwa pola formularza, w którym wybrano plik"_pl);
  nameconflict_.SetToolTip("Co zrobić, gdy plik o tej nazwie już jest na serwerze"_pl);
}

void CFFILE::Action_Click() {
  const CfFileAction& known = CfFileActionOf(action.Text());
  source_.SetEnabled(known.source);
  destination_.SetEnabled(known.destination);
  output_.SetEnabled(known.output);
  file_.SetEnabled(known.file);
  variable_.SetEnabled(known.variable);
  filefield_.SetEnabled(known.filefield);
  nameconflict_.SetEnabled(known.nameconflict);
}

bool CFFILE::IsComplete() {
  if (!action.Text().empty()) return true;
  program_.platform.windows.Message({.text = std::string("Proszę sprecyzować działanie."_pl)});
  return false;
}

void CFFILE::Read(std::string_view tag) {
  ShowChoice(action, GetTagParam(tag, "ACTION"));
  source_.SetText(GetTagTextParam(tag, "SOURCE"));
  destination_.SetText(GetTagTextParam(tag, "DESTINATION"));
  output_.SetText(GetTagTextParam(tag, "OUTPUT"));
  // This reader takes FILEFIELD for FILE when it comes first.
  file_.SetText(GetTagTextParam(tag, "FILE"));
  ShowChoice(variable_, GetTagParam(tag, "VARIABLE"));
  filefield_.SetText(GetTagParam(tag, "FILEFIELD"));
  ShowChoice(nameconflict_, GetTagTextParam(tag, "NAMECONFLICT"));
  Action_Click();
}

CfFileValues CFFILE::Values() const {
  return {.action = action.Text(),
          .source = source_.Text(),
          .destination = destination_.Text(),
          .output = output_.Text(),
          .file = file_.Text(),
          .variable = variable_.Text(),
          .filefield = filefield_.Text(),
          .nameconflict = nameconflict_.Text()};
}

}  // namespace morlan
