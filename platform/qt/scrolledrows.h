// An area for more rows than a dialog has room for. It follows the keyboard, and the wheel moves it even over a field.
#pragma once

#include <QScrollArea>

class QGridLayout;

namespace morlan {

class ScrolledRows : public QScrollArea {
 public:
  explicit ScrolledRows(QWidget* parent);
  QGridLayout& Grid() const { return *grid_; }
  // To be called when the rows are all there.
  void Fit();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QGridLayout* grid_;
};

}  // namespace morlan
