// The tags whose dialogs write their attributes themselves: what stands round the attributes, as a table, and the commands.
#pragma once

namespace morlan {

class Program;

void RegisterServerTags(Program& program);

}  // namespace morlan
