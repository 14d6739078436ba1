// The dialog of a query to a database, the CFQUERY tag.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

// The fields as they go into the document.
struct CfQueryValues {
  std::string dataSource{}, name{};
};
// The attributes alone, each with a blank in front.
std::string CfQueryText(const CfQueryValues& values);

struct CFQUERY : ServerDialog {
  ComboBox text_0{*this, "text_(0)"}, text_1{*this, "text_(1)"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit CFQUERY(Program& program);
  void Read(std::string_view tag);
  CfQueryValues Values() const { return {.dataSource = text_0.Text(), .name = text_1.Text()}; }
  std::string Result() const override { return CfQueryText(Values()); }
};

}  // namespace morlan
