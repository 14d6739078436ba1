// The dialog of a frame within the text, the IFRAME tag.
#pragma once

#include <string>
#include <string_view>

#include "tags/tagdialog.h"

namespace morlan {

// The fields as they go into the document.
struct IFrameValues {
  std::string src{}, name{}, height{}, width{}, marginwidth{}, marginheight{};
  bool frameBorder = false;
  int scrolling = -1;  // a row of FrameScrolling
  int align = -1;      // 0 top, 1 middle, 2 bottom, 3 left, 4 right
};
// The opening tag, SRC and FRAMEBORDER in it always. Numbers are written when they are above zero.
std::string IFrameText(const IFrameValues& values);

struct IFrame : TagDialog {
  TextBox src{*this, "src"};
  Button srcFile{*this, "srcFile", "..."};
  TextBox name_{*this, "name_"}, height_{*this, "height_"}, width_{*this, "width_"};
  TextBox marginwidth{*this, "marginwidth"}, marginheight{*this, "marginheight"};
  ComboBox align{*this, "align", ComboBox::Style::ListOnly}, scrolling{*this, "scrolling", ComboBox::Style::ListOnly};
  CheckBox FrameBorder{*this, "FrameBorder", "Otocz &ramkę linią"_pl};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit IFrame(Program& program);
  void Read(std::string_view tag) override;
  IFrameValues Values() const;
  std::string Text() const override { return IFrameText(Values()); }
  std::string_view Closing() const override { return "</IFRAME>"; }

 private:
  void SetUpToolTips();
};

// Writes the tag under the caret anew, and puts a new pair of tags round the selection.
void EditIFrame(Program& program);
void InsertIFrame(Program& program);

}  // namespace morlan
