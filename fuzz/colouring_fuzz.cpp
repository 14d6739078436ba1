// Colouring over any bytes. The first three bytes tell an edit of the rest: where, how much goes, and how much of the
// front of the text is inserted. Behind it the colours of the edited text must be those of a whole run, unless a tag or a
// comment is open or was.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/editsurface.h"
#include "tags/colourscan.h"
#include "tags/editedcolouring.h"

namespace {

using Styles = std::vector<morlan::MlnEditor::Style>;
constexpr morlan::ColourStyles kColours = {1, 2, 3, morlan::MlnEditor::kBold};

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

Styles StylesOfRun(std::string_view text) {
  Styles styles(text.size());
  morlan::PaintText(text, kColours, styles.data());
  return styles;
}

bool HasOpenToken(std::string_view text) {
  morlan::ColourToken token;
  for (;;) {
    const morlan::TokenSearch search = morlan::FindToken(text, token.end, token);
    if (search != morlan::TokenSearch::Found) return search == morlan::TokenSearch::Unclosed;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return 0;
  const std::string text(reinterpret_cast<const char*>(data) + 3, size - 3);
  morlan::MlnEditor editor;
  editor.SetText(text);
  editor.SetStyles(0, StylesOfRun(text));

  editor.Select(data[0], data[1]);
  editor.SetSelText(text.substr(0, data[2]));
  morlan::ColourEdited(editor, kColours, editor.EditedFrom(), editor.EditedTo());
  if (HasOpenToken(text) || HasOpenToken(editor.Text())) return 0;
  Styles styles(editor.Length());
  editor.CopyStyles(0, styles.size(), styles.data());
  Require(styles == StylesOfRun(editor.Text()));
  return 0;
}
