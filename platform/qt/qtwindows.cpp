#include "platform/qt/qtwindows.h"

#include <QApplication>
#include <QColorDialog>
#include <QEventLoop>
#include <QFontDatabase>
#include <QFontDialog>
#include <QScreen>

#include "platform/qt/escapewatch.h"
#include "platform/qt/filedialogs.h"
#include "platform/qt/formdialog.h"
#include "platform/qt/messages.h"
#include "platform/qt/qtfont.h"
#include "platform/qt/qttext.h"
#include "platform/qt/sendkeys.h"

namespace morlan {
namespace {

// Commands may yield on every key; looking for events more often than people notice would only cost time.
constexpr int kYieldMilliseconds = 15;
constexpr int kGapToSelection = 12, kTitleHeight = 36;

}  // namespace

QtWindows::QtWindows(Files& files, WindowPlaces& places) : files_(files), places_(places) { sinceYield_.start(); }

QtWindows::~QtWindows() {
  for (const auto& [form, dialog] : open_) delete dialog;
}

QWidget* QtWindows::Parent() const {
  QWidget* modal = QApplication::activeModalWidget();
  return modal ? modal : mainWindow_.data();
}

bool QtWindows::BringForward(Form& form) {
  const auto found = open_.find(&form);
  if (found == open_.end()) return false;
  found->second->raise();
  found->second->activateWindow();
  return true;
}

// A dialog that asks about the selected text would hide just that from the middle of the window.
void QtWindows::LeaveSelectionFree(QWidget& dialog) const {
  const QWidget* parent = dialog.parentWidget();
  const QRect line = parent && selectedLine ? selectedLine() : QRect();
  if (line.isEmpty()) return;
  const QSize size = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
  QRect place(QPoint(), size + QSize(0, kTitleHeight));
  place.moveCenter(parent->frameGeometry().center());
  if (dialog.testAttribute(Qt::WA_Moved)) place.moveTopLeft(dialog.pos());
  if (!place.intersects(line.adjusted(0, -kGapToSelection, 0, kGapToSelection))) return;
  const QRect screen = parent->screen()->availableGeometry();
  if (line.bottom() + kGapToSelection + place.height() <= screen.bottom())
    place.moveTop(line.bottom() + kGapToSelection);
  else if (line.top() - kGapToSelection - place.height() >= screen.top())
    place.moveTop(line.top() - kGapToSelection - place.height());
  else
    return;
  dialog.move(place.topLeft());
}

void QtWindows::ShowModal(Form& form) {
  if (BringForward(form)) return;
  FormDialog dialog(form, files_, &places_, Parent());
  QEventLoop loop;
  dialog.onHidden = [&loop] { loop.quit(); };
  form.BecomeVisible();
  if (!form.IsVisible()) return;
  dialog.Build();
  dialog.setWindowModality(Qt::ApplicationModal);
  LeaveSelectionFree(dialog);
  open_[&form] = &dialog;
  const DialogTime dialogTime(*this);
  dialog.show();
  loop.exec();
  open_.erase(&form);
}

void QtWindows::Show(Form& form) {
  if (BringForward(form)) return;
  auto* dialog = new FormDialog(form, files_, &places_, mainWindow_);
  dialog->onHidden = [this, &form, dialog] {
    open_.erase(&form);
    dialog->deleteLater();
  };
  open_[&form] = dialog;
  form.BecomeVisible();
  if (!form.IsVisible()) return;
  dialog->Build();
  dialog->show();
}

void QtWindows::ShowInside(Form& form) {
  if (showInside) showInside(form);
}

Answer QtWindows::Message(const MessageRequest& request) {
  const DialogTime dialogTime(*this);
  return AskMessage(request, Parent());
}

std::optional<std::string> QtWindows::Input(std::string_view prompt, std::string_view title, std::string_view text) {
  const DialogTime dialogTime(*this);
  return AskInput(prompt, title, text, Parent());
}

std::optional<std::string> QtWindows::AskFile(const FileRequest& request) {
  const DialogTime dialogTime(*this);
  return AskForFile(request, files_, Parent());
}

std::optional<std::string> QtWindows::AskDirectory(std::string_view title, std::string_view directory) {
  const DialogTime dialogTime(*this);
  return AskForDirectory(title, directory, files_, Parent());
}

std::optional<Colour> QtWindows::AskColour(Colour colour) {
  const DialogTime dialogTime(*this);
  const QColor chosen = QColorDialog::getColor(QColor(RedOf(colour), GreenOf(colour), BlueOf(colour)), Parent());
  if (!chosen.isValid()) return std::nullopt;
  return RgbColour(static_cast<std::uint8_t>(chosen.red()), static_cast<std::uint8_t>(chosen.green()),
                   static_cast<std::uint8_t>(chosen.blue()));
}

std::optional<FontChoice> QtWindows::AskFont(const FontChoice& font) {
  const DialogTime dialogTime(*this);
  bool accepted = false;
  const QFont chosen = QFontDialog::getFont(&accepted, WithStyleName(ToQtFont(font)), Parent());
  if (!accepted) return std::nullopt;
  return FromQtFont(chosen);
}

// The printer puts its dialog itself when there is something to print.
bool QtWindows::AskPrint() { return true; }

void QtWindows::Yield() {
  if (sinceYield_.elapsed() < kYieldMilliseconds) return;
  ++yields_;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  --yields_;
  sinceYield_.restart();
}

bool QtWindows::YieldToEscape() {
  if (sinceYield_.elapsed() < kYieldMilliseconds) return false;
  EscapeWatch watch;
  ++yields_;
  QCoreApplication::processEvents();
  --yields_;
  sinceYield_.restart();
  return watch.WasPressed();
}

void QtWindows::ShowBusyPointer(bool busy) {
  ++pointerCalls_;
  if (busy_ == busy) return;
  busy_ = busy;
  if (busy)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

std::vector<std::string> QtWindows::FontNames() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) names.push_back(FromQt(family));
  return names;
}

void QtWindows::SendKeys(std::string_view keys) {
  if (QWidget* focused = QApplication::focusWidget()) PostKeys(keys, *focused);
}

void QtWindows::Beep() { QApplication::beep(); }

}  // namespace morlan
