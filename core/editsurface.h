// The text of a document with its selection and the colour of each character: the model that a view paints from.
// Offsets count from 0; a CR LF is two characters. Lines end in CR LF, a lone LF or a lone CR.
//
// The text lies in one block with a gap where the last edit took place, so that typing moves no bytes. Text() closes the
// gap, which costs one move of the text behind it; code that runs on every key reads through At, Slice and the line
// functions instead. The style of a character is one byte beside it: the number of its colour in a small palette and
// a bit for bold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/gapbuffer.h"
#include "core/linestarts.h"
#include "platform/colour.h"
#include "platform/keys.h"
#include "platform/windows.h"

namespace morlan {

class MlnEditor;

class EditorView {
 public:
  virtual ~EditorView() = default;
  // Characters were replaced: `removed` characters at `offset` gave way to `inserted` ones. `firstLine` counts from 0;
  // the line counts tell how many line ends went and came.
  virtual void TextReplaced(std::size_t offset, std::size_t removed, std::size_t inserted, std::size_t firstLine, std::size_t linesRemoved,
                            std::size_t linesInserted) = 0;
  virtual void TextReset() = 0;  // the whole text was set
  virtual void StylesChanged(std::size_t offset, std::size_t length) = 0;
  virtual void SelectionChanged() = 0;
  virtual void PropertiesChanged() = 0;  // font, wrapping, colours of the control
  virtual void FocusWanted() = 0;
};

// What only a view knows: the rows of the painted text.
class RowLayout {
 public:
  virtual ~RowLayout() = default;
  virtual std::size_t RowStart(std::size_t offset) = 0;  // offset of the first character of the row that holds `offset`
  virtual std::size_t RowEnd(std::size_t offset) = 0;    // behind its last character, in front of a line end
  // The offset that lies `rows` rows below (or above, when negative) at the horizontal place `x`.
  virtual std::size_t OffsetInRow(std::size_t offset, std::ptrdiff_t rows, double x) = 0;
  virtual double HorizontalPlace(std::size_t offset) = 0;
  virtual std::size_t RowsInPage() = 0;  // at least 1
};

class MlnEditor {
 public:
  // A style: bits 0 to 6 number a colour of the palette, bit 7 is bold. Style 0 is plain text in TextColor.
  using Style = std::uint8_t;
  static constexpr Style kPlain = 0;
  static constexpr Style kBold = 0x80;

  MlnEditor();
  ~MlnEditor();
  MlnEditor(const MlnEditor&) = delete;
  MlnEditor& operator=(const MlnEditor&) = delete;

  // --- the text
  const std::string& Text() const { return text_.Whole(); }
  void SetText(std::string text);  // no edit: Modified becomes false, the caret 0, all characters plain
  std::size_t Length() const { return text_.Size(); }
  char At(std::size_t offset) const { return text_.At(offset); }
  std::string Slice(std::size_t offset, std::size_t length) const;
  // A number that grows with every change of the text.
  std::uint64_t Revision() const { return revision_; }
  // The two stretches of text in front of and behind the gap.
  std::string_view FrontText() const { return {text_.Front(), text_.GapStart()}; }
  std::string_view BackText() const { return {text_.Back(), text_.Size() - text_.GapStart()}; }

  // --- the selection; both are cut to the text
  std::size_t SelStart() const { return selStart_; }
  std::size_t SelLength() const { return selLength_; }
  void SetSelStart(std::size_t offset);  // leaves SelLength alone, as far as the text reaches
  void SetSelLength(std::size_t length);
  void Select(std::size_t start, std::size_t length);
  std::string SelText() const { return Slice(selStart_, selLength_); }
  // Replaces the selection, leaves the caret behind the new text, sets Modified, raises OnChange. Nothing in the place
  // of nothing is no change.
  void SetSelText(std::string_view text);
  // The end of the selection that moves with the keys, and the one that stays.
  std::size_t Caret() const { return caretAtStart_ ? selStart_ : selStart_ + selLength_; }
  std::size_t Anchor() const { return caretAtStart_ ? selStart_ + selLength_ : selStart_; }
  void SelectFrom(std::size_t anchor, std::size_t caret);
  void SelectWord(std::size_t offset);  // the word, the blanks or the signs that lie there
  void SelectLine(std::size_t line);    // with its line end

  // --- colours
  void SetSelColor(Colour colour);
  void SetSelBold(bool bold);
  // The palette number of a colour; makes a new entry where there is room, else answers with plain. TextColor is plain.
  Style StyleOf(Colour colour);
  void SetStyle(std::size_t offset, std::size_t length, Style style);
  // Sets the styles of a whole stretch at once; `styles` holds one byte a character.
  void SetStyles(std::size_t offset, const std::vector<Style>& styles);
  Style StyleAt(std::size_t offset) const { return styles_.At(offset); }
  // The styles of a stretch, which lies within the text, into one byte a character.
  void CopyStyles(std::size_t offset, std::size_t length, Style* target) const { styles_.CopyTo(target, offset, length); }
  Colour ColourOfStyle(Style style) const;

  // --- lines, from 0
  std::size_t LineCount() const { return lines_.Count(); }
  std::size_t LineFromChar(std::size_t offset) const { return lines_.LineOf(offset); }
  std::size_t LineIndex(std::size_t line) const;  // offset of its first character; the text's length behind the last line
  std::size_t LineEnd(std::size_t line) const;    // in front of its line end

  // --- keys: what the control itself does with a key, behind the program's handlers
  // False when the key means nothing to the control. The clipboard keys are not among these.
  bool PerformKey(const KeyPress& press, RowLayout* layout);
  void PerformCharacter(char character);  // types over the selection; 13 is a line end
  // What Enter types at SelStart: CR LF, then the blanks at the front of the line where SetupCarret is on, then "<LI>"
  // behind a list item where ExtendLI is on.
  std::string TextOfEnter() const;
  // The characters that Backspace and Delete take at an offset: two at CR LF, none at the ends of the text.
  std::size_t WidthBefore(std::size_t offset) const;
  std::size_t WidthBehind(std::size_t offset) const;

  // The name of the tag in which the caret stands, up to the caret, with the blanks in front of it; empty outside a tag.
  std::string CurrentTag() const;

  // --- properties
  bool Modified = false;
  bool UseColorise = true;
  bool SetupCarret = true;
  bool ExtendLI = true;
  bool Enabled = true, Locked = false, Visible = true;
  bool WordWrap() const { return wordWrap_; }
  void SetWordWrap(bool wrap);
  const FontChoice& Font() const { return font_; }
  void SetFont(const FontChoice& font);
  Colour TextColor() const { return textColor_; }
  void SetTextColor(Colour colour);
  Colour TagColor = 0, ParameterColor = 0, CommentColor = 0;
  void SetFocus();

  std::function<void()> OnChange;
  // Where the last change took place, for the colouring of the edited stretch: from 0, the end behind the new text.
  std::size_t EditedFrom() const { return editedFrom_; }
  std::size_t EditedTo() const { return editedTo_; }

  void AttachView(EditorView* view) { view_ = view; }
  EditorView* View() const { return view_; }
  void AttachLayout(RowLayout* layout) { layout_ = layout; }
  RowLayout* AttachedLayout() const { return layout_; }

 private:
  // Replaces characters without raising events.
  LineStarts::Change Replace(std::size_t offset, std::size_t removed, std::string_view inserted);
  void SelectionChanged();
  void MoveCaret(std::size_t caret, bool selecting);
  bool MoveByKey(const KeyPress& press, RowLayout& layout);
  void MoveByRows(std::ptrdiff_t rows, bool selecting, RowLayout& layout);
  void DeleteByKey(bool backwards);
  bool IsLineStart(std::size_t offset) const;

  GapBuffer<std::string> text_;
  GapBuffer<std::vector<Style>> styles_;
  LineStarts lines_;
  std::uint64_t revision_ = 0;
  std::size_t selStart_ = 0, selLength_ = 0;
  bool caretAtStart_ = false;
  double wantedPlace_ = -1;  // the horizontal place that up and down keep; negative when none
  std::vector<Colour> palette_{0};
  FontChoice font_;
  Colour textColor_ = 0;
  bool wordWrap_ = false;
  std::size_t editedFrom_ = 0, editedTo_ = 0;
  EditorView* view_ = nullptr;
  RowLayout* layout_ = nullptr;
};

}  // namespace morlan
