#include "platform/qt/webview/webviewplugin.h"

#include "platform/qt/webview/enginestart.h"
#include "platform/qt/webview/webview.h"

namespace morlan {

std::unique_ptr<WebWidget> WebViewPlugin::Make(QWidget* parent) {
  const EngineStart start;
  return std::make_unique<WebView>(parent);
}

}  // namespace morlan
