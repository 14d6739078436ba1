// The list of open documents as a strip of tabs with the mark of a modified one and a close mark.
#pragma once

#include <QWidget>

#include "core/morlan.h"
#include "platform/qt/controlwatch.h"
#include "platform/qt/tabsbinding.h"

namespace morlan {

class WindowStrip : public QWidget {
 public:
  WindowStrip(Morlan& frame, Files& files, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  FlatTabBar* bar_;
  TabsBinding tabs_;
  ControlWatch watch_;
};

}  // namespace morlan
