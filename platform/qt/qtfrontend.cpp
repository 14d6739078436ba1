#include "platform/qt/qtfrontend.h"

#include <QApplication>

#include "core/document.h"
#include "core/morlan.h"
#include "core/programmenus.h"
#include "platform/qt/editorpages.h"
#include "platform/qt/editorview.h"
#include "platform/qt/mainwindow.h"
#include "platform/qt/pictureofwindow.h"
#include "platform/qt/qtwindows.h"
#include "platform/qt/windowplaces.h"

namespace morlan {
namespace {

const QString kLineNumbersChoice = QStringLiteral("LineNumbers");
const QString kNo = QStringLiteral("no"), kYes = QStringLiteral("yes");

struct SchemeEntry {
  const char* menu;
  Theme::Scheme scheme;
};
constexpr SchemeEntry kSchemeEntries[] = {
    {"mn_theme_system", Theme::Scheme::System},
    {"mn_theme_light", Theme::Scheme::Light},
    {"mn_theme_dark", Theme::Scheme::Dark},
};

QRect SelectedLine(const Program& program, MainWindow& window) {
  EditorWidget* editor = window.Pages().Current();
  if (!editor || !editor->isVisible() || !program.ActiveEditor || program.ActiveEditor->SelLength() == 0) return {};
  editor->Settle();
  const QRect caret = editor->CaretRectangle();
  const QWidget* text = editor->viewport();
  return {text->mapToGlobal(QPoint(0, caret.top())), QSize(text->width(), caret.height())};
}

}  // namespace

QtFrontEnd::QtFrontEnd(QtWindows& windows, WindowPlaces& places, Theme& theme)
    : windows_(windows), places_(places), theme_(theme), lineNumbersShown_(places.Choice(kLineNumbersChoice) != kNo) {}

QtFrontEnd::~QtFrontEnd() = default;

void QtFrontEnd::Register(Program& program) {
  program_ = &program;
  program.commands.OnMenu("mn_linenumbers", [this] { ShowLineNumbers(!lineNumbersShown_); });
  program.commands.OnMenu("mn_zoomreset", [this] {
    if (EditorWidget* view = window_ ? window_->Pages().Current() : nullptr) view->ResetZoom();
  });
  for (const SchemeEntry& entry : kSchemeEntries)
    program.commands.OnMenu(entry.menu, [this, scheme = entry.scheme] { ChooseTheme(scheme); });
}

void QtFrontEnd::Show(Program& program) {
  MarkMenus();
  window_ = std::make_unique<MainWindow>(program, windows_, places_);
  window_->Pages().SetLineNumbersShown(lineNumbersShown_);
  windows_.SetMainWindow(window_.get());
  windows_.showInside = [this](Form& form) { window_->ShowInside(form); };
  windows_.selectedLine = [this] { return SelectedLine(*program_, *window_); };
  window_->onFirstPaint = [this] { FirstPainted(); };
  window_->show();
  // Where no window manager gives the focus, keys would reach nobody.
  window_->activateWindow();
}

void QtFrontEnd::Hide() {
  windows_.SetMainWindow(nullptr);
  windows_.showInside = nullptr;
  windows_.selectedLine = nullptr;
  window_.reset();
}

void QtFrontEnd::FirstPainted() {
  TraceStart();
  if (SavePictureAndQuit(*window_)) return;
  window_->setWindowIcon(QIcon(QStringLiteral(":/icons/morlan7.svg")));
  theme_.FollowDesktop();
  ActivateFrame(*program_);
  QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &context_, [this](Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive) CameForward();
  });
}

void QtFrontEnd::CameForward() {
  theme_.FollowDesktop();
  if (QApplication::activeModalWidget()) return;
  ActivateFrame(*program_);
}

void QtFrontEnd::DocumentOpened(TEditor& document) { MarkMenu(document.menu); }

void QtFrontEnd::DocumentClosed(TEditor& document) {
  if (window_) window_->CloseDocument(document);
}

void QtFrontEnd::DocumentActivated(TEditor& document) {
  if (window_) window_->ActivateDocument(document);
}

void QtFrontEnd::PopUp(Menu& menu) {
  if (window_) window_->PopUp(menu);
}

void QtFrontEnd::ProgramEnds() {
  if (window_) window_->End();
  if (onEnd) onEnd();
}

void QtFrontEnd::ShowLineNumbers(bool shown) {
  lineNumbersShown_ = shown;
  places_.KeepChoice(kLineNumbersChoice, shown ? kYes : kNo);
  if (window_) window_->Pages().SetLineNumbersShown(shown);
  MarkMenus();
}

void QtFrontEnd::ChooseTheme(Theme::Scheme scheme) {
  theme_.Choose(scheme);
  MarkMenus();
}

void QtFrontEnd::MarkMenu(Menu& menu) const {
  menu.SetChecked("mn_linenumbers", lineNumbersShown_);
  for (const SchemeEntry& entry : kSchemeEntries) menu.SetChecked(entry.menu, entry.scheme == theme_.Chosen());
}

void QtFrontEnd::MarkMenus() {
  for (Menu* menu : AllMenus(*program_)) MarkMenu(*menu);
}

}  // namespace morlan
