// A sample of edited text.
#include <QFrame>
#include <QLabel>

#include "platform/qt/bindings.h"
#include "platform/qt/qtfont.h"
#include "platform/qt/qttext.h"
#include "platform/qt/readablecolour.h"

namespace morlan {
namespace {

constexpr int kHeight = 72, kLeastWidth = 160;

Colour FromQColor(const QColor& colour) {
  return RgbColour(static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
                   static_cast<std::uint8_t>(colour.blue()));
}

// Of one size whatever the font, so that a large font does not blow up its dialog.
class SampleBinding : public ControlBinding {
 public:
  SampleBinding(TextSample& sample, QLabel* widget) : ControlBinding(sample, widget), sample_(sample), widget_(widget) {
    widget->setTextFormat(Qt::PlainText);
    widget->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
    widget->setAutoFillBackground(true);
    widget->setBackgroundRole(QPalette::Base);
    widget->setAlignment(Qt::AlignCenter);
    widget->setFixedHeight(kHeight);
    widget->setMinimumWidth(kLeastWidth);
    widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    Update(Aspect::Font);
  }
  void Update(Aspect) override {
    widget_->setText(WithoutMnemonic(ToQt(sample_.Caption())));
    widget_->setFont(ToQtFont(sample_.Font()));
    ShowColour();
  }

 private:
  void ShowColour() {
    const Colour shown = ReadableOn(sample_.TextColour(), FromQColor(widget_->palette().color(QPalette::Base)));
    QPalette palette;
    palette.setColor(widget_->foregroundRole(), QColor(RedOf(shown), GreenOf(shown), BlueOf(shown)));
    widget_->setPalette(palette);
  }

  TextSample& sample_;
  QLabel* widget_;
};

}  // namespace

std::unique_ptr<ControlBinding> BindTextSample(TextSample& sample, BindingContext& context) {
  return std::make_unique<SampleBinding>(sample, new QLabel(context.parent));
}

}  // namespace morlan
