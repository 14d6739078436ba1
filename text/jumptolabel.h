// The dialog that lists the labels of the active document and takes the caret to one of them.
#pragma once

#include <string_view>
#include <vector>

#include "core/defs.h"
#include "platform/forms/controls.h"
#include "text/labels.h"

namespace morlan {

class JumpToLabel : public Form {
 public:
  explicit JumpToLabel(Program& program);

  ListBox Labels{*this, "Labels"};
  Button Command2{*this, "Command2", "&Ok"};
  Button Command1{*this, "Command1", "&Anuluj"};

 private:
  void Form_Load();
  void Jump();
  Program& program_;
  std::vector<PageLabel> labels_;  // one a row
};

// Selects the tag of a label of the active document, named without "#"; letter case does not count. False when there is
// no such label.
bool GoToLabel(Program& program, std::string_view name);

}  // namespace morlan
