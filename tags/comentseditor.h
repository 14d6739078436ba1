// The dialog of a comment.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// An empty text counts as cancelled.
struct coments : Form {
  TextBox comenttext{*this, "comenttext"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit coments(Program& program);
};

// Makes the selection a comment. Without one, asks for the comment's text; an empty text inserts nothing.
void InsertComment(Program& program);

}  // namespace morlan
