#include "tags/metatags.h"

#include <algorithm>
#include <optional>

#include "core/defs.h"
#include "core/editsurface.h"
#include "core/text.h"
#include "tags/insertcommands.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kFarthestOpening = 10;

// The name that a META tag carries, in lower case.
std::string MetaNameOf(std::string_view tag) {
  const std::string name = GetTagParam(tag, "NAME");
  return LowerCase(name.empty() ? GetTagParam(tag, "HTTP-EQUIV") : name);
}

// Offset of the "<" at most ten characters in front of a hit; without one the character behind the hit's first.
std::size_t OpeningNear(std::string_view text, std::size_t hit) {
  for (std::size_t back = 1; back <= kFarthestOpening && back <= hit; ++back)
    if (text[hit - back] == '<') return hit - back;
  return hit + 1;
}

// The first ">" at or behind offsets that only grow, each character being looked at once.
class ClosingMarks {
 public:
  explicit ClosingMarks(std::string_view text) : text_(text) {}
  std::size_t Behind(std::size_t offset) {
    if (!known_ || (mark_ != kNone && mark_ < offset)) mark_ = text_.find('>', offset);
    known_ = true;
    return mark_;
  }

 private:
  std::string_view text_;
  std::size_t mark_ = kNone;
  bool known_ = false;
};

// The text of the first tag with a name. `find` gives the position of the next hit of the word, or 0.
template <class FindWord>
std::optional<std::string_view> FindNamedTag(std::string_view text, std::string_view name, FindWord find) {
  const std::string wanted = LowerCase(name);
  ClosingMarks marks(text);
  for (std::size_t position = find(1); position != 0; position = find(position + 1)) {
    const std::size_t start = OpeningNear(text, position - 1);
    const std::size_t end = marks.Behind(position - 1);
    if (end == kNone) return std::nullopt;
    const std::string_view tag = start < end ? text.substr(start, end - start) : std::string_view();
    if (MetaNameOf(tag) == wanted) return tag;
  }
  return std::nullopt;
}

// A change of a text, at an offset from 0.
struct Change {
  std::size_t offset = 0, removed = 0;
  std::string inserted;
};

// The META tag of a name, with its ">", as a change that takes it out. It is found from the word "meta" in it, in any
// letter case; a word that lies in no tag does not count.
std::optional<Change> FindMetaTag(std::string_view text, std::string_view name) {
  const std::string wanted = LowerCase(name);
  ClosingMarks marks(text);
  std::size_t seen = 0;
  for (std::size_t position = FindNoCase(text, "meta"); position != 0; position = FindNoCase(text, "meta", position + 1)) {
    const std::size_t hit = position - 1;
    const std::size_t nearest = text.substr(seen, hit - seen).rfind('<');
    const std::size_t open = nearest == kNone ? kNone : seen + nearest;
    seen = hit;
    if (open == kNone) continue;  // outside any tag, or in the tag that was read last
    const std::size_t close = marks.Behind(open);
    if (close == kNone) return std::nullopt;
    if (close > hit && MetaNameOf(text.substr(open, close - open)) == wanted) return Change{open, close + 1 - open, ""};
  }
  return std::nullopt;
}

// Offset behind the first tag whose text begins so and whose name is no longer.
std::size_t BehindTag(std::string_view text, std::string_view start) {
  ClosingMarks marks(text);
  for (std::size_t position = FindNoCase(text, start); position != 0; position = FindNoCase(text, start, position + 1)) {
    const std::size_t behindName = position - 1 + start.size();
    const char next = behindName < text.size() ? text[behindName] : ' ';
    const bool longerName = next != '>' && static_cast<unsigned char>(next) > ' ';
    const std::size_t close = longerName ? kNone : marks.Behind(behindName);
    if (close != kNone) return close + 1;
  }
  return kNone;
}

std::string MetaText(std::string_view attribute, std::string_view name, std::string_view content) {
  return Concat({"<META ", attribute, "=", Quote, name, Quote, " CONTENT=", Quote, content, Quote, ">"});
}

constexpr std::string_view kHtmlOpen = "<HTML>\r\n", kHtmlClose = "\r\n</HTML>";

// Where a new META tag goes; nothing when the text has no "<html>" either.
std::optional<Change> PlaceOfNewMeta(std::string_view text, std::string_view meta) {
  const std::size_t behindHead = BehindTag(text, "<head");
  if (behindHead != kNone) return Change{behindHead, 0, Concat({CrLf, " ", meta})};
  const std::size_t behindHtml = BehindTag(text, "<html");
  if (behindHtml != kNone) return Change{behindHtml, 0, Concat({"<HEAD>", CrLf, " ", meta, CrLf, "</HEAD>"})};
  return std::nullopt;
}

// An offset that stays with the text beside it when text in front of it changes.
std::size_t Moved(std::size_t offset, const Change& change) {
  if (offset < change.offset + change.removed) return offset;
  return offset - change.removed + change.inserted.size();
}

void InsertAt(Program& program, const Change& change) {
  program.ActiveEditor->Select(change.offset, 0);
  InsertPair(program, change.inserted, "");
}

}  // namespace

std::string GetMetaContentOfText(std::string_view text, std::string_view name) {
  const auto tag = FindNamedTag(text, name, [text](std::size_t from) { return FindNoCase(text, "meta ", from); });
  return tag ? LowerCase(GetTagTextParam(*tag, "content=")) : std::string();
}

std::string GetUpperCaseMetaContent(std::string_view text, std::string_view name) {
  const auto tag = FindNamedTag(text, name, [text](std::size_t from) { return Find(text, "META", from); });
  return tag ? GetTagTextParam(*tag, "CONTENT") : std::string();
}

std::string GetMetaContent(const Program& program, std::string_view name) {
  return program.ActiveEditor ? GetUpperCaseMetaContent(program.ActiveEditor->Text(), name) : std::string();
}

std::string SetMetaInText(std::string text, std::string_view attribute, std::string_view name, std::string_view content) {
  const std::string meta = MetaText(attribute, name, content);
  if (const auto tag = FindMetaTag(text, name)) return text.replace(tag->offset, tag->removed, meta);
  auto place = PlaceOfNewMeta(text, meta);
  if (!place) {
    text = Concat({kHtmlOpen, text, kHtmlClose});
    place = PlaceOfNewMeta(text, meta);
  }
  return text.insert(place->offset, place->inserted);
}

void SetMeta(Program& program, std::string_view attribute, std::string_view name, std::string_view content) {
  if (!program.ActiveDocument) return;
  MlnEditor& editor = *program.ActiveEditor;
  const std::string meta = MetaText(attribute, name, content);
  std::size_t caret = editor.SelStart();
  if (auto tag = FindMetaTag(editor.Text(), name)) {
    tag->inserted = meta;
    ReplaceStretch(program, tag->offset, tag->removed, tag->inserted);
    return editor.Select(Moved(caret, *tag), 0);
  }
  auto place = PlaceOfNewMeta(editor.Text(), meta);
  if (!place) {
    editor.Select(0, editor.Length());
    InsertPair(program, kHtmlOpen, kHtmlClose);
    caret += kHtmlOpen.size();
    place = PlaceOfNewMeta(editor.Text(), meta);
  }
  InsertAt(program, *place);
  editor.Select(Moved(caret, *place), 0);
}

}  // namespace morlan
