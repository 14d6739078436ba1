#include "tags/imageeditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {

std::string ImageText(const ImageValues& values) {
  const bool needsSign = !values.usemap.empty() && !values.usemap.starts_with('#');
  TagText tag("<IMG");
  tag.Quoted(" SRC=", values.source).QuotedIfText(" ALT=", values.alt);
  tag.QuotedIfText(" USEMAP=", Concat({needsSign ? "#" : "", values.usemap}));
  tag.IfText(" WIDTH=", values.szerokosc).IfText(" HEIGHT=", values.wysokosc).IfText(" BORDER=", values.ramka);
  tag.IfText(" VSPACE=", values.vspace).IfText(" HSPACE=", values.hspace).IfText(" ALIGN=", values.wyrownanie);
  return tag.Flag(values.ismap, " ISMAP").Close();
}

image::image(Program& program) : Form("image", "Grafika") {
  FillPictureAlignments(wyrownanie);
  SetUpFieldButtons(*this, Command2, Command1, source);
  SetUpFileButton(program, sourceFile, source, kPictureFiles);
  for (TextBox* box : {&szerokosc, &wysokosc, &ramka, &vspace, &hspace}) box->WidthInCharacters = 8;
  wyrownanie.WidthInCharacters = 12;
  source.WidthInCharacters = 36;
  SetUpToolTips();
  using namespace layout;
  const Layout size = Group("Wymiary", Field("&Szerokość"_pl, szerokosc), Field("&Wysokość"_pl, wysokosc), Field("Ra&mka", ramka));
  const Layout distances = Group("Odległość tekstu od rysunku"_pl, Field("W &pionie", vspace), Field("W po&ziomie ", hspace));
  Form::layout = Rows(Field("Ź&ródło"_pl, source, &sourceFile), Field("Zastępczy &tekst"_pl, alt), Field("&Użyj mapy"_pl, usemap),
                      Columns(size, distances), Field("Wyrów&nanie"_pl, wyrownanie), ismap, ButtonRow(Command2, Command1));
}

void image::SetUpToolTips() {
  source.SetToolTip("Plik z rysunkiem");
  alt.SetToolTip("Tekst, który zastąpi rysunek, gdy nie można go pokazać"_pl);
  usemap.SetToolTip("Nazwa mapy odnośników, która leży na rysunku"_pl);
  szerokosc.SetToolTip("Szerokość rysunku w punktach"_pl);
  wysokosc.SetToolTip("Wysokość rysunku w punktach"_pl);
  ramka.SetToolTip("Grubość ramki wokół rysunku w punktach"_pl);
  vspace.SetToolTip("Wolne miejsce nad rysunkiem i pod nim w punktach");
  hspace.SetToolTip("Wolne miejsce po obu bokach rysunku w punktach");
  wyrownanie.SetToolTip("Położenie rysunku względem tekstu"_pl);
  ismap.SetToolTip("Miejsce kliknięcia na rysunku trafia do serwera"_pl);
}

void image::Read(std::string_view tag) {
  source.SetText(GetTagTextParam(tag, "SRC"));
  alt.SetText(GetTagTextParam(tag, "ALT"));
  szerokosc.SetText(GetTagParam(tag, "WIDTH"));
  wysokosc.SetText(GetTagParam(tag, "HEIGHT"));
  ramka.SetText(GetTagParam(tag, "BORDER"));
  usemap.SetText(GetTagTextParam(tag, "USEMAP"));
  vspace.SetText(GetTagParam(tag, "VSPACE"));
  hspace.SetText(GetTagParam(tag, "HSPACE"));
  ismap.SetValue(TextToBool(GetTagParam(tag, "ISMAP")));
  wyrownanie.SetListIndex(wyrownanie.ListFind(GetTagParam(tag, "ALIGN")));
}

ImageValues image::Values() const {
  return {.source = source.Text(),
          .alt = alt.Text(),
          .usemap = usemap.Text(),
          .szerokosc = szerokosc.Text(),
          .wysokosc = wysokosc.Text(),
          .ramka = ramka.Text(),
          .vspace = vspace.Text(),
          .hspace = hspace.Text(),
          .wyrownanie = wyrownanie.Text(),
          .ismap = ismap.Value()};
}

void EditImage(Program& program) {
  image& form = program.forms.Get<image>();
  form.Read(program.tagState.CurrentTagText);
  ShowForExisting(program, form);
  if (!form.source.Text().empty()) RewriteTag(program, ImageText(form.Values()));
}

void InsertImage(Program& program) {
  image& form = program.forms.Get<image>();
  ShowForNew(program, form);
  if (!form.source.Text().empty()) InsertPair(program, ImageText(form.Values()), "");
}

}  // namespace morlan
