#include "platform/script/scriptwebpage.h"

#include "platform/script/json.h"

namespace morlan {

ScriptWebPage::ScriptWebPage(Transcript& transcript, WebBrowser& browser) : transcript_(transcript), browser_(browser) {
  browser_.AttachPage(*this);
}

void ScriptWebPage::Navigate(std::string_view address) {
  if (!visited_.empty()) visited_.resize(++place_);
  visited_.emplace_back(address);
  View();
}

void ScriptWebPage::Back() {
  if (place_ == 0) return;
  --place_;
  View();
}

void ScriptWebPage::Forward() {
  if (place_ + 1 >= visited_.size()) return;
  ++place_;
  View();
}

void ScriptWebPage::Refresh() {
  if (!visited_.empty()) View();
}

void ScriptWebPage::View() {
  const std::string address = visited_[place_];
  transcript_.Line({"view", JsonString(address)});
  browser_.PageBegins();
  browser_.PageCompletes(address, "");
}

}  // namespace morlan
