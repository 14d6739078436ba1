// The kinds of controls that forms are made of. "Set..." is the program's change and raises no event; "User..." is the
// user's change, made by a view or a script, and raises the events a person's would. Rows count from 0, -1 is none.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/colour.h"
#include "platform/fontchoice.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"

namespace morlan {

class Label : public Control {
 public:
  Label(Form& owner, std::string_view name, std::string_view caption = "");
};

// A label that looks as edited text does: in a font and a colour, on the ground of the editor.
class TextSample : public Label {
 public:
  using Label::Label;
  const FontChoice& Font() const { return font_; }
  Colour TextColour() const { return colour_; }
  void Show(const FontChoice& font, Colour colour);

 private:
  FontChoice font_;
  Colour colour_ = 0;
};

class Button : public Control {
 public:
  Button(Form& owner, std::string_view name, std::string_view caption);
};

class TextBox : public Control {
 public:
  enum class Lines { One, Many };
  TextBox(Form& owner, std::string_view name, std::string_view text = "", Lines lines = Lines::One);

  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  void UserSets(std::string_view text);
  std::function<void()> OnChange;

  bool IsMultiLine() const { return lines_ == Lines::Many; }
  bool ReadOnly = false;
  std::size_t MaxLength = 0;  // 0: no limit
  int WidthInCharacters = 24;

  std::string ValueText() const override { return text_; }
  bool UserSetsText(std::string_view text) override;

 private:
  std::string text_;
  Lines lines_;
};

// The rows that lists and combo boxes share.
class RowControl : public Control {
 public:
  std::size_t ListCount() const { return rows_.size(); }
  const std::string& List(std::size_t row) const { return rows_[row]; }
  const std::vector<std::string>& Rows() const { return rows_; }
  int ListIndex() const { return index_; }
  // Out of range selects nothing.
  virtual void SetListIndex(int row);
  void AddItem(std::string_view text);
  void AddItems(const std::vector<std::string>& texts);
  void RemoveItem(std::size_t row);
  void SetRow(std::size_t row, std::string_view text);
  virtual void Clear();
  void Sort();                                // without regard to case
  int IndexOf(std::string_view text) const;   // exact; -1 when absent
  int ListFind(std::string_view text) const;  // without regard to case; -1 when absent
  std::string SelectedRow() const;            // empty when nothing is selected
  virtual bool UserSelects(int row);          // false when there is no such row
  std::function<void()> OnChange;             // the user chose another row

 protected:
  using Control::Control;
  std::vector<std::string> rows_;
  int index_ = -1;
};

class ListBox : public RowControl {
 public:
  enum class Selection { Single, Multiple };
  ListBox(Form& owner, std::string_view name, Selection selection = Selection::Single);

  bool IsMultiple() const { return selection_ == Selection::Multiple; }
  bool Selected(std::size_t row) const;
  void SetSelected(std::size_t row, bool selected);
  void UserSelectsInMultiple(std::size_t row, bool selected);
  void Clear() override;
  void SetListIndex(int row) override;
  int HeightInRows = 10;

  std::string ValueText() const override { return SelectedRow(); }
  bool UserSetsText(std::string_view text) override;

 private:
  Selection selection_;
  std::vector<bool> selected_;
};

class ComboBox : public RowControl {
 public:
  enum class Style { Editable, ListOnly };
  ComboBox(Form& owner, std::string_view name, Style style = Style::Editable);

  bool IsEditable() const { return style_ == Style::Editable; }
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);  // a list-only box selects the row of that text
  void UserSets(std::string_view text);
  void Clear() override;
  void SetListIndex(int row) override;
  bool UserSelects(int row) override;
  int WidthInCharacters = 24;

  std::string ValueText() const override { return text_; }
  bool UserSetsText(std::string_view text) override;

 private:
  Style style_;
  std::string text_;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& owner, std::string_view name, std::string_view caption, bool value = false);
  bool Value() const { return value_; }
  void SetValue(bool value);
  void UserSets(bool value);  // raises OnClick
  std::string ValueText() const override { return value_ ? "true" : "false"; }
  bool UserSetsText(std::string_view text) override;

 private:
  bool value_;
};

// One choice of several. Options of one form with the same group exclude each other.
class OptionButton : public Control {
 public:
  OptionButton(Form& owner, std::string_view name, std::string_view caption, std::string_view group = "", bool value = false);
  bool Value() const { return value_; }
  void SetValue(bool value);
  void UserSets();  // switches it on and raises OnClick
  const std::string& Group() const { return group_; }
  // A patch in front of the caption; struck through where there is no colour.
  bool showsSample = false;
  std::optional<Colour> sample;
  std::string ValueText() const override { return value_ ? "true" : "false"; }
  bool UserSetsText(std::string_view text) override;

 private:
  std::string group_;
  bool value_;
};

class SpinButton : public Control {
 public:
  SpinButton(Form& owner, std::string_view name, int value, int smallest, int largest);
  int Value() const { return value_; }
  void SetValue(int value);
  void UserSets(int value);
  int Smallest() const { return smallest_; }
  int Largest() const { return largest_; }
  std::function<void()> OnChange;
  std::string ValueText() const override { return std::to_string(value_); }
  bool UserSetsText(std::string_view text) override;

 private:
  int value_, smallest_, largest_;
};

class Grid : public Control {
 public:
  Grid(Form& owner, std::string_view name, int columns, int rows);
  int Columns() const { return columns_; }
  int RowCount() const { return rows_; }
  void SetSize(int columns, int rows);
  const std::string& Cell(int column, int row) const;
  void SetCell(int column, int row, std::string_view text);
  int Column() const { return column_; }
  int Row() const { return row_; }
  void SetCurrent(int column, int row);
  bool UserSelectsCell(int column, int row);
  void UserSetsCell(std::string_view text);  // the current cell
  bool Editable = true;
  std::vector<std::string> ColumnTitles;
  std::function<void()> OnChange, OnCurrentCell;
  std::string ValueText() const override;
  bool UserSetsText(std::string_view text) override;

 private:
  bool Holds(int column, int row) const { return column >= 0 && column < columns_ && row >= 0 && row < rows_; }
  int columns_, rows_, column_ = 0, row_ = 0;
  std::vector<std::string> cells_;
};

// A strip of tabs; used alone (the list of open documents) or to switch the pages of a form.
class Tabs : public Control {
 public:
  struct Tab {
    std::string key, text, tag;
    int image = 0;  // 0 none, 1 the mark of a modified document
  };
  Tabs(Form& owner, std::string_view name);
  const std::vector<Tab>& All() const { return tabs_; }
  std::size_t Count() const { return tabs_.size(); }
  int IndexOfKey(std::string_view key) const;  // exact; -1 when absent
  void Add(Tab tab);
  void Replace(std::size_t index, Tab tab);
  void Remove(std::size_t index);
  void Clear();
  int Selected() const { return selected_; }
  void Select(int index);
  bool UserSelects(int index);
  std::function<void()> OnChange;
  std::function<void(int index)> OnCloseTab;  // the close mark of a tab, where the view shows one
  std::string ValueText() const override;
  bool UserSetsText(std::string_view text) override;

 private:
  std::vector<Tab> tabs_;
  int selected_ = -1;
};

// A row of buttons addressed by key.
class ToolBar : public Control {
 public:
  struct Item {
    std::string key, toolTip, icon;
    bool enabled = true, visible = true, pressed = false;
  };
  ToolBar(Form& owner, std::string_view name, std::string_view caption = "");
  const std::vector<Item>& Items() const { return items_; }
  void Add(Item item);
  void SetItemVisible(std::string_view key, bool visible);
  void SetItemEnabled(std::string_view key, bool enabled);
  void SetItemPressed(std::string_view key, bool pressed);
  bool HasVisibleItems() const;
  // False when there is no such button, or it is disabled or hidden.
  bool UserPresses(std::string_view key);
  std::function<void(const std::string& key)> OnButtonClick;

 private:
  Item* ItemOf(std::string_view key);
  std::vector<Item> items_;
};

class Frame : public Control {
 public:
  Frame(Form& owner, std::string_view name, std::string_view caption = "");
};

class Panel : public Control {
 public:
  Panel(Form& owner, std::string_view name);
};

// Shows a colour and lets the user choose another. One that is not set shows that no colour was chosen.
class ColourBox : public Control {
 public:
  ColourBox(Form& owner, std::string_view name, std::string_view caption, Colour colour = 0);
  Colour Value() const { return colour_; }
  void SetValue(Colour colour);  // sets the box, too
  bool IsSet() const { return isSet_; }
  void Unset();  // Value() keeps the last colour

 private:
  Colour colour_;
  bool isSet_ = true;
};

// A surface to draw on. Shapes are in pixels of the picture; a view paints them in order.
class Picture : public Control {
 public:
  struct Shape {
    enum class Kind { Line, Rectangle, FilledRectangle, Ellipse, Text } kind = Kind::Line;
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Colour colour = 0;
    std::string text;
  };
  Picture(Form& owner, std::string_view name, int width, int height);
  int Width() const { return width_; }
  int Height() const { return height_; }
  const std::string& File() const { return file_; }  // a picture file shown below the shapes, program's form
  void SetFile(std::string_view path);
  const std::vector<Shape>& Shapes() const { return shapes_; }
  void SetShapes(std::vector<Shape> shapes);
  std::function<void(MouseButton, int x, int y)> OnMouseDown, OnMouseUp, OnMouseMove;

 private:
  int width_, height_;
  std::string file_;
  std::vector<Shape> shapes_;
};

// Ticks while it is enabled; the front end keeps the time.
class Timer : public Control {
 public:
  Timer(Form& owner, std::string_view name, int intervalMilliseconds, bool enabled = true);
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds);
  std::function<void()> OnTimer;

 private:
  int interval_;
};

}  // namespace morlan
