// Makes the tag engine known to the rooms below it: its passes over the text and its commands.
#pragma once

namespace morlan {

class Program;

void RegisterTags(Program& program);

}  // namespace morlan
