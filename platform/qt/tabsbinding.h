// A Tabs control as a strip of flat tabs.
#pragma once

#include <functional>
#include <string>

#include "platform/qt/controlbinding.h"
#include "platform/qt/deferred.h"
#include "platform/qt/flattabbar.h"

namespace morlan {

class TabsBinding : public ControlBinding {
 public:
  // How a tab's tag is told in its tool tip; empty: as it stands, in UTF-8.
  using ToolTipOf = std::function<std::string(const std::string& tag)>;
  TabsBinding(Tabs& tabs, FlatTabBar* bar, ToolTipOf toolTipOf = {});
  void Update(Aspect aspect) override;
  // Shows waiting changes at once.
  void Synchronise();

 private:
  Tabs& tabs_;
  FlatTabBar* bar_;
  ToolTipOf toolTipOf_;
  Deferred synchronise_{[this] { Synchronise(); }};
  bool showing_ = false;
};

}  // namespace morlan
