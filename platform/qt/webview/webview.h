// One page of Qt WebEngine. It keeps nothing on the disk.
#pragma once

#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "platform/qt/webwidget.h"

namespace morlan {

class WebView : public WebWidget {
 public:
  explicit WebView(QWidget* parent);
  ~WebView() override;

  QWidget* Widget() override;
  void Load(const QUrl& address) override;
  void Back() override;
  void Forward() override;
  void Reload() override;
  void Stop() override;
  void Find(const QString& text, bool backwards) override;
  QUrl Address() const override;
  QString Title() const override;
  void ReadText(std::function<void(const QString&)> take) override;

 private:
  void SetUpProfile();
  void Connect();

  // In this order, since a page must go before its profile.
  QWebEngineProfile profile_;
  std::unique_ptr<QWebEnginePage> page_;
  std::unique_ptr<QWebEngineView> view_;
};

}  // namespace morlan
