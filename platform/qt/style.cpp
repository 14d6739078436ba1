#include "platform/qt/style.h"

#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

#include "platform/qt/svgicons.h"

namespace morlan {
namespace {

// Outlines are drawn somewhat darker than the window, which nobody can see on a dark one: while one is drawn, the
// option says that the window is this light.
constexpr QRgb kWindowOfDarkOutlines = 0x757b85;
constexpr qreal kGroupRadius = 3, kBelowTitle = 3.5, kFocusRadius = 2, kFocusInset = 3.5;
constexpr float kGroupLine = 0.18F;

class VisibleOutline {
 public:
  explicit VisibleOutline(const QStyleOption& option) : option_(const_cast<QStyleOption&>(option)), palette_(option.palette) {
    if (palette_.color(QPalette::Window).lightness() >= 128) return;
    option_.palette.setColor(QPalette::Window, QColor(kWindowOfDarkOutlines));
    option_.palette.setColor(QPalette::Highlight, palette_.color(QPalette::Link));
  }
  ~VisibleOutline() { option_.palette = palette_; }
  VisibleOutline(const VisibleOutline&) = delete;
  VisibleOutline& operator=(const VisibleOutline&) = delete;

 private:
  QStyleOption& option_;
  QPalette palette_;
};

constexpr QStyle::PrimitiveElement kOutlined[] = {
    QStyle::PE_FrameLineEdit, QStyle::PE_IndicatorCheckBox,  QStyle::PE_IndicatorRadioButton,
    QStyle::PE_Frame,         QStyle::PE_PanelButtonCommand, QStyle::PE_FrameMenu,
    QStyle::PE_PanelMenu,
};

// A line round the group, below its title, and no shade inside: groups stand on windows and on the pages of tabs alike.
void DrawGroup(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const auto* group = qobject_cast<const QGroupBox*>(widget);
  const int title = group && group->title().isEmpty() ? 0 : option.fontMetrics.height();
  QColor line = option.palette.color(QPalette::WindowText);
  line.setAlphaF(kGroupLine);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(line);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, title + kBelowTitle, -0.5, -0.5), kGroupRadius, kGroupRadius);
  painter.restore();
}

// The outline of a button tells too little: that of the default button looks the same.
void DrawFocusOfButton(const QStyleOption& option, QPainter& painter) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(option.palette.color(QPalette::Link));
  painter.drawRoundedRect(QRectF(option.rect).adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset), kFocusRadius, kFocusRadius);
  painter.restore();
}

}  // namespace

Style::Style() : QProxyStyle(QStringLiteral("fusion")) {}

// The pictures on the buttons of the toolkit's dialogs look dated.
int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

// Every menu bar asks for this one, and the toolkit would look for all its readers of pictures to load it.
QIcon Style::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const {
  return picture == SP_ToolBarHorizontalExtensionButton ? SvgIcon("next") : QProxyStyle::standardIcon(picture, option, widget);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
  if (element == PE_FrameGroupBox) return DrawGroup(*option, *painter, widget);
  for (const PrimitiveElement outlined : kOutlined) {
    if (element != outlined) continue;
    {
      const VisibleOutline visible(*option);
      QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    const bool isButton = element == PE_PanelButtonCommand && qobject_cast<const QPushButton*>(widget);
    if (isButton && option->state & State_HasFocus) DrawFocusOfButton(*option, *painter);
    return;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const {
  if (control != CC_ComboBox && control != CC_SpinBox) return QProxyStyle::drawComplexControl(control, option, painter, widget);
  const VisibleOutline visible(*option);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

}  // namespace morlan
