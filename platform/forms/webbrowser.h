// A control that shows web pages. It holds what is known of the page; the page itself is the front end's, which attaches it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/forms/control.h"

namespace morlan {

// What the control asks of the page. Addresses are "http://..." and the like, "file://" with a path in the program's form
// behind it ("file://c:\home\ala\a.html"), or what people type: a path, "www.example.com".
class WebPage {
 public:
  virtual ~WebPage() = default;
  virtual void Navigate(std::string_view address) = 0;
  virtual void Back() = 0;
  virtual void Forward() = 0;
  virtual void Refresh() = 0;
  virtual void Search() = 0;  // lets the user look for a text on the page
  virtual void Stop() = 0;
};

class WebBrowser : public Control {
 public:
  WebBrowser(Form& owner, std::string_view name);

  // While no page is attached the last address waits for one; the other requests are void then.
  void Navigate(std::string_view address);
  void Back();
  void Forward();
  void Refresh();
  void Home();  // HomeAddress
  void Search();
  void Stop();

  std::string HomeAddress;
  const std::string& LocationURL() const { return address_; }  // where the page is, or is being fetched from; empty before the first
  const std::string& LocationName() const { return title_; }   // the title of the page that is shown, or its address
  bool Busy() const { return busy_; }
  // A page is there, or could not be fetched, or the fetching was stopped.
  std::function<void()> OnDownloadComplete;

  // The front end's side.
  void AttachPage(WebPage& page);
  void DetachPage(const WebPage& page);  // nothing happens where another page was attached meanwhile
  void PageBegins();
  void PageCompletes(std::string_view address, std::string_view title);

  std::string ValueText() const override { return address_; }

 private:
  WebPage* page_ = nullptr;
  std::string address_, title_;
  bool busy_ = false, waiting_ = false;
};

}  // namespace morlan
