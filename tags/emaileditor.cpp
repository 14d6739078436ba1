#include "tags/emaileditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

constexpr std::string_view kAddresses = "Listy\\EMAIL.lst";

}  // namespace

std::string EmailText(std::string_view address) { return TagText("<A").Quoted(" HREF=", Concat({"mailto:", address})).Close(); }

email::email(Program& program) : Form("email", "Adres E-Mail") {
  SetUpFieldButtons(*this, Command2, Command1, emailtext);
  OnLoad = [this, &program] {
    emailtext.Clear();
    LoadComboFromList(program, emailtext, kAddresses);
  };
  Command2.OnClick = [this, &program] {
    RememberInList(program, emailtext, kAddresses);
    Hide();
  };
  emailtext.WidthInCharacters = 36;
  emailtext.SetToolTip("Adres, na który czytelnik wyśle list"_pl);
  layout = layout::Rows(layout::Field("A&dres", emailtext), layout::ButtonRow(Command2, Command1));
}

void InsertEmail(Program& program) {
  email& form = program.forms.Get<email>();
  ShowForNew(program, form);
  if (!form.emailtext.Text().empty()) InsertPair(program, EmailText(form.emailtext.Text()), "</A>");
}

}  // namespace morlan
