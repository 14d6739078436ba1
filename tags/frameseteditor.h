// The dialog of a set of frames, the FRAMESET tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

struct FrameSetValues {
  std::string cols{}, rows{};  // widths and heights, parted by commas
  int lnBorder = -1;           // 0 with a border, 1 without one; any other row is not written
  std::string spacing{}, border{};
};
std::string FrameSetText(const FrameSetValues& values);

struct FrameSet : Form {
  TextBox cols{*this, "cols"}, rows{*this, "rows"};
  ComboBox lnBorder{*this, "lnBorder", ComboBox::Style::ListOnly};
  TextBox spacing{*this, "spacing"}, border{*this, "border"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit FrameSet(Program& program);
  void Read(std::string_view tag);
  FrameSetValues Values() const;
  std::string Text() const;  // the tag, with a word in the status line while it is made

 private:
  void SetUpToolTips();
  Program& program_;
};

void EditFrameSet(Program& program);
void InsertFrameSet(Program& program);

}  // namespace morlan
