// The dialog of a letter that the server sends, the CFMAIL tag.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

// The fields as they go into the document.
struct CfMailValues {
  std::string to{}, cc{}, from{}, query{}, subject{};
};
// The attributes alone, each with a blank in front.
std::string CfMailText(const CfMailValues& values);

struct CFMAIL : ServerDialog {
  ComboBox MailTo{*this, "MailTo"};
  TextBox cc_{*this, "cc_"};
  ComboBox MailFrom{*this, "MailFrom"};
  TextBox Subject{*this, "Subject"};
  ComboBox MailQuery{*this, "MailQuery"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit CFMAIL(Program& program);
  void Read(std::string_view tag);
  CfMailValues Values() const;
  std::string Result() const override { return CfMailText(Values()); }
};

}  // namespace morlan
