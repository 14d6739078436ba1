// The dialog of a frame, the FRAME tag.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "tags/tagdialog.h"

namespace morlan {

// The words of SCROLLING, in the order of the rows of the lists "scrolling".
inline constexpr std::array<std::string_view, 3> FrameScrolling = {"AUTO", "YES", "NO"};

// The word of FRAMEBORDER, which frames always write.
constexpr std::string_view FrameBorderWord(bool hasBorder) { return hasBorder ? "YES" : "NO"; }

// The fields as they go into the document.
struct FrameValues {
  std::string src{}, name{}, marginwidth{}, marginheight{};
  bool noresize = false, frameBorder = false;
  std::string spacing{};
  int scrolling = -1;  // a row of FrameScrolling
};
// The tag, SRC and FRAMEBORDER in it always. Numbers are written when they are above zero.
std::string FrameText(const FrameValues& values);

// The form is named "Frame", as the kit's control is.
struct FrameTag : TagDialog {
  TextBox src{*this, "src"};
  Button srcFile{*this, "srcFile", "..."};
  TextBox name_{*this, "name_"}, marginwidth{*this, "marginwidth"}, marginheight{*this, "marginheight"}, spacing_{*this, "spacing_"};
  ComboBox scrolling{*this, "scrolling", ComboBox::Style::ListOnly};
  CheckBox noresize{*this, "noresize", "&Nie zmieniaj rozmiaru ramki"}, FrameBorder{*this, "FrameBorder", "&Rozdziel ramki linią"_pl};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit FrameTag(Program& program);
  void Read(std::string_view tag) override;
  FrameValues Values() const;
  std::string Text() const override { return FrameText(Values()); }
  std::string_view Closing() const override { return ""; }

 private:
  void SetUpToolTips();
};

// Writes the tag under the caret anew, and inserts a new one, which has no end.
void EditFrame(Program& program);
void InsertFrame(Program& program);

}  // namespace morlan
