// The strip of symbols: all national letters in one row, the chosen one in large, and six buttons of the user's own.
#pragma once

#include <QToolButton>
#include <QWidget>
#include <array>
#include <memory>
#include <vector>

#include "core/morlan.h"
#include "platform/qt/controlwatch.h"
#include "platform/qt/deferred.h"

namespace morlan {

// The letters as cells of one row. A click chooses, a double click or Enter inserts.
class LetterRow : public QWidget {
 public:
  explicit LetterRow(ListBox& letters, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // The area of a letter's cell; empty when it is scrolled out of sight.
  QRect CellOf(int row) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int Count() const { return static_cast<int>(letters_.ListCount()); }
  int CellWidth() const;
  int RowAt(const QPoint& place) const;
  void ScrollTo(int row);
  ListBox& letters_;
  int first_ = 0, hovered_ = -1;
  ControlWatch watch_;
};

class SymbolStrip : public QWidget {
 public:
  explicit SymbolStrip(Morlan& frame, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QToolButton* MakeButton(Button& button);
  Morlan& frame_;
  std::vector<std::unique_ptr<ControlWatch>> watches_;
  std::array<QToolButton*, 6> buttons_ = {};
};

}  // namespace morlan
