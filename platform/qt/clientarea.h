// The client area of the main window: the texts of the documents, or a form that is shown in their place.
#pragma once

#include <QStackedWidget>
#include <functional>
#include <memory>

#include "platform/files.h"
#include "platform/forms/form.h"

namespace morlan {

class EditorPages;
class FormDialog;

class ClientArea : public QStackedWidget {
 public:
  explicit ClientArea(Files& files, QWidget* parent = nullptr);
  ~ClientArea() override;

  EditorPages& Pages() { return *pages_; }
  // The form comes up and stays until it is hidden.
  void ShowInside(Form& form);
  // The form that is shown, else null.
  Form* Inside() const;
  // Raised when a form came, went or has another caption.
  std::function<void()> onChange;

 private:
  void FormHidden();

  Files& files_;
  EditorPages* pages_;
  FormDialog* inside_ = nullptr;
};

}  // namespace morlan
