// A menu as a plain tree. Menus are made from constexpr tables; each document has one of its own, with its own marks.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/keys.h"

namespace morlan {

class CommandTable;

// One line of a menu table. Depth 0 is a menu of the bar. A caption "-" is a separator. Captions are Windows-1250,
// "&" in front of the mnemonic; shortcuts are written "Ctrl+Shift+S".
struct MenuRow {
  int depth;
  std::string_view name;
  std::string_view caption;
  std::string_view shortcut = "";
  bool checkable = false;
};

struct MenuEntry {
  std::string name, caption, shortcut;
  bool enabled = true, visible = true, checked = false, checkable = false;
  std::vector<MenuEntry> children;
  bool IsSeparator() const { return caption == "-"; }
};

class MenuView {
 public:
  virtual ~MenuView() = default;
  virtual void MenuChanged() = 0;
};

class Menu {
 public:
  explicit Menu(std::span<const MenuRow> rows);

  const std::vector<MenuEntry>& Entries() const { return entries_; }
  // By name in any letter case, "mn_" and "xmn_" being one; null when absent.
  const MenuEntry* Find(std::string_view name) const;
  void SetCaption(std::string_view name, std::string_view caption);
  void SetEnabled(std::string_view name, bool enabled);
  void SetVisible(std::string_view name, bool visible);
  void SetChecked(std::string_view name, bool checked);
  bool IsChecked(std::string_view name) const;
  // Hides entries without a command and menus that have nothing left to show.
  void HideWithoutCommand(const CommandTable& commands);
  // The visible, enabled entry with that shortcut; null when there is none.
  const MenuEntry* FindShortcut(const KeyPress& press) const;

  void AttachView(MenuView* view) { view_ = view; }

 private:
  MenuEntry* FindEntry(std::string_view name);
  void Changed();
  std::vector<MenuEntry> entries_;
  MenuView* view_ = nullptr;
};

// "Ctrl+Shift+S", "F4", "Ctrl+,", "Menu" to a key press and back. A code of 0 means that the text names no key.
KeyPress KeyFromText(std::string_view text);
std::string TextOfKey(const KeyPress& press);

}  // namespace morlan
