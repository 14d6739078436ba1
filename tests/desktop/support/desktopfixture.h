// A whole program in its main window, over a throw-away folder.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <string>
#include <string_view>

#include "platform/posix/files.h"
#include "platform/qt/desktop.h"
#include "platform/qt/mainwindow.h"
#include "tests/support/testprogram.h"

namespace morlan {

// Lets events be handled until nothing more is waiting.
void Settle();
// Waits for something that takes its time; false when it has not come about after two seconds.
bool WaitFor(const std::function<bool()>& come);

void PressIn(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});
void TypeIn(QWidget& widget, const QString& text);
void ClickAt(QWidget& widget, const QPoint& point, Qt::MouseButton button = Qt::LeftButton);

// What the user does in the next modal window. The window must close by it.
void InNextModal(std::function<void(QWidget& modal)> act);
// Presses a button of the next message box by its caption without the mnemonic, and keeps the box's text.
void AnswerNext(const QString& caption, QString* text = nullptr);

template <class Widget>
Widget& Named(QWidget& window, const char* name) {
  auto* found = window.findChild<Widget*>(QLatin1StringView(name));
  if (!found) throw std::logic_error(std::string("there is no ") + name);
  return *found;
}

class DesktopTest : public testing::Test {
 protected:
  DesktopTest();
  ~DesktopTest() override;
  // The start-up and the window. The greeting is not shown.
  void Start();
  void Write(std::string_view relative, std::string_view bytes);
  std::string Path(std::string_view relative) { return files.FromNative((folder.path / relative).string()); }
  std::string ReadFile(std::string_view relative) { return files.Read(Path(relative)).value_or("?"); }

  MainWindow& Window() { return *desktop.frontEnd().Window(); }
  QWidget& Editor();
  std::string Text() { return program.ActiveEditor ? program.ActiveEditor->Text() : "no document"; }
  QToolButton& ToolButton(const char* toolbar, const char* key);

  ThrowAwayFolder folder;
  Record record;
  PosixFiles files;
  TestEnvironment environment;
  TestRegistry registry;
  RecordingProcesses processes{record};
  StoppedClock clock;
  std::string prepared = Prepare();
  Desktop desktop{{files, environment, registry, processes, clock}};
  Program program{desktop.platform(), desktop.frontEnd()};

 private:
  std::string Prepare();
};

}  // namespace morlan
