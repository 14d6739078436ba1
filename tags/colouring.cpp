#include "tags/colouring.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/defs.h"
#include "core/document.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/gaptext.h"

namespace morlan {
namespace {

constexpr std::string_view kDocumentStatus = "Kolorowanie dokumentu...";
constexpr std::string_view kBlockStatus = "Kolorowanie bloku";

// Collects the new styles of a stretch that grows token by token.
class PaintedStretch {
 public:
  PaintedStretch(const MlnEditor& editor, std::size_t begin) : editor_(editor), begin_(begin) {}

  void Paint(const GapText& text, const ColourToken& token, const ColourStyles& colours) {
    const std::size_t known = styles_.size(), wanted = token.end - begin_;
    styles_.resize(wanted);
    editor_.CopyStyles(begin_ + known, wanted - known, styles_.data() + known);
    std::string copy;
    PaintToken(text.Between(token.begin, token.end, copy), token.isComment, colours, styles_.data() + (token.begin - begin_));
  }
  const std::vector<MlnEditor::Style>& Styles() const { return styles_; }

 private:
  const MlnEditor& editor_;
  std::size_t begin_;
  std::vector<MlnEditor::Style> styles_;
};

// Offsets from 0. The first token counts even when it begins beyond `last`.
void PaintBlock(MlnEditor& editor, const ColourStyles& colours, std::size_t from, std::size_t last) {
  const GapText text(editor);
  ColourToken token;
  if (FindToken(text, from, token) != TokenSearch::Found) return;
  const std::size_t begin = token.begin;
  PaintedStretch stretch(editor, begin);
  do {
    stretch.Paint(text, token, colours);
  } while (FindToken(text, token.end, token) == TokenSearch::Found && token.begin <= last);
  editor.SetStyles(begin, stretch.Styles());
}

}  // namespace

ColourStyles ColourStylesOf(const Program& program, MlnEditor& editor) {
  const TagState& state = program.tagState;
  return {editor.StyleOf(state.TagsColor), editor.StyleOf(state.LinksColor), editor.StyleOf(state.CommentsColor),
          static_cast<MlnEditor::Style>(MlnEditor::kPlain | MlnEditor::kBold)};
}

void ColorizeDocument(Program& program, MlnEditor& editor) {
  TagState& state = program.tagState;
  state.ColorizeRunning = state.UseColorize;
  if (!state.UseColorize) return;
  state.ColorizeEnabled = false;
  ShowBusy(program, kDocumentStatus);
  const std::string& text = editor.Text();
  std::vector<MlnEditor::Style> styles(text.size());
  editor.CopyStyles(0, styles.size(), styles.data());
  PaintText(text, ColourStylesOf(program, editor), styles.data(), [&program](int percent) {
    ShowBusy(program, Concat({kDocumentStatus, NumberText(std::int64_t{percent}), "%"}));
  });
  editor.SetStyles(0, styles);
  state.ColorizeRunning = false;
  ShowReady(program);
  state.ColorizeEnabled = true;
}

void ColorizeBlock(Program& program, MlnEditor& editor, std::ptrdiff_t from, std::ptrdiff_t to) {
  TagState& state = program.tagState;
  if (!state.UseColorize) return;
  ShowBusy(program, kBlockStatus);
  const std::size_t first = from < 1 ? 1 : static_cast<std::size_t>(from);
  const std::size_t last = to < 1 ? editor.Length() : static_cast<std::size_t>(to);
  if (last != 0) PaintBlock(editor, ColourStylesOf(program, editor), first - 1, last - 1);
  state.ColorizeRunning = false;
  ShowReady(program);
  state.ColorizeEnabled = true;
}

void LoadColours(Program& program) {
  TagState& state = program.tagState;
  Settings settings(program.MainIni);
  state.UseColorize = settings.Flag(Setting::UseColorize);
  state.GlobalColor = settings.ColourOf(Setting::GlobalColor);
  state.TagsColor = settings.ColourOf(Setting::TagsColor);
  state.LinksColor = settings.ColourOf(Setting::LinksColor);
  state.CommentsColor = settings.ColourOf(Setting::CommentsColor);
  for (const auto& document : program.documents) {
    document->EditedText.UseColorise = state.UseColorize;
    document->TakeColours();
  }
}

void RecolourAll(Program& program) {
  TagState& state = program.tagState;
  if (!state.ColoursChanged || !state.UseColorize) return;
  state.ColoursChanged = false;
  for (const auto& document : program.documents)
    if (document->EditedText.UseColorise) ColorizeDocument(program, document->EditedText);
}

}  // namespace morlan
