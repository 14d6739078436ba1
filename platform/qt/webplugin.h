// Pages by the plug-in of the internal viewer, which is loaded when the first one is wanted.
#pragma once

#include <QString>
#include <memory>

#include "platform/qt/webwidget.h"

namespace morlan {

struct MadeWebWidget {
  std::unique_ptr<WebWidget> page;  // null when there can be none
  QString reason;                   // why not, for the user
};

// The library "morlan7-webview" is looked for beside the program and in the folder of the installed libraries.
MadeWebWidget MakeWebWidget(QWidget* parent);

}  // namespace morlan
