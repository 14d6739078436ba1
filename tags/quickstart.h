// The quick start: the skeleton of a page at the start of the active document.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// A whole page with an empty body. An empty type leaves its line empty.
std::string PageSkeleton(std::string_view docType, std::string_view title);

// Its list of document types remembers what was confirmed.
struct QuickStart : Form {
  TextBox tytul{*this, "tytul"};
  ComboBox doctype{*this, "doctype"};
  CheckBox startbody{*this, "startbody", "&Następnie ustaw właściwości strony"_pl};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit QuickStart(Program& program);
};

// Asks, writes the skeleton and its two META tags, and goes on to the properties of the page when that is wanted.
void StartPage(Program& program);

}  // namespace morlan
