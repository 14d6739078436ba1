// The dialogs of a whole page: its quick start, properties and variables; and those of comments and e-mail addresses.
#pragma once

namespace morlan {

class Program;

void RegisterPageEditors(Program& program);

}  // namespace morlan
