// The editors of the tags of channels, and the commands of the channel toolbars that need these editors' dialogs or none.
#pragma once

namespace morlan {

class Program;

void RegisterChannelEditors(Program& program);

}  // namespace morlan
