// A scroll bar without gradients: it is painted anew with every scrolled row, which must cost next to nothing.
#pragma once

#include <QScrollBar>

namespace morlan {

class FlatScrollBar : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintArrow(QPainter& painter, const QRect& button, Qt::ArrowType direction) const;
};

}  // namespace morlan
