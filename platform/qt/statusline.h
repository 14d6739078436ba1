// The status line. It paints its panels itself, so that a change of one costs next to nothing while a key is held down.
#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <vector>

#include "core/statusbar.h"
#include "platform/qt/controlwatch.h"

namespace morlan {

class StatusLine : public QWidget {
 public:
  explicit StatusLine(StatusBar& statusBar, QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Changed(Aspect aspect);
  void ShowMessageNow();
  QRect AreaOf(std::size_t panel) const;

  StatusBar& statusBar_;
  std::vector<std::string> shown_;
  QElapsedTimer sinceMessage_;
  ControlWatch watch_;
};

}  // namespace morlan
