#include "platform/qt/clientarea.h"

#include <QLayout>

#include "platform/qt/editorpages.h"
#include "platform/qt/formdialog.h"

namespace morlan {
namespace {

constexpr int kMargin = 6;

}  // namespace

ClientArea::ClientArea(Files& files, QWidget* parent) : QStackedWidget(parent), files_(files), pages_(new EditorPages(this)) {
  addWidget(pages_);
}

ClientArea::~ClientArea() { delete inside_; }

Form* ClientArea::Inside() const { return inside_ ? &inside_->ShownForm() : nullptr; }

void ClientArea::ShowInside(Form& form) {
  if (Inside() == &form) return;
  if (inside_) inside_->ShownForm().Hide();
  inside_ = new FormDialog(form, files_, nullptr, this);
  inside_->setWindowFlags(Qt::Widget);
  // A dialog that was never moved would put itself into the middle when it is shown.
  inside_->setAttribute(Qt::WA_Moved);
  inside_->onHidden = [this] { FormHidden(); };
  form.BecomeVisible();
  if (!form.IsVisible()) return;
  inside_->Build();
  if (QLayout* all = inside_->layout()) all->setContentsMargins(kMargin, kMargin / 2, kMargin, 0);
  addWidget(inside_);
  setCurrentWidget(inside_);
  connect(inside_, &QWidget::windowTitleChanged, this, [this] {
    if (onChange) onChange();
  });
  if (form.firstFocus) form.firstFocus->SetFocus();
  if (onChange) onChange();
}

// The form's own code may still be running: its widgets go later.
void ClientArea::FormHidden() {
  FormDialog* gone = std::exchange(inside_, nullptr);
  setCurrentWidget(pages_);
  gone->deleteLater();
  if (onChange) onChange();
}

}  // namespace morlan
