// The list of open documents as a strip of tabs with the mark of a modified one and a close mark.
#pragma once

#include <QToolButton>
#include <QWidget>

#include "core/morlan.h"
#include "platform/qt/controlwatch.h"
#include "platform/qt/tabsbinding.h"

namespace morlan {

class WindowStrip : public QWidget {
 public:
  WindowStrip(Morlan& frame, Files& files, QWidget* parent = nullptr);
  // Marks which of the two is shown: the texts or the internal viewer.
  void ShowSwitch(bool viewer);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QToolButton* MakeSwitch(Button& button);
  FlatTabBar* bar_;
  QToolButton *editor_, *viewer_;
  bool shown_ = false;  // the viewer
  TabsBinding tabs_;
  ControlWatch watch_;
};

}  // namespace morlan
