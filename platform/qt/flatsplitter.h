// A splitter whose handle is nothing but room, and a line while it is held.
#pragma once

#include <QPainter>
#include <QSplitter>
#include <QSplitterHandle>

namespace morlan {

class FlatSplitter : public QSplitter {
 public:
  explicit FlatSplitter(Qt::Orientation orientation, QWidget* parent = nullptr) : QSplitter(orientation, parent) {
    setChildrenCollapsible(false);
    setHandleWidth(6);
  }

 protected:
  class Handle : public QSplitterHandle {
   public:
    using QSplitterHandle::QSplitterHandle;

   protected:
    void paintEvent(QPaintEvent*) override {
      if (!underMouse()) return;
      QPainter painter(this);
      painter.fillRect(rect().adjusted(2, 2, -2, -2), palette().color(QPalette::Mid));
    }
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }
  };
  QSplitterHandle* createHandle() override { return new Handle(orientation(), this); }
};

}  // namespace morlan
