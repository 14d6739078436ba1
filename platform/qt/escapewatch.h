// Keeps the user's input from the windows while long work lets events be handled, and notes Esc.
#pragma once

#include <QObject>

namespace morlan {

// Active from construction to destruction.
class EscapeWatch : public QObject {
 public:
  EscapeWatch();
  ~EscapeWatch() override;
  bool WasPressed() const { return wasPressed_; }

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool wasPressed_ = false;
};

}  // namespace morlan
