// The desktop front end: takes what the program tells of its documents to the main window.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "core/defs.h"
#include "core/frontend.h"
#include "platform/qt/theme.h"

namespace morlan {

class MainWindow;
class QtWindows;
class WindowPlaces;

class QtFrontEnd : public FrontEnd {
 public:
  QtFrontEnd(QtWindows& windows, WindowPlaces& places, Theme& theme);
  ~QtFrontEnd() override;

  // Gives the desktop's own commands to the program, before its start-up.
  void Register(Program& program);
  // Makes and shows the main window, behind the start-up.
  void Show(Program& program);
  // The main window and all that refers to the program goes.
  void Hide();
  MainWindow* Window() const { return window_.get(); }

  // Raised when the program has ended and its window is gone.
  std::function<void()> onEnd;

  void DocumentOpened(TEditor& document) override;
  void DocumentClosed(TEditor& document) override;
  void DocumentActivated(TEditor& document) override;
  void ModeSwitched(bool) override {}
  void PopUp(Menu& menu) override;
  void ProgramEnds() override;

 private:
  void ShowLineNumbers(bool shown);
  void ChooseTheme(Theme::Scheme scheme);
  void MarkMenu(Menu& menu) const;
  void MarkMenus();
  void FirstPainted();
  void CameForward();

  QtWindows& windows_;
  WindowPlaces& places_;
  Theme& theme_;
  Program* program_ = nullptr;
  std::unique_ptr<MainWindow> window_;
  QObject context_;
  bool lineNumbersShown_ = true;
};

}  // namespace morlan
