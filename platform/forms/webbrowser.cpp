#include "platform/forms/webbrowser.h"

namespace morlan {

WebBrowser::WebBrowser(Form& owner, std::string_view name) : Control(owner, name, Kind::Web) {}

void WebBrowser::Navigate(std::string_view address) {
  if (address.empty()) return;
  address_ = address;
  busy_ = true;
  waiting_ = !page_;
  if (page_) page_->Navigate(address_);
}

void WebBrowser::Back() {
  if (page_) page_->Back();
}

void WebBrowser::Forward() {
  if (page_) page_->Forward();
}

void WebBrowser::Refresh() {
  if (page_) page_->Refresh();
}

void WebBrowser::Home() { Navigate(HomeAddress); }

void WebBrowser::Search() {
  if (page_) page_->Search();
}

void WebBrowser::Stop() {
  busy_ = waiting_ = false;
  if (page_) page_->Stop();
}

void WebBrowser::AttachPage(WebPage& page) {
  page_ = &page;
  if (!waiting_) return;
  waiting_ = false;
  page.Navigate(std::string(address_));
}

void WebBrowser::DetachPage(const WebPage& page) {
  if (page_ == &page) page_ = nullptr;
}

void WebBrowser::PageBegins() { busy_ = true; }

void WebBrowser::PageCompletes(std::string_view address, std::string_view title) {
  busy_ = false;
  address_ = address;
  title_ = title.empty() ? address : title;
  if (OnDownloadComplete) OnDownloadComplete();
}

}  // namespace morlan
