#include "tags/frameseteditor.h"

#include <array>

#include "core/defs.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// In the order of the rows of lnBorder.
constexpr std::array<std::string_view, 2> kBorderWords = {"YES", "NO"};

}  // namespace

std::string FrameSetText(const FrameSetValues& values) {
  TagText tag("<FRAMESET");
  tag.QuotedIfText(" COLS=", values.cols).QuotedIfText(" ROWS=", values.rows);
  tag.QuotedIfText(" FRAMEBORDER=", ItemOfRow(kBorderWords, values.lnBorder));
  tag.QuotedIfPositive(" FRAMESPACING=", values.spacing).QuotedIfPositive(" BORDER=", values.border);
  return tag.Close();
}

FrameSet::FrameSet(Program& program) : TagDialog(program, "FrameSet", "Zestaw ramek", kFrameStatus) {
  FillChoices(lnBorder, {"TAK", "NIE"});
  SetUp(Command2, Command1);
  SetUpToolTips();
  cols.WidthInCharacters = rows.WidthInCharacters = 32;
  lnBorder.WidthInCharacters = spacing.WidthInCharacters = border.WidthInCharacters = 8;
  layout = layout::Rows(layout::Field("&Kolumn", cols), layout::Field("&Wierszy", rows), layout::Field("O&bramowanie", lnBorder),
                        layout::Field("Odległość &ramek"_pl, spacing), layout::Field("&Grubość ramki"_pl, border),
                        layout::ButtonRow(Command2, Command1));
}

void FrameSet::SetUpToolTips() {
  cols.SetToolTip("Szerokości kolumn po przecinku: w punktach, w procentach albo * dla reszty okna, na przykład 200,*"_pl);
  rows.SetToolTip("Wysokości wierszy po przecinku: w punktach, w procentach albo * dla reszty okna, na przykład 20%,80%"_pl);
  lnBorder.SetToolTip("Czy ramki zestawu mają obramowanie"_pl);
  spacing.SetToolTip("Wolne miejsce między ramkami w punktach"_pl);
  border.SetToolTip("Grubość obramowania ramek w punktach"_pl);
}

void FrameSet::Read(std::string_view tag) {
  cols.SetText(GetTagTextParam(tag, "COLS"));
  rows.SetText(GetTagTextParam(tag, "ROWS"));
  spacing.SetText(GetTagParam(tag, "FRAMESPACING"));
  border.SetText(GetTagParam(tag, "BORDER"));
  lnBorder.SetListIndex(RowOfItem(kBorderWords, GetTagParam(tag, "FRAMEBORDER")));
}

FrameSetValues FrameSet::Values() const {
  return {.cols = cols.Text(), .rows = rows.Text(), .lnBorder = lnBorder.ListIndex(), .spacing = spacing.Text(), .border = border.Text()};
}

void EditFrameSet(Program& program) { program.forms.Get<FrameSet>().Edit(); }

void InsertFrameSet(Program& program) { program.forms.Get<FrameSet>().Insert(); }

}  // namespace morlan
