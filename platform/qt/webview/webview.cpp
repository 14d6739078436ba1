#include "platform/qt/webview/webview.h"

#include <QContextMenuEvent>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QWebEngineContextMenuRequest>
#include <QWebEngineHistory>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineSettings>

namespace morlan {
namespace {

QString TitleOf(const QUrl& origin) {
  return origin.isLocalFile() ? QStringLiteral("Strona") : QStringLiteral("Strona ") + origin.toDisplayString();
}

// The questions that a page's scripts ask.
class Page : public QWebEnginePage {
 public:
  using QWebEnginePage::QWebEnginePage;

 protected:
  void javaScriptAlert(const QUrl& origin, const QString& text) override {
    QMessageBox::information(QWebEngineView::forPage(this), TitleOf(origin), text);
  }
  bool javaScriptConfirm(const QUrl& origin, const QString& text) override {
    return QMessageBox::question(QWebEngineView::forPage(this), TitleOf(origin), text, QMessageBox::Ok | QMessageBox::Cancel) ==
           QMessageBox::Ok;
  }
  bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& proposed, QString* answer) override {
    bool given = false;
    *answer = QInputDialog::getText(QWebEngineView::forPage(this), TitleOf(origin), text, QLineEdit::Normal, proposed, &given);
    return given;
  }
  // What scripts write on their console is for nobody here.
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}
};

struct MenuEntryRow {
  QWebEnginePage::WebAction action;
  const char* caption;
};
constexpr MenuEntryRow kPageEntries[] = {
    {QWebEnginePage::Back, "&Wstecz"},
    {QWebEnginePage::Forward, "&Dalej"},
    {QWebEnginePage::Reload, "&Odśwież"},
};
constexpr MenuEntryRow kTextEntries[] = {
    {QWebEnginePage::Copy, "&Kopiuj"},
    {QWebEnginePage::SelectAll, "Zaznacz w&szystko"},
};
constexpr MenuEntryRow kFieldEntries[] = {
    {QWebEnginePage::Undo, "&Cofnij"},
    {QWebEnginePage::Cut, "Wy&tnij"},
    {QWebEnginePage::Copy, "&Kopiuj"},
    {QWebEnginePage::Paste, "Wk&lej"},
    {QWebEnginePage::SelectAll, "Zaznacz w&szystko"},
};

class View : public QWebEngineView {
 public:
  using QWebEngineView::QWebEngineView;

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QWebEngineContextMenuRequest* request = lastContextMenuRequest();
    if (request && request->isContentEditable()) {
      AddEntries(*menu, kFieldEntries);
    } else {
      AddEntries(*menu, kPageEntries);
      menu->addSeparator();
      AddEntries(*menu, kTextEntries);
    }
    if (request && !request->linkUrl().isEmpty()) AddEntry(*menu, {QWebEnginePage::CopyLinkToClipboard, "Kopiuj &adres odsyłacza"});
    menu->popup(event->globalPos());
  }

 private:
  template <std::size_t kCount>
  void AddEntries(QMenu& menu, const MenuEntryRow (&rows)[kCount]) {
    for (const MenuEntryRow& row : rows) AddEntry(menu, row);
  }
  void AddEntry(QMenu& menu, const MenuEntryRow& row) {
    QAction* act = pageAction(row.action);
    QAction* entry = menu.addAction(QString::fromUtf8(row.caption), act, &QAction::trigger);
    entry->setEnabled(act->isEnabled());
  }
};

}  // namespace

WebView::WebView(QWidget* parent) : page_(std::make_unique<Page>(&profile_)), view_(std::make_unique<View>(parent)) {
  SetUpProfile();
  view_->setPage(page_.get());
  view_->setAccessibleName(QStringLiteral("Strona"));
  Connect();
}

WebView::~WebView() = default;

void WebView::SetUpProfile() {
  profile_.setHttpAcceptLanguage(QStringLiteral("pl,en;q=0.5"));
  QWebEngineSettings& settings = *page_->settings();
  // Pages that do not tell are in the charset that the editor writes of itself.
  settings.setDefaultTextEncoding(QStringLiteral("windows-1250"));
  settings.setAttribute(QWebEngineSettings::ScrollAnimatorEnabled, false);
}

void WebView::Connect() {
  QWebEnginePage* page = page_.get();
  QObject::connect(page, &QWebEnginePage::loadStarted, page, [this] {
    if (onBegin) onBegin();
  });
  const auto tellComplete = [this] {
    if (onComplete) onComplete();
  };
  QObject::connect(page, &QWebEnginePage::loadFinished, page, tellComplete);
  QObject::connect(page, &QWebEnginePage::titleChanged, page, [page, tellComplete] {
    if (!page->isLoading()) tellComplete();
  });
  // A move within the page fetches nothing.
  QObject::connect(page, &QWebEnginePage::urlChanged, page, [page, tellComplete] {
    if (!page->isLoading()) tellComplete();
  });
  QObject::connect(page, &QWebEnginePage::renderProcessTerminated, page, [this] {
    if (onCrash) onCrash();
  });
  // There is one window for all pages.
  QObject::connect(page, &QWebEnginePage::newWindowRequested, page, [page](QWebEngineNewWindowRequest& request) { request.openIn(page); });
}

QWidget* WebView::Widget() { return view_.get(); }
void WebView::Load(const QUrl& address) { page_->load(address); }
void WebView::Back() { page_->history()->back(); }
void WebView::Forward() { page_->history()->forward(); }
void WebView::Reload() { page_->triggerAction(QWebEnginePage::Reload); }
void WebView::Stop() { page_->triggerAction(QWebEnginePage::Stop); }
void WebView::Find(const QString& text, bool backwards) {
  page_->findText(text, backwards ? QWebEnginePage::FindBackward : QWebEnginePage::FindFlags());
}
QUrl WebView::Address() const { return page_->url(); }
QString WebView::Title() const { return page_->title(); }
void WebView::ReadText(std::function<void(const QString&)> take) { page_->toPlainText(std::move(take)); }

}  // namespace morlan
