// What the plug-in of the internal viewer offers: pages in a widget. The program knows the browser engine through this alone.
#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>
#include <functional>
#include <memory>

class QWidget;

namespace morlan {

// One page with a history of its own. Its widget goes with it.
class WebWidget {
 public:
  virtual ~WebWidget() = default;
  virtual QWidget* Widget() = 0;
  virtual void Load(const QUrl& address) = 0;
  virtual void Back() = 0;
  virtual void Forward() = 0;
  virtual void Reload() = 0;
  virtual void Stop() = 0;
  // Marks the next place that holds the text; an empty text ends the search.
  virtual void Find(const QString& text, bool backwards) = 0;
  virtual QUrl Address() const = 0;
  virtual QString Title() const = 0;
  // Calls back with the page as plain text, later.
  virtual void ReadText(std::function<void(const QString&)> take) = 0;

  std::function<void()> onBegin;     // a page is being fetched
  std::function<void()> onComplete;  // it is there, or will not come; the title may follow and is told in the same way
  std::function<void()> onCrash;     // the page's process is gone
};

class WebWidgetPlugin {
 public:
  virtual ~WebWidgetPlugin() = default;
  // The engine starts with the first call.
  virtual std::unique_ptr<WebWidget> Make(QWidget* parent) = 0;
};

}  // namespace morlan

Q_DECLARE_INTERFACE(morlan::WebWidgetPlugin, "morlan7.WebWidgetPlugin/1")
