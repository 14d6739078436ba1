// A strip of flat tabs with a line of the accent colour under the selected one.
#pragma once

#include <QTabBar>

namespace morlan {

class FlatTabBar : public QTabBar {
 public:
  explicit FlatTabBar(QWidget* parent = nullptr);

  // Draws the dot that marks a tab as modified.
  void SetMarked(int index, bool marked);
  bool IsMarked(int index) const;

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void paintEvent(QPaintEvent* event) override;
  void tabInserted(int index) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void PaintTab(QPainter& painter, int index) const;
  int hovered_ = -1;
};

}  // namespace morlan
