// The dialog of an applet, the APPLET tag.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

// The fields as they go into the document.
struct ApletValues {
  std::string code{}, codebase{}, name{}, title{}, align{}, width{}, height{};
};
// The attributes alone, each with a blank in front.
std::string ApletText(const ApletValues& values);

struct Aplet : ServerDialog {
  TextBox code{*this, "code"};
  Button codeFile{*this, "codeFile", "..."};
  TextBox codebase{*this, "codebase"}, name_{*this, "name_"}, title{*this, "title"};
  ComboBox align{*this, "align"};
  TextBox width_{*this, "width_"}, height_{*this, "height_"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Aplet(Program& program);
  void Read(std::string_view tag);
  ApletValues Values() const;
  std::string Result() const override { return ApletText(Values()); }

 private:
  void SetUpToolTips();
};

}  // namespace morlan
