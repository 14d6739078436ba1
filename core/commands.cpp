#include "core/commands.h"

#include "core/text.h"

namespace morlan {
namespace {

std::string ToolbarName(std::string_view toolbar, std::string_view key) { return LowerCase(Concat({toolbar, " ", key})); }

}  // namespace

std::string CommandTable::Canonical(std::string_view name) {
  std::string canonical = LowerCase(name);
  if (canonical.starts_with("xmn")) canonical.erase(0, 1);
  return canonical;
}

void CommandTable::OnMenu(std::string_view name, Handler handler) { menus_[Canonical(name)] = std::move(handler); }

void CommandTable::OnToolbar(std::string_view toolbar, std::string_view key, Handler handler) {
  toolbars_[ToolbarName(toolbar, key)] = std::move(handler);
}

bool CommandTable::HasMenu(std::string_view name) const { return menus_.contains(Canonical(name)); }

bool CommandTable::HasToolbar(std::string_view toolbar, std::string_view key) const {
  return toolbars_.contains(ToolbarName(toolbar, key));
}

bool CommandTable::RunMenu(std::string_view name) const {
  const auto found = menus_.find(Canonical(name));
  if (found == menus_.end()) return false;
  found->second();
  return true;
}

bool CommandTable::RunToolbar(std::string_view toolbar, std::string_view key) const {
  const auto found = toolbars_.find(ToolbarName(toolbar, key));
  if (found == toolbars_.end()) return false;
  found->second();
  return true;
}

}  // namespace morlan
