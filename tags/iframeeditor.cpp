#include "tags/iframeeditor.h"

#include <array>

#include "core/defs.h"
#include "core/text.h"
#include "tags/frameeditor.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// In the order of the rows of align.
constexpr std::array<std::string_view, 5> kAlignWords = {"TOP", "MIDDLE", "BOTTOM", "LEFT", "RIGHT"};

}  // namespace

std::string IFrameText(const IFrameValues& values) {
  TagText tag("<IFRAME");
  tag.Quoted(" SRC=", values.src).QuotedIfText(" NAME=", values.name);
  tag.QuotedIfPositive(" HEIGHT=", values.height).QuotedIfPositive(" WIDTH=", values.width);
  tag.QuotedIfPositive(" MARGINWIDTH=", values.marginwidth).QuotedIfPositive(" MARGINHEIGHT=", values.marginheight);
  tag.Quoted(" FRAMEBORDER=", FrameBorderWord(values.frameBorder));
  tag.QuotedIfText(" SCROLLING=", ItemOfRow(FrameScrolling, values.scrolling));
  return tag.QuotedIfText(" ALIGN=", ItemOfRow(kAlignWords, values.align)).Close();
}

IFrame::IFrame(Program& program) : TagDialog(program, "IFrame", "Pływająca ramka"_pl, kFrameStatus) {
  FillChoices(align, {"Na górze"_pl, "Na środku"_pl, "Na dole", "Po lewej", "Po prawej"});
  FillChoices(scrolling, {"Automatyczne", "Tak", "Nie"});
  SetUp(Command2, Command1);
  SetUpFileButton(program, srcFile, src, kPageFiles);
  SetUpToolTips();
  for (TextBox* box : {&height_, &width_, &marginwidth, &marginheight}) box->WidthInCharacters = 8;
  align.WidthInCharacters = scrolling.WidthInCharacters = 16;
  using namespace layout;
  const Layout size = Group("Wymiary", Field("&Wysokość"_pl, height_), Field("&Szerokość"_pl, width_));
  const Layout margins = Group("Marginesy", Field("S&zerokość"_pl, marginwidth), Field("W&ysokość"_pl, marginheight));
  Form::layout = Rows(Field("Zawar&tość"_pl, src, &srcFile), Field("&Etykieta", name_), Columns(size, margins),
                      Field("&Położenie"_pl, align), Field("Przewi&janie", scrolling), FrameBorder, ButtonRow(Command2, Command1));
}

void IFrame::SetUpToolTips() {
  src.SetToolTip("Strona, którą pokaże ramka"_pl);
  name_.SetToolTip("Nazwa ramki, w której odnośniki mogą otwierać strony"_pl);
  height_.SetToolTip("Wysokość ramki w punktach albo w procentach"_pl);
  width_.SetToolTip("Szerokość ramki w punktach albo w procentach"_pl);
  marginwidth.SetToolTip("Wolne miejsce po obu bokach zawartości w punktach"_pl);
  marginheight.SetToolTip("Wolne miejsce nad zawartością i pod nią w punktach"_pl);
  align.SetToolTip("Położenie ramki względem tekstu"_pl);
  scrolling.SetToolTip("Czy ramka ma paski przewijania"_pl);
  FrameBorder.SetToolTip("Rysuje linię wokół ramki"_pl);
}

void IFrame::Read(std::string_view tag) {
  src.SetText(GetTagTextParam(tag, "SRC"));
  name_.SetText(GetTagParam(tag, "NAME"));
  height_.SetText(GetTagParam(tag, "HEIGHT"));
  width_.SetText(GetTagParam(tag, "WIDTH"));
  marginwidth.SetText(GetTagParam(tag, "MARGINWIDTH"));
  marginheight.SetText(GetTagParam(tag, "MARGINHEIGHT"));
  FrameBorder.SetValue(EqualNoCase(GetTagParam(tag, "FRAMEBORDER"), FrameBorderWord(true)));
  align.SetListIndex(RowOfItem(kAlignWords, GetTagParam(tag, "ALIGN")));
  scrolling.SetListIndex(RowOfItem(FrameScrolling, GetTagParam(tag, "SCROLLING")));
}

IFrameValues IFrame::Values() const {
  return {.src = src.Text(),
          .name = name_.Text(),
          .height = height_.Text(),
          .width = width_.Text(),
          .marginwidth = marginwidth.Text(),
          .marginheight = marginheight.Text(),
          .frameBorder = FrameBorder.Value(),
          .scrolling = scrolling.ListIndex(),
          .align = align.ListIndex()};
}

void EditIFrame(Program& program) { program.forms.Get<IFrame>().Edit(); }

void InsertIFrame(Program& program) { program.forms.Get<IFrame>().Insert(); }

}  // namespace morlan
