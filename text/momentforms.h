// The dialogs that write today's date or the time at the caret, once or as a stamp that keeps itself up to date.
#pragma once

#include <string>
#include <string_view>

#include "core/defs.h"
#include "platform/forms/controls.h"

namespace morlan {

// What tells the two dialogs apart.
struct MomentKind;

class MomentForm : public Form {
 public:
  MomentForm(Program& program, const MomentKind& kind);

  ComboBox Format_{*this, "Format_"};
  ListBox first_, second_, third_;  // the parts that make a pattern
  Label sample{*this, "TestIt"};
  CheckBox update_;
  Button Command2{*this, "Command2", "&Ok"};
  Button Command1{*this, "Command1", "&Anuluj"};

 private:
  void Form_Load();
  void JoinParts();
  void ShowSample();
  void Insert();

  Program& program_;
  const MomentKind& kind_;
};

class InsertDate : public MomentForm {
 public:
  explicit InsertDate(Program& program);
};

class InsertTime : public MomentForm {
 public:
  explicit InsertTime(Program& program);
};

}  // namespace morlan
