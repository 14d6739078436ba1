#include "platform/qt/mainwindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QThread>
#include <QUrl>
#include <QVBoxLayout>

#include "core/document.h"
#include "core/documents.h"
#include "core/status.h"
#include "platform/qt/clientarea.h"
#include "platform/qt/commandpanel.h"
#include "platform/qt/editorpages.h"
#include "platform/qt/editorview.h"
#include "platform/qt/flatsplitter.h"
#include "platform/qt/qtkeys.h"
#include "platform/qt/qttext.h"
#include "platform/qt/qtwindows.h"
#include "platform/qt/sidepanel.h"
#include "platform/qt/statusline.h"
#include "platform/qt/symbolstrip.h"
#include "platform/qt/windowplaces.h"
#include "platform/qt/windowstrip.h"

namespace morlan {
namespace {

const QString kWindowPlace = QStringLiteral("MainWindow");
const QString kSidesPlace = QStringLiteral("SidePanel");
const QString kListsPlace = QStringLiteral("FilePanel");
constexpr int kSidePanelWidth = 230;
// What a window manager puts round a window, at most.
constexpr QSize kFrameRoom(16, 48);
constexpr QSize kFirstSize = {1440, 900};

const Menu& MenuOf(const Program& program) { return program.ActiveDocument ? program.ActiveDocument->menu : program.frame().menu; }

// The window of the active document knows its name and whether it is saved.
QString NativeName(const TEditor& document, Files& files) {
  const std::string& caption = document.Caption();
  return caption.find('\\') == std::string::npos ? ToQt(caption) : QString::fromStdString(files.ToNative(caption));
}

bool IsNextDocumentKey(const KeyPress& press) { return press.code == key::kTab && (press.shift & shift::kCtrl); }

}  // namespace

// Hears of the active document's name and of its mark of being modified.
class MainWindow::TitleWatch : public FormView {
 public:
  TitleWatch(TEditor& document, Deferred& showTitle)
      : document_(document), showTitle_(showTitle), modified_(document.NeedToBeSaved, [&showTitle](Aspect) { showTitle.Ask(); }) {
    document.AttachView(this);
  }
  ~TitleWatch() override {
    if (document_.View() == this) document_.AttachView(nullptr);
  }
  TEditor& Document() const { return document_; }
  void FormCaptionChanged() override { showTitle_.Ask(); }
  void FormHidden() override {}
  void FocusMoved(Control& control) override {
    if (control.View()) control.View()->ControlChanged(control, Aspect::Focus);
  }

 private:
  TEditor& document_;
  Deferred& showTitle_;
  ControlWatch modified_;
};

MainWindow::MainWindow(Program& program, QtWindows& windows, WindowPlaces& places)
    : program_(program),
      windows_(windows),
      places_(places),
      menuBar_(*menuBar(), program.platform.files, [&program](const std::string& name) { program.commands.RunMenu(name); }),
      timers_(program.frame()) {
  setAcceptDrops(true);
  setContextMenuPolicy(Qt::NoContextMenu);
  MakePanels();
  RestorePlace();
  program.frame().AttachView(this);
  if (program.ActiveDocument) ActivateDocument(*program.ActiveDocument);
  ShowMenu();
  ShowTitle();
}

MainWindow::~MainWindow() {
  if (program_.frame().View() == this) program_.frame().AttachView(nullptr);
}

void MainWindow::MakePanels() {
  Morlan& frame = program_.frame();
  Files& files = program_.platform.files;
  auto* all = new QWidget(this);
  auto* column = new QVBoxLayout(all);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(new CommandPanel(frame, files, all));
  sides_ = new FlatSplitter(Qt::Horizontal, all);
  sidePanel_ = new SidePanel(frame, files, sides_);
  sides_->addWidget(sidePanel_);
  sides_->addWidget(MakeCentre(sides_));
  sides_->setStretchFactor(1, 1);
  column->addWidget(sides_, 1);
  column->addWidget(new SymbolStrip(frame, all));
  column->addWidget(new StatusLine(frame.statusBar, all));
  setCentralWidget(all);
}

QWidget* MainWindow::MakeCentre(QWidget* parent) {
  auto* centre = new QWidget(parent);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* strip = new WindowStrip(program_.frame(), program_.platform.files, centre);
  column->addWidget(strip);
  client_ = new ClientArea(program_.platform.files, centre);
  client_->onChange = [this, strip] {
    strip->ShowSwitch(client_->Inside() != nullptr);
    showTitle_.Ask();
  };
  column->addWidget(client_, 1);
  return centre;
}

EditorPages& MainWindow::Pages() { return client_->Pages(); }

void MainWindow::ShowInside(Form& form) { client_->ShowInside(form); }

void MainWindow::RestorePlace() {
  const bool restored = restoreGeometry(places_.Place(kWindowPlace));
  const QRect available = screen()->availableGeometry();
  const QSize most = available.size() - kFrameRoom, wanted = restored ? size() : kFirstSize;
  const bool fits = wanted.boundedTo(most) == wanted;
  if (!restored || !fits) {
    const QSize size = wanted.boundedTo(most);
    setGeometry(QRect(available.center() - QPoint(size.width() / 2, size.height() / 2), size));
  }
  // A frame that reaches beyond the screen would hide the status line or the title.
  if (!fits) setWindowState(windowState() | Qt::WindowMaximized);
  if (!sides_->restoreState(places_.Place(kSidesPlace))) sides_->setSizes({kSidePanelWidth, width() - kSidePanelWidth});
  sidePanel_->Lists().restoreState(places_.Place(kListsPlace));
}

void MainWindow::KeepPlace() {
  places_.Keep(kWindowPlace, saveGeometry());
  places_.Keep(kSidesPlace, sides_->saveState());
  places_.Keep(kListsPlace, sidePanel_->Lists().saveState());
}

void MainWindow::ActivateDocument(TEditor& document) {
  if (!titleWatch_ || &titleWatch_->Document() != &document) titleWatch_ = std::make_unique<TitleWatch>(document, showTitle_);
  Pages().Activate(document);
  showTitle_.Ask();
  showMenu_.Ask();
}

void MainWindow::CloseDocument(TEditor& document) {
  if (titleWatch_ && &titleWatch_->Document() == &document) titleWatch_.reset();
  Pages().Close(document);
  showTitle_.Ask();
  showMenu_.Ask();
  showMenu_.DoNow();
  forgetClosed_.Ask();
}

// A closed document may still be in use further up: its own command may have closed it, or it waits in a question.
void MainWindow::ForgetClosed() {
  if (windows_.IsYielding() || QThread::currentThread()->loopLevel() > 1) {
    QTimer::singleShot(200, this, [this] { forgetClosed_.Ask(); });
    return;
  }
  Pages().ForgetClosed();
  program_.ForgetClosed();
}

void MainWindow::ShowMenu() { menuBar_.Show(const_cast<Menu&>(MenuOf(program_))); }

void MainWindow::ShowTitle() {
  const QString caption = ToQt(program_.frame().Caption());
  if (const Form* inside = client_->Inside()) {
    setWindowTitle(ToQt(inside->Caption()) + QStringLiteral(" — ") + caption);
    setWindowModified(false);
    return;
  }
  if (!program_.ActiveDocument) {
    setWindowTitle(caption);
    setWindowModified(false);
    return;
  }
  setWindowTitle(NativeName(*program_.ActiveDocument, program_.platform.files) + QStringLiteral("[*] — ") + caption);
  setWindowModified(program_.ActiveDocument->IsModified());
}

void MainWindow::PopUp(Menu& menu) {
  QMenu* popUp = MakePopUp(
      menu, program_.platform.files, [this](const std::string& name) { program_.commands.RunMenu(name); }, this);
  if (!popUp) return;
  QPoint place = QCursor::pos();
  const QWidget* text = Pages().currentWidget();
  if (QGuiApplication::mouseButtons() == Qt::NoButton && text)
    place = text->mapToGlobal(text->inputMethodQuery(Qt::ImCursorRectangle).toRect().bottomLeft());
  popUp->popup(place);
}

void MainWindow::End() {
  KeepPlace();
  ended_ = true;
  close();
}

void MainWindow::FocusMoved(Control& control) {
  if (control.View()) control.View()->ControlChanged(control, Aspect::Focus);
}

void MainWindow::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (painted_) return;
  painted_ = true;
  // The paint reaches the screen when this event is over.
  QTimer::singleShot(0, this, [this] {
    if (onFirstPaint) onFirstPaint();
  });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!ended_) QuitProgram(program_);
  event->setAccepted(ended_);
}

// Keys that the widget with the focus leaves. A text sees to its own.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  KeyPress press = ReadKey(*event).press;
  if (const MenuEntry* entry = MenuOf(program_).FindShortcut(press)) {
    program_.commands.RunMenu(std::string(entry->name));
    return;
  }
  if (press.code == key::kEscape && press.shift == shift::kNone) return FocusActiveDocument(program_);
  if (IsNextDocumentKey(press)) return ActivateNextDocument(program_, press.shift & shift::kShift ? -1 : 1);
  if (program_.runShortcut && press.code != 0 && program_.runShortcut(press)) return;
  QMainWindow::keyPressEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  for (const QUrl& address : event->mimeData()->urls())
    if (address.isLocalFile()) OpenDocument(program_, program_.platform.files.FromNative(address.toLocalFile().toStdString()));
}

}  // namespace morlan
