// Text boxes and number fields.
#include <QFontMetrics>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include "platform/qt/bindings.h"
#include "platform/qt/formgeometry.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

int WidthOf(const QWidget& widget, int characters) { return widget.fontMetrics().averageCharWidth() * (characters + 2); }

class LineBinding : public ControlBinding {
 public:
  LineBinding(TextBox& box, QLineEdit* widget) : ControlBinding(box, widget), box_(box), widget_(widget) {
    widget->setReadOnly(box.ReadOnly);
    if (box.MaxLength) widget->setMaxLength(static_cast<int>(box.MaxLength));
    const int width = WidthOf(*widget, box.WidthInCharacters);
    widget->setMinimumWidth(width);
    if (IsNarrow(box)) widget->setMaximumWidth(width);
    connect(widget, &QLineEdit::textEdited, this, [this](const QString& text) { box_.UserSets(FromQt(text)); });
    Update(Aspect::Text);
  }
  void Update(Aspect) override {
    const QString text = ToQt(box_.Text());
    if (widget_->text() == text) return;
    const int caret = widget_->cursorPosition();
    widget_->setText(text);
    if (widget_->hasFocus()) widget_->setCursorPosition(caret);
  }

 private:
  TextBox& box_;
  QLineEdit* widget_;
};

// A few lines, where the toolkit would take room for many.
class FewLines : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;
  QSize sizeHint() const override { return minimumSize(); }
};

// Line ends are CR LF in the control and LF in the widget.
class LinesBinding : public ControlBinding {
 public:
  LinesBinding(TextBox& box, QPlainTextEdit* widget) : ControlBinding(box, widget), box_(box), widget_(widget) {
    widget->setReadOnly(box.ReadOnly);
    widget->setTabChangesFocus(true);
    widget->setMinimumWidth(WidthOf(*widget, box.WidthInCharacters));
    widget->setMinimumHeight(widget->fontMetrics().lineSpacing() * 5);
    connect(widget, &QPlainTextEdit::textChanged, this, [this] {
      QString text = widget_->toPlainText();
      box_.UserSets(FromQt(text.replace(QLatin1Char('\n'), QLatin1StringView("\r\n"))));
    });
    Update(Aspect::Text);
  }
  void Update(Aspect) override {
    QString text = ToQt(box_.Text());
    text.remove(QLatin1Char('\r'));
    if (widget_->toPlainText() == text) return;
    const QSignalBlocker quiet(widget_);
    widget_->setPlainText(text);
  }

 private:
  TextBox& box_;
  QPlainTextEdit* widget_;
};

class SpinBinding : public ControlBinding {
 public:
  SpinBinding(SpinButton& spin, QSpinBox* widget) : ControlBinding(spin, widget), spin_(spin), widget_(widget) {
    widget->setRange(spin.Smallest(), spin.Largest());
    connect(widget, &QSpinBox::valueChanged, this, [this](int value) { spin_.UserSets(value); });
    Update(Aspect::Text);
  }
  void Update(Aspect) override {
    const QSignalBlocker quiet(widget_);
    if (widget_->value() != spin_.Value()) widget_->setValue(spin_.Value());
  }

 private:
  SpinButton& spin_;
  QSpinBox* widget_;
};

}  // namespace

std::unique_ptr<ControlBinding> BindTextBox(TextBox& box, BindingContext& context) {
  if (box.IsMultiLine()) return std::make_unique<LinesBinding>(box, new FewLines(context.parent));
  return std::make_unique<LineBinding>(box, new QLineEdit(context.parent));
}

std::unique_ptr<ControlBinding> BindSpinButton(SpinButton& spin, BindingContext& context) {
  return std::make_unique<SpinBinding>(spin, new QSpinBox(context.parent));
}

}  // namespace morlan
