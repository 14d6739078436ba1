#include "platform/forms/controls.h"

#include <algorithm>
#include <charconv>

#include "platform/lettercase.h"

namespace morlan {
namespace {

bool ReadBoolean(std::string_view text, bool& value) {
  if (text != "true" && text != "false") return false;
  value = text == "true";
  return true;
}

}  // namespace

Label::Label(Form& owner, std::string_view name, std::string_view caption) : Control(owner, name, Kind::Label) { SetCaption(caption); }

void TextSample::Show(const FontChoice& font, Colour colour) {
  font_ = font;
  colour_ = colour;
  Notify(Aspect::Font);
}

Button::Button(Form& owner, std::string_view name, std::string_view caption) : Control(owner, name, Kind::Button) { SetCaption(caption); }
Frame::Frame(Form& owner, std::string_view name, std::string_view caption) : Control(owner, name, Kind::Frame) { SetCaption(caption); }
Panel::Panel(Form& owner, std::string_view name) : Control(owner, name, Kind::Panel) {}

TextBox::TextBox(Form& owner, std::string_view name, std::string_view text, Lines lines)
    : Control(owner, name, Kind::Text), text_(text), lines_(lines) {}

void TextBox::SetText(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  Notify(Aspect::Text);
}

void TextBox::UserSets(std::string_view text) {
  text_ = MaxLength && text.size() > MaxLength ? text.substr(0, MaxLength) : text;
  Notify(Aspect::Text);
  if (OnChange) OnChange();
}

bool TextBox::UserSetsText(std::string_view text) {
  if (!Enabled() || ReadOnly) return false;
  UserSets(text);
  return true;
}

void RowControl::SetListIndex(int row) {
  index_ = row >= 0 && row < static_cast<int>(rows_.size()) ? row : -1;
  Notify(Aspect::Selection);
}

void RowControl::AddItem(std::string_view text) {
  rows_.emplace_back(text);
  Notify(Aspect::Rows);
}

void RowControl::AddItems(const std::vector<std::string>& texts) {
  rows_.insert(rows_.end(), texts.begin(), texts.end());
  Notify(Aspect::Rows);
}

void RowControl::RemoveItem(std::size_t row) {
  if (row >= rows_.size()) return;
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
  if (index_ == static_cast<int>(row))
    index_ = -1;
  else if (index_ > static_cast<int>(row))
    --index_;
  Notify(Aspect::Rows);
}

void RowControl::SetRow(std::size_t row, std::string_view text) {
  if (row >= rows_.size()) return;
  rows_[row] = text;
  Notify(Aspect::Rows);
}

void RowControl::Clear() {
  rows_.clear();
  index_ = -1;
  Notify(Aspect::Rows);
}

void RowControl::Sort() {
  const std::string selected = SelectedRow();
  std::stable_sort(rows_.begin(), rows_.end(), [](const std::string& a, const std::string& b) { return LowerCase(a) < LowerCase(b); });
  index_ = index_ < 0 ? -1 : IndexOf(selected);
  Notify(Aspect::Rows);
}

int RowControl::IndexOf(std::string_view text) const {
  const auto found = std::find(rows_.begin(), rows_.end(), text);
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int RowControl::ListFind(std::string_view text) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const std::string& row) { return EqualNoCase(row, text); });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

std::string RowControl::SelectedRow() const { return index_ < 0 ? std::string() : rows_[static_cast<std::size_t>(index_)]; }

bool RowControl::UserSelects(int row) {
  if (!Enabled() || row < 0 || row >= static_cast<int>(rows_.size())) return false;
  SetListIndex(row);
  if (OnChange) OnChange();
  if (OnClick) OnClick();
  return true;
}

ListBox::ListBox(Form& owner, std::string_view name, Selection selection) : RowControl(owner, name, Kind::List), selection_(selection) {}

bool ListBox::Selected(std::size_t row) const {
  if (selection_ == Selection::Single) return index_ == static_cast<int>(row);
  return row < selected_.size() && selected_[row];
}

void ListBox::SetSelected(std::size_t row, bool selected) {
  if (selection_ == Selection::Single) return SetListIndex(selected ? static_cast<int>(row) : -1);
  if (row >= rows_.size()) return;
  selected_.resize(rows_.size());
  selected_[row] = selected;
  if (selected) index_ = static_cast<int>(row);
  Notify(Aspect::Selection);
}

void ListBox::UserSelectsInMultiple(std::size_t row, bool selected) {
  if (!Enabled() || row >= rows_.size()) return;
  SetSelected(row, selected);
  if (OnChange) OnChange();
  if (OnClick) OnClick();
}

void ListBox::Clear() {
  selected_.clear();
  RowControl::Clear();
}

void ListBox::SetListIndex(int row) {
  if (selection_ == Selection::Multiple) selected_.assign(rows_.size(), false);
  if (selection_ == Selection::Multiple && row >= 0 && row < static_cast<int>(rows_.size()))
    selected_[static_cast<std::size_t>(row)] = true;
  RowControl::SetListIndex(row);
}

bool ListBox::UserSetsText(std::string_view text) { return UserSelects(IndexOf(text)); }

ComboBox::ComboBox(Form& owner, std::string_view name, Style style) : RowControl(owner, name, Kind::Combo), style_(style) {}

void ComboBox::SetText(std::string_view text) {
  index_ = IndexOf(text);
  if (style_ == Style::Editable || index_ >= 0) text_ = text;
  Notify(Aspect::Text);
}

void ComboBox::UserSets(std::string_view text) {
  SetText(text);
  if (OnChange) OnChange();
}

void ComboBox::Clear() {
  if (style_ == Style::ListOnly) text_.clear();
  RowControl::Clear();
}

void ComboBox::SetListIndex(int row) {
  RowControl::SetListIndex(row);
  if (index_ >= 0 || style_ == Style::ListOnly) text_ = SelectedRow();
  Notify(Aspect::Text);
}

bool ComboBox::UserSelects(int row) { return RowControl::UserSelects(row); }

bool ComboBox::UserSetsText(std::string_view text) {
  if (!Enabled()) return false;
  if (style_ == Style::ListOnly) return UserSelects(IndexOf(text));
  UserSets(text);
  return true;
}

CheckBox::CheckBox(Form& owner, std::string_view name, std::string_view caption, bool value)
    : Control(owner, name, Kind::Check), value_(value) {
  SetCaption(caption);
}

void CheckBox::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  Notify(Aspect::Checked);
}

void CheckBox::UserSets(bool value) {
  if (!Enabled() || value_ == value) return;
  SetValue(value);
  if (OnClick) OnClick();
}

bool CheckBox::UserSetsText(std::string_view text) {
  bool value = false;
  if (!Enabled() || !ReadBoolean(text, value)) return false;
  UserSets(value);
  return true;
}

OptionButton::OptionButton(Form& owner, std::string_view name, std::string_view caption, std::string_view group, bool value)
    : Control(owner, name, Kind::Option), group_(group), value_(value) {
  SetCaption(caption);
}

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  if (value)
    for (Control* control : Owner().Controls())
      if (auto* other = dynamic_cast<OptionButton*>(control); other && other != this && other->group_ == group_) other->SetValue(false);
  Notify(Aspect::Checked);
}

void OptionButton::UserSets() {
  if (!Enabled() || value_) return;
  SetValue(true);
  if (OnClick) OnClick();
}

bool OptionButton::UserSetsText(std::string_view text) {
  if (!Enabled() || text != "true") return false;
  UserSets();
  return true;
}

SpinButton::SpinButton(Form& owner, std::string_view name, int value, int smallest, int largest)
    : Control(owner, name, Kind::Spin), value_(value), smallest_(smallest), largest_(largest) {}

void SpinButton::SetValue(int value) {
  value_ = std::clamp(value, smallest_, largest_);
  Notify(Aspect::Text);
}

void SpinButton::UserSets(int value) {
  SetValue(value);
  if (OnChange) OnChange();
}

bool SpinButton::UserSetsText(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (!Enabled() || error != std::errc() || end != text.data() + text.size()) return false;
  UserSets(value);
  return true;
}

Grid::Grid(Form& owner, std::string_view name, int columns, int rows) : Control(owner, name, Kind::Grid), columns_(columns), rows_(rows) {
  cells_.resize(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
}

void Grid::SetSize(int columns, int rows) {
  std::vector<std::string> cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
  for (int row = 0; row < std::min(rows, rows_); ++row)
    for (int column = 0; column < std::min(columns, columns_); ++column)
      cells[static_cast<std::size_t>(row * columns + column)] = Cell(column, row);
  cells_ = std::move(cells);
  columns_ = columns;
  rows_ = rows;
  column_ = std::clamp(column_, 0, std::max(0, columns - 1));
  row_ = std::clamp(row_, 0, std::max(0, rows - 1));
  Notify(Aspect::Cells);
}

const std::string& Grid::Cell(int column, int row) const {
  static const std::string kEmpty;
  return Holds(column, row) ? cells_[static_cast<std::size_t>(row * columns_ + column)] : kEmpty;
}

void Grid::SetCell(int column, int row, std::string_view text) {
  if (!Holds(column, row)) return;
  cells_[static_cast<std::size_t>(row * columns_ + column)] = text;
  Notify(Aspect::Cells);
}

void Grid::SetCurrent(int column, int row) {
  if (!Holds(column, row)) return;
  column_ = column;
  row_ = row;
  Notify(Aspect::Selection);
}

bool Grid::UserSelectsCell(int column, int row) {
  if (!Enabled() || !Holds(column, row)) return false;
  SetCurrent(column, row);
  if (OnCurrentCell) OnCurrentCell();
  return true;
}

void Grid::UserSetsCell(std::string_view text) {
  if (!Enabled() || !Editable) return;
  SetCell(column_, row_, text);
  if (OnChange) OnChange();
}

std::string Grid::ValueText() const { return Cell(column_, row_); }

bool Grid::UserSetsText(std::string_view text) {
  if (!Enabled() || !Editable) return false;
  UserSetsCell(text);
  return true;
}

Tabs::Tabs(Form& owner, std::string_view name) : Control(owner, name, Kind::Tabs) {}

int Tabs::IndexOfKey(std::string_view key) const {
  const auto found = std::find_if(tabs_.begin(), tabs_.end(), [&](const Tab& tab) { return tab.key == key; });
  return found == tabs_.end() ? -1 : static_cast<int>(found - tabs_.begin());
}

void Tabs::Add(Tab tab) {
  tabs_.push_back(std::move(tab));
  Notify(Aspect::Tabs);
}

void Tabs::Replace(std::size_t index, Tab tab) {
  if (index >= tabs_.size()) return;
  tabs_[index] = std::move(tab);
  Notify(Aspect::Tabs);
}

void Tabs::Remove(std::size_t index) {
  if (index >= tabs_.size()) return;
  tabs_.erase(tabs_.begin() + static_cast<std::ptrdiff_t>(index));
  if (selected_ >= static_cast<int>(index)) --selected_;
  Notify(Aspect::Tabs);
}

void Tabs::Clear() {
  tabs_.clear();
  selected_ = -1;
  Notify(Aspect::Tabs);
}

void Tabs::Select(int index) {
  selected_ = index >= 0 && index < static_cast<int>(tabs_.size()) ? index : -1;
  Notify(Aspect::Selection);
}

bool Tabs::UserSelects(int index) {
  if (!Enabled() || index < 0 || index >= static_cast<int>(tabs_.size())) return false;
  Select(index);
  if (OnChange) OnChange();
  if (OnClick) OnClick();
  return true;
}

std::string Tabs::ValueText() const { return selected_ < 0 ? std::string() : tabs_[static_cast<std::size_t>(selected_)].text; }

bool Tabs::UserSetsText(std::string_view text) {
  const auto found = std::find_if(tabs_.begin(), tabs_.end(), [&](const Tab& tab) { return tab.text == text; });
  return found != tabs_.end() && UserSelects(static_cast<int>(found - tabs_.begin()));
}

ToolBar::ToolBar(Form& owner, std::string_view name, std::string_view caption) : Control(owner, name, Kind::Toolbar) {
  SetCaption(caption);
}

void ToolBar::Add(Item item) {
  items_.push_back(std::move(item));
  Notify(Aspect::Rows);
}

ToolBar::Item* ToolBar::ItemOf(std::string_view key) {
  const auto found = std::find_if(items_.begin(), items_.end(), [&](const Item& item) { return item.key == key; });
  return found == items_.end() ? nullptr : &*found;
}

void ToolBar::SetItemVisible(std::string_view key, bool visible) {
  Item* item = ItemOf(key);
  if (!item || item->visible == visible) return;
  item->visible = visible;
  Notify(Aspect::Rows);
}

void ToolBar::SetItemEnabled(std::string_view key, bool enabled) {
  Item* item = ItemOf(key);
  if (!item || item->enabled == enabled) return;
  item->enabled = enabled;
  Notify(Aspect::Selection);
}

void ToolBar::SetItemPressed(std::string_view key, bool pressed) {
  Item* item = ItemOf(key);
  if (!item || item->pressed == pressed) return;
  item->pressed = pressed;
  Notify(Aspect::Selection);
}

bool ToolBar::HasVisibleItems() const {
  return std::any_of(items_.begin(), items_.end(), [](const Item& item) { return item.visible; });
}

bool ToolBar::UserPresses(std::string_view key) {
  const Item* item = ItemOf(key);
  if (!item || !item->enabled || !item->visible || !Enabled()) return false;
  if (OnButtonClick) OnButtonClick(std::string(key));
  return true;
}

ColourBox::ColourBox(Form& owner, std::string_view name, std::string_view caption, Colour colour)
    : Control(owner, name, Kind::Button), colour_(colour) {
  SetCaption(caption);
}

void ColourBox::SetValue(Colour colour) {
  colour_ = colour;
  isSet_ = true;
  Notify(Aspect::Colour);
}

void ColourBox::Unset() {
  isSet_ = false;
  Notify(Aspect::Colour);
}

Picture::Picture(Form& owner, std::string_view name, int width, int height)
    : Control(owner, name, Kind::Picture), width_(width), height_(height) {}

void Picture::SetFile(std::string_view path) {
  file_ = path;
  Notify(Aspect::Drawing);
}

void Picture::SetShapes(std::vector<Shape> shapes) {
  shapes_ = std::move(shapes);
  Notify(Aspect::Drawing);
}

Timer::Timer(Form& owner, std::string_view name, int intervalMilliseconds, bool enabled)
    : Control(owner, name, Kind::Timer), interval_(intervalMilliseconds) {
  SetEnabled(enabled);
}

void Timer::SetInterval(int milliseconds) {
  interval_ = milliseconds;
  Notify(Aspect::Timer);
}

}  // namespace morlan
