#include "tags/aplet.h"

#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kClassFiles = "Aplety|*.class;*.jar|Wszystkie pliki|*.*";

}  // namespace

std::string ApletText(const ApletValues& values) {
  return AddAttribute(values.code, "CODE") + AddAttribute(values.codebase, "CODEBASE") + AddAttribute(values.name, "NAME") +
         AddAttribute(values.title, "TITLE") + AddAttribute(values.align, "ALIGN") + AddAttribute(values.width, "WIDTH") +
         AddAttribute(values.height, "HEIGHT");
}

Aplet::Aplet(Program& program) : ServerDialog(program, "Aplet", "Aplet") {
  align.AddItems({"LEFT", "RIGHT", "TOP", "MIDDLE", "BOTTOM"});
  SetUp(Command2, Command1);
  SetUpFileButton(program, codeFile, code, kClassFiles);
  width_.WidthInCharacters = height_.WidthInCharacters = 8;
  align.WidthInCharacters = 10;
  SetUpToolTips();
  layout = layout::Rows(layout::Field("&Kod", code, &codeFile), layout::Field("&Podstawa kodu", codebase), layout::Field("&Nazwa", name_),
                        layout::Field("&Tytuł"_pl, title), layout::Field("W&yrównanie"_pl, align), layout::Field("&Szerokość"_pl, width_),
                        layout::Field("&Wysokość"_pl, height_), layout::ButtonRow(Command2, Command1));
}

void Aplet::SetUpToolTips() {
  code.SetToolTip("Plik z klasą apletu"_pl);
  codebase.SetToolTip("Adres katalogu, w którym leży kod apletu"_pl);
  name_.SetToolTip("Nazwa, pod którą aplet znają inne aplety i skrypty"_pl);
  title.SetToolTip("Podpis apletu");
  align.SetToolTip("Położenie apletu względem tekstu"_pl);
  width_.SetToolTip("Szerokość apletu w punktach"_pl);
  height_.SetToolTip("Wysokość apletu w punktach"_pl);
}

void Aplet::Read(std::string_view tag) {
  code.SetText(GetTagParam(tag, "CODE"));
  codebase.SetText(GetTagParam(tag, "CODEBASE"));
  name_.SetText(GetTagParam(tag, "NAME"));
  title.SetText(GetTagTextParam(tag, "TITLE"));
  ShowChoice(align, GetTagParam(tag, "ALIGN"));
  width_.SetText(GetTagParam(tag, "WIDTH"));
  height_.SetText(GetTagParam(tag, "HEIGHT"));
}

ApletValues Aplet::Values() const {
  return {.code = code.Text(),
          .codebase = codebase.Text(),
          .name = name_.Text(),
          .title = title.Text(),
          .align = align.Text(),
          .width = width_.Text(),
          .height = height_.Text()};
}

}  // namespace morlan
