#include "tags/channellogo.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {

namespace {

std::string LogoText(std::string_view attributes) { return Concat({"<LOGO ", attributes, "/>"}); }

}  // namespace

std::string LogoAttributes(const LogoValues& values) {
  return TagText("").Quoted("HREF=", values.href).Quoted(" STYLE=", values.style).Close("");
}

Channel_Logo::Channel_Logo(Program& program) : ServerDialog(program, "Channel_Logo", "Edycja loga kanału"_pl) {
  Remember(Items, "Listy\\CHLogo.lst");
  for (const std::string_view style : {"ICON", "IMAGE"}) Typ.AddItem(style);
  Typ.SetListIndex(0);
  SetUp(Command2, Command1);
  SetUpFileButton(program, itemsFile, Items, kPictureFiles);
  Items.WidthInCharacters = 32;
  Typ.WidthInCharacters = 12;
  Items.SetToolTip("Rysunek, który przedstawia kanał"_pl);
  Typ.SetToolTip("Mały znak na liście kanałów albo większy rysunek"_pl);
  layout = layout::Rows(layout::Field("&Logo", Items, &itemsFile), layout::Field("&Styl", Typ), layout::ButtonRow(Command2, Command1));
}

void Channel_Logo::Read(std::string_view tag) {
  Items.SetText(GetTagTextParam(tag, "href"));
  ShowChoice(Typ, GetTagTextParam(tag, "style"));
}

void EditLogo(Program& program) {
  Channel_Logo& form = program.forms.Get<Channel_Logo>();
  form.Read(program.tagState.CurrentTagText);
  const std::string attributes = form.Ask();
  if (!attributes.empty()) RewriteTag(program, LogoText(attributes));
}

void InsertLogo(Program& program) {
  const std::string attributes = program.forms.Get<Channel_Logo>().Ask();
  if (!attributes.empty()) ReplaceSelection(program, LogoText(attributes));
}

}  // namespace morlan
