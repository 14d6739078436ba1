#include "tags/comentseditor.h"

#include "core/defs.h"
#include "core/editsurface.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

constexpr std::string_view kOpen = "<!--", kClose = "-->";

}  // namespace

coments::coments(Program&) : Form("coments", "Komentarz") {
  SetUpFieldButtons(*this, Command2, Command1, comenttext);
  comenttext.WidthInCharacters = 48;
  comenttext.SetToolTip("Tekst, którego przeglądarka nie pokaże"_pl);
  layout = layout::Rows(layout::Field("&Tekst", comenttext), layout::ButtonRow(Command2, Command1));
}

void InsertComment(Program& program) {
  if (program.ActiveEditor->SelLength() > 0) return InsertPair(program, kOpen, kClose);
  coments& form = program.forms.Get<coments>();
  ShowForNew(program, form);
  if (!form.comenttext.Text().empty()) InsertPair(program, Concat({kOpen, form.comenttext.Text()}), kClose);
}

}  // namespace morlan
