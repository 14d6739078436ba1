#include "tags/symbols.h"

#include "core/defs.h"
#include "core/morlan.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/insertcommands.h"

namespace morlan {
namespace {

constexpr std::string_view kListFile = "Listy\\CharSet.lst";
constexpr std::string_view kKey = "Def=";

// The value under the item of exactly this name, letter case included; empty when there is none.
std::string_view ExactValue(std::string_view store, std::string_view item) {
  const std::size_t name = Find(store, Concat({"[", item, "]"}));
  if (name == 0) return {};
  std::string_view section = store.substr(name - 1 + item.size() + 2);
  section = section.substr(0, section.find('['));
  const std::size_t key = FindNoCase(section, kKey);
  if (key == 0) return {};
  const std::string_view value = section.substr(key - 1 + kKey.size());
  return value.substr(0, value.find('\r'));
}

// A label takes a single "&" for the mark of its accelerator.
std::string LabelText(std::string_view symbol) { return Replaced(symbol, "&", "&&"); }

void ShowChosen(Morlan& frame) { frame.CharsLabel.SetCaption(LabelText(frame.Chars.SelectedRow())); }

}  // namespace

std::string TextOfSymbol(Program& program, std::string_view symbol) {
  if (symbol.empty()) return {};
  const std::string path = Concat({program.ProgramPath, kListFile});
  if (const auto store = program.platform.files.Read(path))
    if (const std::string_view exact = ExactValue(*store, symbol); !exact.empty()) return std::string(exact);
  INIFile store(program.platform.files);
  store.Init(path);
  const std::string stored = store.GetSubItemValue(symbol, "Def");
  return stored.empty() ? std::string(symbol) : stored;
}

void InsertSymbol(Program& program, std::string_view symbol) {
  if (!symbol.empty()) InsertPair(program, TextOfSymbol(program, symbol), "");
}

void ReplaceUserSymbol(Program& program, std::size_t button) {
  Morlan& frame = program.frame();
  ShowBusy(program, "Wskaż symbol..."_pl);
  const auto symbol =
      program.platform.windows.Input("Który symbol z listy symboli który ma zastąpić wskazany?"_pl, "Morlan7", frame.Chars.SelectedRow());
  if (symbol && !symbol->empty()) frame.Chars2[button]->SetCaption(*symbol);
  ShowReady(program);
}

void RegisterSymbols(Program& program) {
  Morlan& frame = program.frame();
  frame.Chars.OnClick = [&frame] { ShowChosen(frame); };
  frame.Chars.OnDblClick = [&program, &frame] { InsertSymbol(program, frame.Chars.SelectedRow()); };
  for (std::size_t i = 0; i < frame.Chars2.size(); ++i) {
    Button& button = *frame.Chars2[i];
    button.SetToolTip("Wstawia symbol; prawy przycisk myszy zmienia go");
    button.OnClick = [&program, &button, i] {
      button.Caption().empty() ? ReplaceUserSymbol(program, i) : InsertSymbol(program, button.Caption());
    };
    button.OnRightClick = [&program, i] { ReplaceUserSymbol(program, i); };
    button.OnKeyDown = [&program, i](KeyPress& press) {
      if (press.code != key::kMenu) return;
      press.code = 0;
      ReplaceUserSymbol(program, i);
    };
  }
}

}  // namespace morlan
