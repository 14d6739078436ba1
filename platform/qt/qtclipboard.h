// The desktop's clipboard. Line ends are CR LF inside and LF outside.
#pragma once

#include <QString>

#include "platform/services.h"

namespace morlan {

class QtClipboard : public Clipboard {
 public:
  std::optional<std::string> Text() override;
  void SetText(std::string_view text) override;

 private:
  // What was read or set last, in both forms: a text that goes back unchanged loses nothing on the way.
  std::string text_;
  QString outside_;
};

}  // namespace morlan
