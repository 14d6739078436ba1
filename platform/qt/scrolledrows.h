// An area for more rows than a dialog has room for. It follows the keyboard, and the wheel moves it even over a field.
#pragma once

#include <QScrollArea>
#include <functional>

class QGridLayout;

namespace morlan {

class ScrolledRows : public QScrollArea {
 public:
  explicit ScrolledRows(QWidget* parent);
  QGridLayout& Grid() const { return *grid_; }
  // To be called when rows have come.
  void Fit();
  // Adds the rows that are not seen at first. Called once: behind the first painting, or by FillNow.
  std::function<void()> fill;
  void FillNow();

 protected:
  bool viewportEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QGridLayout* grid_;
  bool painted_ = false;
};

}  // namespace morlan
