// A line below a page in which one types what to look for on it.
#pragma once

#include <QWidget>
#include <functional>

class QLineEdit;

namespace morlan {

class FindBar : public QWidget {
 public:
  explicit FindBar(QWidget* parent = nullptr);

  // Comes up ready for typing, with the last text selected.
  void Open();
  // An empty text ends the search.
  std::function<void(const QString& text, bool backwards)> onFind;
  // Raised when the bar goes, for the focus to go back to the page.
  std::function<void()> onClose;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Find(bool backwards);
  void Close();
  QLineEdit* text_;
};

}  // namespace morlan
