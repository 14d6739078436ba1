#include "tests/desktop/support/desktopfixture.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <fstream>

#include "app/assemble.h"
#include "core/morlan.h"
#include "platform/qt/editorpages.h"
#include "platform/qt/editorview.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr std::string_view kSettings =
    "[Setup]\r\nInstallation=ok\r\n"
    "[LayOut]\r\nWindowsManager=True\r\nStatusBar=True\r\nCommandLine=True\r\nFileManager=True\r\nSymbols=True\r\n"
    "[Colorize]\r\nUseColorize=True\r\nGlobalColor=000000\r\nTagsColor=0000FF\r\nLinksColor=008000\r\nCommentsColor=808080\r\n"
    "[EditorFont]\r\nFontName=DejaVu Sans Mono\r\nFontSize=11\r\n"
    "[UserSymbols]\r\nSymbol0=\xA9\r\n";
constexpr int kPatience = 2000;

}  // namespace

void Settle() {
  for (int round = 0; round < 5; ++round) QApplication::processEvents();
}

bool WaitFor(const std::function<bool()>& come) {
  QElapsedTimer passed;
  for (passed.start(); passed.elapsed() < kPatience;) {
    if (come()) return true;
    QApplication::processEvents(QEventLoop::AllEvents, 20);
  }
  return come();
}

void PressIn(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const QPointer<QWidget> alive = &widget;
  QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
  QApplication::sendEvent(&widget, &down);
  if (!alive) return;
  QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
  QApplication::sendEvent(&widget, &up);
}

void TypeIn(QWidget& widget, const QString& text) {
  for (const QChar character : text) PressIn(widget, character.toUpper().unicode(), Qt::NoModifier, QString(character));
}

void ClickAt(QWidget& widget, const QPoint& point, Qt::MouseButton button) {
  QMouseEvent down(QEvent::MouseButtonPress, point, widget.mapToGlobal(point), button, button, Qt::NoModifier);
  QApplication::sendEvent(&widget, &down);
  QMouseEvent up(QEvent::MouseButtonRelease, point, widget.mapToGlobal(point), button, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &up);
}

void InNextModal(std::function<void(QWidget&)> act) {
  auto* watch = new QTimer(qApp);
  const QPointer<QWidget> present = QApplication::activeModalWidget();
  QObject::connect(watch, &QTimer::timeout, watch, [watch, present, act = std::move(act)] {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == present || !modal->isVisible()) return;
    watch->deleteLater();
    watch->stop();
    act(*modal);
  });
  watch->start(5);
}

void AnswerNext(const QString& caption, QString* text) {
  InNextModal([caption, text](QWidget& modal) {
    if (text)
      if (auto* box = qobject_cast<QMessageBox*>(&modal)) *text = box->text();
    for (QPushButton* button : modal.findChildren<QPushButton*>())
      if (WithoutMnemonic(button->text()) == caption) return button->click();
    ADD_FAILURE() << "no button " << caption.toStdString();
    modal.close();
  });
}

std::string DesktopTest::Prepare() {
  for (const char* name : {"windows", "program", "temp", "work"}) std::filesystem::create_directory(folder.path / name);
  environment.windows = Path("windows");
  environment.userData = Path("program");
  environment.temp = Path("temp");
  files.ChangeDirectory(Path("work"));
  Write("windows/Morlan7.ini", kSettings);
  return folder.path.string();
}

DesktopTest::DesktopTest() { Assemble(program); }

DesktopTest::~DesktopTest() { desktop.Finish(); }

void DesktopTest::Start() {
  program.frame().splashShown = true;
  desktop.Start(program);
  Settle();
}

void DesktopTest::Write(std::string_view relative, std::string_view bytes) {
  std::ofstream file(folder.path / relative, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

QWidget& DesktopTest::Editor() { return *Window().Pages().Current(); }

QToolButton& DesktopTest::ToolButton(const char* toolbar, const char* key) {
  return Named<QToolButton>(Named<QWidget>(Window(), toolbar), key);
}

}  // namespace morlan
