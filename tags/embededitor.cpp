#include "tags/embededitor.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kMidi = "mid";

bool EndsInMidi(std::string_view source) {
  return source.size() >= kMidi.size() && EqualNoCase(source.substr(source.size() - kMidi.size()), kMidi);
}

// A link has dots in "../" too: the extension is what follows the last one.
bool IsMidiFile(std::string_view source) {
  const std::size_t dot = source.rfind('.');
  return dot != std::string_view::npos && EqualNoCase(source.substr(dot + 1), kMidi);
}

std::string_view SwitchText(bool on) { return on ? "True" : "False"; }

}  // namespace

std::string EmbedText(const EmbedValues& values) {
  TagText tag("<EMBED");
  tag.Quoted(" SRC=", values.source).IfText(" WIDTH=", values.szerokosc).IfText(" HEIGHT=", values.wysokosc);
  tag.IfText(" BORDER=", values.ramka).IfText(" ALIGN=", values.wyrownanie);
  if (IsMidiFile(values.source)) tag.IfText(" AUTOSTART=", SwitchText(values.autoStart)).IfText(" LOOP=", SwitchText(values.loop));
  return tag.Close(">\r\n");
}

embed::embed(Program& program) : Form("embed", "Embed") {
  FillPictureAlignments(wyrownanie);
  SetUpFieldButtons(*this, Command2, Command1, source);
  SetUpFileButton(program, sourceFile, source, kSoundFiles);
  source.OnChange = [this] { ShowMidiBoxes(); };
  OnLoad = [this] { ShowMidiBoxes(); };
  source.SetToolTip("Plik, który przeglądarka odtworzy albo pokaże na stronie"_pl);
  szerokosc.SetToolTip("Szerokość obiektu w punktach"_pl);
  wysokosc.SetToolTip("Wysokość obiektu w punktach"_pl);
  ramka.SetToolTip("Grubość ramki wokół obiektu w punktach"_pl);
  wyrownanie.SetToolTip("Położenie obiektu względem tekstu"_pl);
  midi0.SetToolTip("Odtwarza plik zaraz po wczytaniu strony");
  midi1.SetToolTip("Odtwarza plik bez końca"_pl);
  for (TextBox* box : {&szerokosc, &wysokosc, &ramka}) box->WidthInCharacters = 8;
  wyrownanie.WidthInCharacters = 12;
  source.WidthInCharacters = 36;
  layout = layout::Rows(layout::Field("Ź&ródło"_pl, source, &sourceFile), layout::Field("S&zerokość"_pl, szerokosc),
                        layout::Field("&Wysokość"_pl, wysokosc), layout::Field("Ra&mka", ramka),
                        layout::Field("W&yrównanie"_pl, wyrownanie), layout::Columns(midi0, midi1), layout::ButtonRow(Command2, Command1));
}

void embed::ShowMidiBoxes() {
  for (CheckBox* box : {&midi0, &midi1}) box->SetVisible(EndsInMidi(source.Text()));
}

void embed::Read(std::string_view tag) {
  source.SetText(GetTagParam(tag, "SRC"));
  midi0.SetValue(TextToBool(GetTagParam(tag, "AUTOSTART")));
  midi1.SetValue(TextToBool(GetTagParam(tag, "LOOP")));
  szerokosc.SetText(GetTagParam(tag, "WIDTH"));
  wysokosc.SetText(GetTagParam(tag, "HEIGHT"));
  ramka.SetText(GetTagParam(tag, "BORDER"));
  wyrownanie.SetListIndex(wyrownanie.ListFind(GetTagParam(tag, "ALIGN")));
}

EmbedValues embed::Values() const {
  return {.source = source.Text(),
          .szerokosc = szerokosc.Text(),
          .wysokosc = wysokosc.Text(),
          .ramka = ramka.Text(),
          .wyrownanie = wyrownanie.Text(),
          .autoStart = midi0.Value(),
          .loop = midi1.Value()};
}

void EditEmbed(Program& program) {
  embed& form = program.forms.Get<embed>();
  form.Read(program.tagState.CurrentTagText);
  ShowForExisting(program, form);
  if (!form.source.Text().empty()) RewriteTag(program, EmbedText(form.Values()));
}

void InsertEmbed(Program& program) {
  embed& form = program.forms.Get<embed>();
  ShowForNew(program, form);
  if (!form.source.Text().empty()) InsertPair(program, EmbedText(form.Values()), "");
}

}  // namespace morlan
