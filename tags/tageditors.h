// Makes the editors of tags known: by the name that the context menu calls, and by the commands that insert a new tag.
#pragma once

namespace morlan {

class Program;

void RegisterTagEditors(Program& program);

}  // namespace morlan
