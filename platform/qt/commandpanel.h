// The top panel: the general toolbar with the combo boxes, the tab bars of toolbars, and the toolbar of the selected tab.
#pragma once

#include <QHBoxLayout>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "core/morlan.h"
#include "platform/qt/controlbinding.h"
#include "platform/qt/controlwatch.h"
#include "platform/qt/deferred.h"
#include "platform/qt/flattabbar.h"
#include "platform/qt/toolbarview.h"

namespace morlan {

class CommandPanel : public QWidget {
 public:
  CommandPanel(Morlan& frame, Files& files, QWidget* parent = nullptr);

 private:
  struct TabLine {
    Tabs* tabs;
    FlatTabBar* bar;
    std::unique_ptr<ControlWatch> watch;
  };

  QWidget* MakeFirstLine();
  FlatTabBar* MakeTabBar(Tabs& tabs);
  QWidget* MakeCombo(ComboBox& box, const QString& name, int widthInCharacters);
  void ShowTabs(TabLine& line);
  void ShowToolbars();
  void ShowMacroList(bool visible);
  QWidget* ToolbarWidget(ToolBar& toolBar, QWidget* parent);
  ToolBar* ToolbarNamed(std::string_view name) const;

  Morlan& frame_;
  BindingContext context_;
  QWidget* toolbarLine_;
  QHBoxLayout* toolbarRow_;
  QWidget* macroList_ = nullptr;  // made with the toolbar of macros
  std::vector<TabLine> tabLines_;
  std::map<std::string, std::unique_ptr<ToolBarView>> toolbars_;  // made when they are first shown
  std::vector<std::unique_ptr<ControlBinding>> combos_;
  ControlWatch watch_;
  Deferred showToolbars_{[this] { ShowToolbars(); }};
};

}  // namespace morlan
