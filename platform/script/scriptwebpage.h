// The page behind a control that shows web pages: it is told of in the transcript and is there at once.
#pragma once

#include <string>
#include <vector>

#include "platform/forms/webbrowser.h"
#include "platform/script/transcript.h"

namespace morlan {

class ScriptWebPage : public WebPage {
 public:
  // Stays attached: the control must not be used when the page is gone.
  ScriptWebPage(Transcript& transcript, WebBrowser& browser);

  void Navigate(std::string_view address) override;
  void Back() override;
  void Forward() override;
  void Refresh() override;
  void Search() override {}
  void Stop() override {}

 private:
  void View();

  Transcript& transcript_;
  WebBrowser& browser_;
  std::vector<std::string> visited_;
  std::size_t place_ = 0;  // in visited_
};

}  // namespace morlan
