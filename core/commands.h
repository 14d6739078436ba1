// The table of commands: menu names and toolbar buttons, each with its handler. Rooms fill it when the program is put
// together; menus, toolbars, shortcuts and scripts go through it. A command without a handler is not shown anywhere.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace morlan {

class CommandTable {
 public:
  using Handler = std::function<void()>;

  // An entry "xmn_NAME" of a document and the frame's "mn_NAME" are one; either name serves.
  void OnMenu(std::string_view name, Handler handler);
  void OnToolbar(std::string_view toolbar, std::string_view key, Handler handler);
  bool HasMenu(std::string_view name) const;
  bool HasToolbar(std::string_view toolbar, std::string_view key) const;
  // False when there is no such command.
  bool RunMenu(std::string_view name) const;
  bool RunToolbar(std::string_view toolbar, std::string_view key) const;

  // "xmn_save" and "mn_save" to "mn_save", in lower case.
  static std::string Canonical(std::string_view name);

 private:
  std::map<std::string, Handler, std::less<>> menus_;
  std::map<std::string, Handler, std::less<>> toolbars_;  // "Toolbar1 bold", in lower case
};

}  // namespace morlan
