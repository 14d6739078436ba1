// Pages in a form, by the plug-in of the internal viewer.
#include <QLabel>
#include <QVBoxLayout>

#include "platform/qt/bindings.h"
#include "platform/qt/findbar.h"
#include "platform/qt/qttext.h"
#include "platform/qt/webaddress.h"
#include "platform/qt/webplugin.h"

namespace morlan {
namespace {

class WebBinding : public ControlBinding, private WebPage {
 public:
  WebBinding(WebBrowser& browser, QWidget* widget, Files& files)
      : ControlBinding(browser, widget), browser_(browser), files_(files), findBar_(new FindBar(widget)), notice_(new QLabel(widget)) {
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    notice_->setObjectName(QStringLiteral("notice"));
    notice_->setWordWrap(true);
    notice_->setAlignment(Qt::AlignCenter);
    column->addWidget(notice_, 1);
    column->addWidget(findBar_);
    widget->setMinimumSize(widget->fontMetrics().averageCharWidth() * 40, widget->fontMetrics().lineSpacing() * 10);
    MakePage(*column);
    browser.AttachPage(*this);
  }
  ~WebBinding() override { browser_.DetachPage(*this); }

  void Update(Aspect) override {}

 private:
  void MakePage(QVBoxLayout& column) {
    MadeWebWidget made = MakeWebWidget(Widget());
    if (!made.page) return ShowNotice(made.reason + QStringLiteral("\n\nStronę pokaże przeglądarka zewnętrzna: menu Plik, Podgląd."));
    page_ = std::move(made.page);
    column.insertWidget(0, page_->Widget(), 1);
    Widget()->setFocusProxy(page_->Widget());
    notice_->hide();
    page_->onBegin = [this] { browser_.PageBegins(); };
    page_->onComplete = [this] { browser_.PageCompletes(AddressOfUrl(page_->Address(), files_), FromQt(page_->Title())); };
    page_->onCrash = [this] { ShowNotice(QStringLiteral("Strona przestała działać. Ponowne otwarcie: F5.")); };
    findBar_->onFind = [this](const QString& text, bool backwards) { page_->Find(text, backwards); };
    findBar_->onClose = [this] { page_->Widget()->setFocus(); };
  }

  void ShowNotice(const QString& text) {
    if (page_) page_->Widget()->hide();
    notice_->setText(text);
    notice_->show();
    browser_.Stop();
  }

  void ShowPage() {
    notice_->hide();
    page_->Widget()->show();
  }

  void Navigate(std::string_view address) override {
    if (!page_) return browser_.Stop();
    ShowPage();
    page_->Load(UrlOfAddress(address, files_));
  }
  void Back() override {
    if (page_) page_->Back();
  }
  void Forward() override {
    if (page_) page_->Forward();
  }
  void Refresh() override {
    if (!page_) return;
    ShowPage();
    page_->Reload();
  }
  void Search() override {
    if (page_) findBar_->Open();
  }
  void Stop() override {
    if (page_) page_->Stop();
  }

  WebBrowser& browser_;
  Files& files_;
  FindBar* findBar_;
  QLabel* notice_;
  std::unique_ptr<WebWidget> page_;
};

}  // namespace

std::unique_ptr<ControlBinding> BindWebBrowser(WebBrowser& browser, BindingContext& context) {
  return std::make_unique<WebBinding>(browser, new QWidget(context.parent), context.files);
}

}  // namespace morlan
