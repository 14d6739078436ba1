// The commands of the script language, as a table.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/script/scriptreader.h"

namespace morlan {

class Session;

enum class When {
  Always,      // it only looks, or it answers
  Forms,       // not while a question is open
  MainWindow,  // nor while a modal form is open
};
enum class PopUp { Closes, Stays };

struct CommandRow {
  std::string_view name;
  std::size_t fewestArguments, mostArguments;
  When when;
  PopUp popUp;
  Fault (*function)(Session& session, const Words& words);
};

// Null when there is no such command.
const CommandRow* FindCommand(std::string_view name);

}  // namespace morlan
