// The plug-in of the internal viewer, made of Qt WebEngine.
#pragma once

#include <QObject>

#include "platform/qt/webwidget.h"

namespace morlan {

class WebViewPlugin : public QObject, public WebWidgetPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "morlan7.WebWidgetPlugin/1")
  Q_INTERFACES(morlan::WebWidgetPlugin)

 public:
  std::unique_ptr<WebWidget> Make(QWidget* parent) override;
};

}  // namespace morlan
