#include "core/menus.h"

#include "core/commands.h"
#include "core/text.h"

namespace morlan {
namespace {

bool SameKey(const KeyPress& left, const KeyPress& right) { return left.code == right.code && left.shift == right.shift; }

// Reads the rows of one depth and, below each, those of greater depth. Moves `row` behind what it read.
std::vector<MenuEntry> ReadRows(std::span<const MenuRow> rows, std::size_t& row, int depth) {
  std::vector<MenuEntry> entries;
  while (row < rows.size() && rows[row].depth >= depth) {
    const MenuRow& source = rows[row++];
    MenuEntry& entry = entries.emplace_back();
    entry.name = source.name;
    entry.caption = source.caption;
    entry.shortcut = source.shortcut;
    entry.checkable = source.checkable;
    entry.children = ReadRows(rows, row, depth + 1);
  }
  return entries;
}

// Without the "x" that an entry of a document has in front of the frame's name.
std::string_view FrameName(std::string_view name) { return StartsWithNoCase(name, "xmn") ? name.substr(1) : name; }

template <class Entry, class Entries>
Entry* FindIn(Entries& entries, std::string_view frameName) {
  for (auto& entry : entries) {
    if (!entry.name.empty() && EqualNoCase(FrameName(entry.name), frameName)) return &entry;
    if (Entry* found = FindIn<Entry>(entry.children, frameName)) return found;
  }
  return nullptr;
}

// A separator is shown between two visible entries only.
void TidySeparators(std::vector<MenuEntry>& entries) {
  MenuEntry* pending = nullptr;
  bool anythingAbove = false;
  for (MenuEntry& entry : entries) {
    if (entry.IsSeparator()) {
      entry.visible = false;
      if (anythingAbove && !pending) pending = &entry;
    } else if (entry.visible) {
      if (pending) pending->visible = true;
      pending = nullptr;
      anythingAbove = true;
    }
    TidySeparators(entry.children);
  }
}

// True when something of the entries can be shown.
bool HideIn(std::vector<MenuEntry>& entries, const CommandTable& commands) {
  bool anything = false;
  for (MenuEntry& entry : entries) {
    if (entry.IsSeparator()) continue;
    const bool works = entry.children.empty() ? commands.HasMenu(entry.name) : HideIn(entry.children, commands);
    if (!works) entry.visible = false;
    anything = anything || works;
  }
  return anything;
}

const MenuEntry* FindShortcutIn(const std::vector<MenuEntry>& entries, const KeyPress& press) {
  for (const MenuEntry& entry : entries) {
    if (!entry.visible || !entry.enabled) continue;
    if (!entry.shortcut.empty() && SameKey(KeyFromText(entry.shortcut), press)) return &entry;
    if (const MenuEntry* found = FindShortcutIn(entry.children, press)) return found;
  }
  return nullptr;
}

}  // namespace

Menu::Menu(std::span<const MenuRow> rows) {
  std::size_t row = 0;
  entries_ = ReadRows(rows, row, 0);
}

const MenuEntry* Menu::Find(std::string_view name) const { return FindIn<const MenuEntry>(entries_, FrameName(name)); }

MenuEntry* Menu::FindEntry(std::string_view name) { return FindIn<MenuEntry>(entries_, FrameName(name)); }

void Menu::Changed() {
  if (view_) view_->MenuChanged();
}

void Menu::SetCaption(std::string_view name, std::string_view caption) {
  MenuEntry* entry = FindEntry(name);
  if (!entry || entry->caption == caption) return;
  entry->caption = caption;
  Changed();
}

void Menu::SetEnabled(std::string_view name, bool enabled) {
  MenuEntry* entry = FindEntry(name);
  if (!entry || entry->enabled == enabled) return;
  entry->enabled = enabled;
  Changed();
}

void Menu::SetVisible(std::string_view name, bool visible) {
  MenuEntry* entry = FindEntry(name);
  if (!entry || entry->visible == visible) return;
  entry->visible = visible;
  TidySeparators(entries_);
  Changed();
}

void Menu::SetChecked(std::string_view name, bool checked) {
  MenuEntry* entry = FindEntry(name);
  if (!entry || entry->checked == checked) return;
  entry->checked = checked;
  Changed();
}

bool Menu::IsChecked(std::string_view name) const {
  const MenuEntry* entry = Find(name);
  return entry && entry->checked;
}

void Menu::HideWithoutCommand(const CommandTable& commands) {
  HideIn(entries_, commands);
  TidySeparators(entries_);
  Changed();
}

const MenuEntry* Menu::FindShortcut(const KeyPress& press) const { return FindShortcutIn(entries_, press); }

}  // namespace morlan
