// Forms, questions and the common dialogs on the desktop.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "platform/files.h"
#include "platform/windows.h"

namespace morlan {

class FormDialog;
class WindowPlaces;

class QtWindows : public Windows {
 public:
  QtWindows(Files& files, WindowPlaces& places);
  ~QtWindows() override;

  // The window above which dialogs come up; null while there is none.
  void SetMainWindow(QWidget* window) { mainWindow_ = window; }
  // Shows a form in the client area of the main window; empty while there is none.
  std::function<void(Form&)> showInside;
  // The line of the selected text on the screen, which dialogs leave free where they can; empty where nothing is selected.
  std::function<QRect()> selectedLine;
  // Whether the program waits in the middle of a command for other events to be handled.
  bool IsYielding() const { return yields_ > 0; }

  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowInside(Form& form) override;
  Answer Message(const MessageRequest& request) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title, std::string_view text) override;
  std::optional<std::string> AskFile(const FileRequest& request) override;
  std::optional<std::string> AskDirectory(std::string_view title, std::string_view directory) override;
  std::optional<Colour> AskColour(Colour colour) override;
  std::optional<FontChoice> AskFont(const FontChoice& font) override;
  bool AskPrint() override;
  void Yield() override;
  bool YieldToEscape() override;
  void ShowBusyPointer(bool busy) override;
  std::vector<std::string> FontNames() override;
  void SendKeys(std::string_view keys) override;
  void Beep() override;

 private:
  QWidget* Parent() const;
  bool BringForward(Form& form);
  void LeaveSelectionFree(QWidget& dialog) const;
  // While a dialog is up the pointer is an arrow, whatever the command that asks shows; behind it the window that asked
  // has the keys again, even where no window manager sees to that.
  class DialogTime {
   public:
    explicit DialogTime(QtWindows& windows) : windows_(windows), busy_(windows.busy_) {
      windows_.ShowBusyPointer(false);
      calls_ = windows_.pointerCalls_;
    }
    ~DialogTime() {
      if (QWidget* parent = QApplication::activeWindow() ? nullptr : windows_.Parent()) parent->activateWindow();
      if (busy_ && windows_.pointerCalls_ == calls_) windows_.ShowBusyPointer(true);
    }

   private:
    QtWindows& windows_;
    bool busy_;
    unsigned calls_ = 0;
  };

  Files& files_;
  WindowPlaces& places_;
  QPointer<QWidget> mainWindow_;
  std::map<const Form*, FormDialog*> open_;
  QElapsedTimer sinceYield_;
  int yields_ = 0;
  bool busy_ = false;
  unsigned pointerCalls_ = 0;
};

}  // namespace morlan
