#include "tags/editedcolouring.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "core/defs.h"
#include "core/editsurface.h"
#include "tags/colouring.h"
#include "tags/gaptext.h"

namespace morlan {
namespace {

using Style = MlnEditor::Style;

// How far a plain stretch without any ">" is walked back for a tag that is open there.
constexpr std::size_t kFarthestOpenTag = 16384;

class EditedStretch {
 public:
  EditedStretch(MlnEditor& editor, const ColourStyles& colours, std::size_t from, std::size_t to)
      : editor_(editor), text_(editor), colours_(colours), from_(from), to_(to) {}

  void Colour() {
    begin_ = FindRestart();
    if (begin_ == 0 || IsPlain(begin_ - 1)) begin_ = OpenedComment(begin_);
    SetPainted(Scan());
  }

 private:
  bool IsPlain(std::size_t offset) const { return editor_.StyleAt(offset) == MlnEditor::kPlain; }
  // Attribute values may have the colour of plain text; then only tags and comments tell where the old run stood.
  bool PlainIsOutside() const { return colours_.value != MlnEditor::kPlain; }

  // A place in front of the edit where a run over the whole text stands outside any tag and comment, before and behind
  // the edit: the old colours tell it.
  std::size_t FindRestart() const {
    for (std::size_t i = from_; i-- > 0;) {
      const Style style = editor_.StyleAt(i);
      const char character = text_[i];
      if (character == '>' && (style == colours_.tag || style == MlnEditor::kPlain)) return i + 1;
      if (character == '<' && style != MlnEditor::kPlain && (i == 0 || IsPlain(i - 1))) return i;
      if (style == MlnEditor::kPlain && PlainIsOutside() && from_ - i > kFarthestOpenTag) return i;
    }
    return 0;
  }

  // Where the edit closes a comment that was open, and so unpainted, until now: its beginning; else `restart`.
  std::size_t OpenedComment(std::size_t restart) const {
    if (!PlainIsOutside() || !MakesCommentEnd()) return restart;
    std::size_t begin = GapText::npos;
    for (std::size_t i = text_.FindBackwards('<', restart); i != GapText::npos; i = text_.FindBackwards('<', i))
      if (IsPlain(i) && OpensComment(text_, i)) begin = i;
    ColourToken token;
    if (begin == GapText::npos || FindToken(text_, begin, token) != TokenSearch::Found) return restart;
    return token.end + 1 >= from_ ? begin : restart;
  }

  bool MakesCommentEnd() const {
    for (std::size_t mark = text_.find('>', from_); mark <= to_; mark = text_.find('>', mark + 1))
      if (mark != 0 && text_[mark - 1] == '-') return true;
    return false;
  }

  // Paints from the restart on until the run is in step with the old colours behind the edit; returns that place.
  std::size_t Scan() {
    ColourToken token;
    std::size_t at = begin_;
    for (;;) {
      const TokenSearch search = FindToken(text_, at, token);
      const std::size_t gapEnd = search == TokenSearch::NoMore ? text_.size() : token.begin;
      const std::size_t stop = InStepInGap(std::max(at, to_), gapEnd, search);
      if (stop != GapText::npos) return stop;
      if (search == TokenSearch::NoMore) return text_.size();
      if (search == TokenSearch::Unclosed) return EndOfOldToken(std::max(token.begin, to_));
      PaintToken(token);
      if (InStepBehind(token)) return token.end;
      at = token.end;
    }
  }

  // A plain character in a gap between tokens, behind the edit. If the next "<" is plain too, the old run never came here.
  std::size_t InStepInGap(std::size_t from, std::size_t gapEnd, TokenSearch search) const {
    if (!PlainIsOutside()) return GapText::npos;
    if (search == TokenSearch::Found && IsPlain(gapEnd)) return GapText::npos;
    for (std::size_t i = from; i < gapEnd; ++i)
      if (IsPlain(i)) return i;
    return GapText::npos;
  }

  // A tag ends at a ">" that ended a tag before; a comment at a "->" that ended one.
  bool InStepBehind(const ColourToken& token) const {
    const std::size_t last = token.end - 1;
    if (last < to_) return false;
    if (!token.isComment) return editor_.StyleAt(last) == colours_.tag;
    return editor_.StyleAt(last) == colours_.comment && IsPlain(token.end);
  }

  std::size_t EndOfOldToken(std::size_t offset) const {
    while (offset < text_.size() && !IsPlain(offset)) ++offset;
    return offset;
  }

  void PaintToken(const ColourToken& token) {
    styles_.resize(token.end - begin_, MlnEditor::kPlain);
    std::string copy;
    morlan::PaintToken(text_.Between(token.begin, token.end, copy), token.isComment, colours_, styles_.data() + (token.begin - begin_));
  }

  // Hands over what has really changed, so that no more is painted anew on the screen.
  void SetPainted(std::size_t end) {
    styles_.resize(end - begin_, MlnEditor::kPlain);
    std::vector<Style> old(styles_.size());
    editor_.CopyStyles(begin_, old.size(), old.data());
    const auto first = std::mismatch(styles_.begin(), styles_.end(), old.begin()).first;
    if (first == styles_.end()) return;
    const auto last = std::mismatch(styles_.rbegin(), styles_.rend(), old.rbegin()).first.base();
    const auto offset = begin_ + static_cast<std::size_t>(first - styles_.begin());
    editor_.SetStyles(offset, std::vector<Style>(first, last));
  }

  MlnEditor& editor_;
  const GapText text_;
  const ColourStyles colours_;
  const std::size_t from_, to_;
  std::size_t begin_ = 0;
  std::vector<Style> styles_;
};

// Colours of tags and comments that look alike, or like plain text, do not tell where a tag ends.
bool TellsTokens(const ColourStyles& colours) {
  return colours.tag != MlnEditor::kPlain && colours.comment != MlnEditor::kPlain && colours.tag != colours.comment;
}

void PaintWhole(MlnEditor& editor, const ColourStyles& colours) {
  std::vector<Style> styles(editor.Length(), MlnEditor::kPlain);
  PaintText(editor.Text(), colours, styles.data());
  editor.SetStyles(0, styles);
}

}  // namespace

void ColourEdited(MlnEditor& editor, const ColourStyles& colours, std::size_t from, std::size_t to) {
  if (TellsTokens(colours))
    EditedStretch(editor, colours, std::min(from, editor.Length()), std::min(to, editor.Length())).Colour();
  else
    PaintWhole(editor, colours);
}

void ColourEdited(Program& program, MlnEditor& editor, std::size_t from, std::size_t to) {
  if (program.tagState.UseColorize && editor.UseColorise) ColourEdited(editor, ColourStylesOf(program, editor), from, to);
}

}  // namespace morlan
