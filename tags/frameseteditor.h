// The dialog of a set of frames, the FRAMESET tag.
#pragma once

#include <string>
#include <string_view>

#include "tags/tagdialog.h"

namespace morlan {

// The fields as they go into the document.
struct FrameSetValues {
  std::string cols{}, rows{};  // widths and heights, parted by commas
  int lnBorder = -1;           // 0 with a border, 1 without one; any other row is not written
  std::string spacing{}, border{};
};
// The opening tag. The two numbers are written when they are above zero.
std::string FrameSetText(const FrameSetValues& values);

struct FrameSet : TagDialog {
  TextBox cols{*this, "cols"}, rows{*this, "rows"};
  ComboBox lnBorder{*this, "lnBorder", ComboBox::Style::ListOnly};
  TextBox spacing{*this, "spacing"}, border{*this, "border"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit FrameSet(Program& program);
  void Read(std::string_view tag) override;
  FrameSetValues Values() const;
  std::string Text() const override { return FrameSetText(Values()); }
  std::string_view Closing() const override { return "</FRAMESET>"; }

 private:
  void SetUpToolTips();
};

// Writes the tag under the caret anew, and puts a new pair of tags round the selection.
void EditFrameSet(Program& program);
void InsertFrameSet(Program& program);

}  // namespace morlan
