// The main window: the frame of the program with its panels around the texts.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "core/defs.h"
#include "core/morlan.h"
#include "platform/qt/controlwatch.h"
#include "platform/qt/deferred.h"
#include "platform/qt/formtimers.h"
#include "platform/qt/menuview.h"
#include "platform/qt/theme.h"

class QSplitter;

namespace morlan {

class ClientArea;
class CommandPanel;
class EditorPages;
class QtWindows;
class SidePanel;
class StatusLine;
class WindowPlaces;

class MainWindow : public QMainWindow, private FormView {
 public:
  MainWindow(Program& program, QtWindows& windows, WindowPlaces& places);
  ~MainWindow() override;

  // Raised once, when the window has been painted for the first time.
  std::function<void()> onFirstPaint;

  void ActivateDocument(TEditor& document);
  void CloseDocument(TEditor& document);
  void PopUp(Menu& menu);
  // Shows a form in the place of the texts until it is hidden.
  void ShowInside(Form& form);
  // The program has ended: the window goes without more questions.
  void End();
  EditorPages& Pages();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void FormCaptionChanged() override { showTitle_.Ask(); }
  void FormHidden() override {}
  void FocusMoved(Control& control) override;

  void MakePanels();
  QWidget* MakeCentre(QWidget* parent);
  void RestorePlace();
  void KeepPlace();
  void ShowTitle();
  void ShowMenu();
  void ForgetClosed();

  class TitleWatch;
  Program& program_;
  QtWindows& windows_;
  WindowPlaces& places_;
  MenuBarView menuBar_;
  FormTimers timers_;
  ClientArea* client_ = nullptr;
  QSplitter* sides_ = nullptr;
  SidePanel* sidePanel_ = nullptr;
  Deferred showTitle_{[this] { ShowTitle(); }};
  Deferred showMenu_{[this] { ShowMenu(); }};
  Deferred forgetClosed_{[this] { ForgetClosed(); }};
  std::unique_ptr<TitleWatch> titleWatch_;
  bool painted_ = false, ended_ = false;
};

}  // namespace morlan
