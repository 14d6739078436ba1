// Menus of the program as menus of the desktop. Entries are made when a menu opens.
#pragma once

#include <QMenuBar>
#include <functional>
#include <string>

#include "core/menus.h"
#include "platform/files.h"
#include "platform/qt/deferred.h"

class QMenu;

namespace morlan {

// Runs the command of an entry.
using RunEntry = std::function<void(const std::string& name)>;

class MenuBarView : private MenuView {
 public:
  MenuBarView(QMenuBar& bar, Files& files, RunEntry run);
  ~MenuBarView() override;
  // Shows another menu. It must live until the next call or as long as the view.
  void Show(Menu& menu);

 private:
  void MenuChanged() override { synchronise_.Ask(); }
  void Synchronise();

  QMenuBar& bar_;
  Files& files_;
  RunEntry run_;
  Menu* menu_ = nullptr;
  Deferred synchronise_{[this] { Synchronise(); }};
};

// A pop-up of what is visible of a menu; it deletes itself when it closes, and the entry runs behind that. Null when nothing
// is visible.
QMenu* MakePopUp(const Menu& menu, Files& files, const RunEntry& run, QWidget* parent);

}  // namespace morlan
