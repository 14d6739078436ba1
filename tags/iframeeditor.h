// The dialog of a frame within the text, the IFRAME tag.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

struct IFrameValues {
  std::string src{}, name{}, height{}, width{}, marginwidth{}, marginheight{};
  bool frameBorder = false;
  int scrolling = -1;  // a row of FrameScrolling
  int align = -1;      // 0 top, 1 middle, 2 bottom, 3 left, 4 right
};
std::string IFrameText(const IFrameValues& values);

struct IFrame : Form {
  TextBox src{*this, "src"};
  Button srcFile{*this, "srcFile", "..."};
  TextBox name_{*this, "name_"}, height_{*this, "height_"}, width_{*this, "width_"};
  TextBox marginwidth{*this, "marginwidth"}, marginheight{*this, "marginheight"};
  ComboBox align{*this, "align", ComboBox::Style::ListOnly}, scrolling{*this, "scrolling", ComboBox::Style::ListOnly};
  CheckBox FrameBorder{*this, "FrameBorder", "Otocz &ramkę linią"_pl};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit IFrame(Program& program);
  void Read(std::string_view tag);
  IFrameValues Values() const;
  std::string Text() const;  // the tag, with a word in the status line while it is made

 private:
  void SetUpToolTips();
  Program& program_;
};

void EditIFrame(Program& program);
void InsertIFrame(Program& program);

}  // namespace morlan
