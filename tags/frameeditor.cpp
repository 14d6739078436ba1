#include "tags/frameeditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {

std::string FrameText(const FrameValues& values) {
  TagText tag("<FRAME");
  tag.Quoted(" SRC=", values.src).QuotedIfText(" NAME=", values.name);
  tag.QuotedIfPositive(" MARGINWIDTH=", values.marginwidth).QuotedIfPositive(" MARGINHEIGHT=", values.marginheight);
  tag.Flag(values.noresize, " NORESIZE").Quoted(" FRAMEBORDER=", FrameBorderWord(values.frameBorder));
  tag.QuotedIfPositive(" FRAMESPACING=", values.spacing).QuotedIfText(" SCROLLING=", ItemOfRow(FrameScrolling, values.scrolling));
  return tag.Close();
}

FrameTag::FrameTag(Program& program) : TagDialog(program, "Frame", "Ramka", kFrameStatus) {
  FillChoices(scrolling, {"Automatyczne", "Tak", "Nie"});
  SetUp(Command2, Command1);
  SetUpFileButton(program, srcFile, src, kPageFiles);
  SetUpToolTips();
  for (TextBox* box : {&marginwidth, &marginheight, &spacing_}) box->WidthInCharacters = 8;
  scrolling.WidthInCharacters = 16;
  using namespace layout;
  const Layout margins = Group("Marginesy", Field("&Szerokość"_pl, marginwidth), Field("&Wysokość"_pl, marginheight));
  const Layout view = Group("Wygląd"_pl, Field("Od&ległość ramek"_pl, spacing_), Field("&Przewijanie", scrolling));
  Form::layout = Rows(Field("&Zawartość"_pl, src, &srcFile), Field("&Etykieta", name_), Columns(margins, view), noresize, FrameBorder,
                      ButtonRow(Command2, Command1));
}

void FrameTag::SetUpToolTips() {
  src.SetToolTip("Strona, którą pokaże ramka"_pl);
  name_.SetToolTip("Nazwa ramki, w której odnośniki mogą otwierać strony"_pl);
  marginwidth.SetToolTip("Wolne miejsce po obu bokach zawartości w punktach"_pl);
  marginheight.SetToolTip("Wolne miejsce nad zawartością i pod nią w punktach"_pl);
  spacing_.SetToolTip("Wolne miejsce między ramkami w punktach"_pl);
  scrolling.SetToolTip("Czy ramka ma paski przewijania"_pl);
  noresize.SetToolTip("Czytelnik strony nie może zmienić rozmiaru ramki"_pl);
  FrameBorder.SetToolTip("Rysuje linię między tą ramką a sąsiednimi"_pl);
}

void FrameTag::Read(std::string_view tag) {
  src.SetText(GetTagTextParam(tag, "SRC"));
  name_.SetText(GetTagParam(tag, "NAME"));
  spacing_.SetText(GetTagParam(tag, "FRAMESPACING"));
  marginwidth.SetText(GetTagParam(tag, "MARGINWIDTH"));
  marginheight.SetText(GetTagParam(tag, "MARGINHEIGHT"));
  noresize.SetValue(TextToBool(GetTagParam(tag, "NORESIZE")));
  FrameBorder.SetValue(EqualNoCase(GetTagParam(tag, "FRAMEBORDER"), FrameBorderWord(true)));
  scrolling.SetListIndex(RowOfItem(FrameScrolling, GetTagParam(tag, "SCROLLING")));
}

FrameValues FrameTag::Values() const {
  return {.src = src.Text(),
          .name = name_.Text(),
          .marginwidth = marginwidth.Text(),
          .marginheight = marginheight.Text(),
          .noresize = noresize.Value(),
          .frameBorder = FrameBorder.Value(),
          .spacing = spacing_.Text(),
          .scrolling = scrolling.ListIndex()};
}

void EditFrame(Program& program) { program.forms.Get<FrameTag>().Edit(); }

void InsertFrame(Program& program) { program.forms.Get<FrameTag>().Insert(); }

}  // namespace morlan
