#include "tags/channelitem.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {

std::string ItemAttributes(const ItemValues& values) {
  TagText text("");
  text.Quoted(" HREF=", values.href).Quoted(" LASTMOD=", values.modDate).Quoted(" PRECACHE=", values.preCache);
  return text.Quoted(" LEVEL=", values.level).Close("");
}

Channel_Item::Channel_Item(Program& program) : ServerDialog(program, "Channel_Item", "Element kanału"_pl) {
  Remember(HREF, "Listy\\CHHref.lst");
  for (const std::string_view choice : {"YES", "NO"}) PreCache.AddItem(choice);
  SetUp(Command2, Command1);
  SetUpFileButton(program, hrefFile, HREF, kPageFiles);
  HREF.WidthInCharacters = 32;
  PreCache.WidthInCharacters = 8;
  Level.WidthInCharacters = 6;
  HREF.SetToolTip("Strona, do której prowadzi element"_pl);
  ModDate.SetToolTip("Kiedy strona zmieniła się ostatnio"_pl);
  PreCache.SetToolTip("Czy przeglądarka ma pobrać stronę zawczasu"_pl);
  Level.SetToolTip("Na ile odnośników w głąb pobrać strony zawczasu"_pl);
  layout =
      layout::Rows(layout::Field("Adres &URL (do zawartości dokumentu)"_pl, HREF, &hrefFile), layout::Field("&Data modyfikacji", ModDate),
                   layout::Field("Wzór daty"_pl, sample), layout::Field("&Załaduj do pamięci podręcznej (CACHE)"_pl, PreCache),
                   layout::Field("&Poziom zagnieżdżania odnośników"_pl, Level), layout::ButtonRow(Command2, Command1));
}

void Channel_Item::Read(std::string_view tag) {
  HREF.SetText(GetTagTextParam(tag, "href"));
  ShowChoice(PreCache, GetTagTextParam(tag, "precache"));
  Level.SetText(GetTagTextParam(tag, "level"));
  ModDate.SetText(GetTagTextParam(tag, "lastmod"));
}

ItemValues Channel_Item::Values() const {
  return {.href = HREF.Text(), .modDate = ModDate.Text(), .preCache = PreCache.Text(), .level = Level.Text()};
}

void EditItem(Program& program) {
  Channel_Item& form = program.forms.Get<Channel_Item>();
  form.Read(program.tagState.CurrentTagText);
  const std::string attributes = form.Ask();
  if (!attributes.empty()) RewriteTag(program, Concat({"<ITEM ", attributes, ">"}));
}

void InsertItem(Program& program) {
  const std::string attributes = program.forms.Get<Channel_Item>().Ask();
  if (!attributes.empty()) InsertPair(program, Concat({"<ITEM", attributes, ">"}), Concat({CrLf, "</ITEM>"}));
}

}  // namespace morlan
