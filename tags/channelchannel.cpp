#include "tags/channelchannel.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {

std::string ChannelAttributes(const ChannelValues& values) {
  const std::string level = LeadingNumber(values.level) != 0 ? AddAttribute(values.level, "Level") : std::string();
  return AddAttribute(values.base, "BASE") + AddAttribute(values.href, "HREF") + level;
}

Channel_Channel::Channel_Channel(Program& program) : ServerDialog(program, "Channel_Channel", "Kanał"_pl) {
  SetUp(Command2, Command1);
  SetUpFileButton(program, hrefFile, HREF, kPageFiles);
  Base.WidthInCharacters = 32;
  Level.WidthInCharacters = 6;
  Base.SetToolTip("Adres, od którego liczą się adresy względne w kanale"_pl);
  HREF.SetToolTip("Strona, którą kanał otwiera"_pl);
  Level.SetToolTip("Na ile odnośników w głąb pobrać strony zawczasu"_pl);
  layout = layout::Rows(layout::Field("Adres &bazowy", Base), layout::Field("Adres &URL", HREF, &hrefFile),
                        layout::Field("&Poziom zagnieżdżania odnośników"_pl, Level), layout::ButtonRow(Command2, Command1));
}

void Channel_Channel::Read(std::string_view tag) {
  Base.SetText(GetTagParam(tag, "BASE"));
  HREF.SetText(GetTagParam(tag, "HREF"));
  Level.SetText(GetTagParam(tag, "LEVEL"));
}

std::string Channel_Channel::Result() const { return Concat({"<CHANNEL", ChannelAttributes(Values()), ">"}); }

void EditChannel(Program& program) {
  Channel_Channel& form = program.forms.Get<Channel_Channel>();
  form.Read(program.tagState.CurrentTagText);
  if (!form.Ask().empty()) RewriteTag(program, Concat({"<CHANNEL ", ChannelAttributes(form.Values()), ">"}));
}

void InsertChannel(Program& program) {
  const std::string tag = program.forms.Get<Channel_Channel>().Ask();
  if (!tag.empty()) InsertPair(program, tag, Concat({CrLf, "</CHANNEL>"}));
}

}  // namespace morlan
