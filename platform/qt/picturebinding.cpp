// Pictures: drawing surfaces with mouse events.
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include "platform/qt/bindings.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

QColor ToQtColour(Colour colour) { return {RedOf(colour), GreenOf(colour), BlueOf(colour)}; }

void Draw(QPainter& painter, const Picture::Shape& shape) {
  using Kind = Picture::Shape::Kind;
  const QPoint from(shape.x1, shape.y1), to(shape.x2, shape.y2);
  const QRect area = QRect(from, to).normalized();
  painter.setPen(ToQtColour(shape.colour));
  switch (shape.kind) {
    case Kind::Line:
      return painter.drawLine(from, to);
    case Kind::Rectangle:
      return painter.drawRect(area.adjusted(0, 0, -1, -1));
    case Kind::FilledRectangle:
      return painter.fillRect(area, ToQtColour(shape.colour));
    case Kind::Ellipse:
      return painter.drawEllipse(area.adjusted(0, 0, -1, -1));
    case Kind::Text:
      return painter.drawText(from, ToQt(shape.text));
  }
}

class PictureWidget : public QWidget {
 public:
  PictureWidget(Picture& picture, Files& files, QWidget* parent) : QWidget(parent), picture_(picture), files_(files) {
    setFixedSize(picture.Width(), picture.Height());
    setMouseTracking(false);
    TakeFile();
  }

  void TakeFile() {
    file_ = picture_.File();
    background_ = file_.empty() ? QPixmap() : QPixmap(QString::fromStdString(files_.ToNative(file_)));
    update();
  }
  const std::string& ShownFile() const { return file_; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!background_.isNull()) painter.drawPixmap(0, 0, background_);
    for (const Picture::Shape& shape : picture_.Shapes()) Draw(painter, shape);
  }
  void mousePressEvent(QMouseEvent* event) override { Tell(picture_.OnMouseDown, *event); }
  void mouseMoveEvent(QMouseEvent* event) override { Tell(picture_.OnMouseMove, *event); }
  void mouseReleaseEvent(QMouseEvent* event) override {
    Tell(picture_.OnMouseUp, *event);
    picture_.UserClicks();
  }
  void mouseDoubleClickEvent(QMouseEvent*) override { picture_.UserDblClicks(); }

 private:
  using Handler = std::function<void(MouseButton, int, int)>;
  void Tell(const Handler& handler, const QMouseEvent& event) {
    if (!handler) return;
    const Qt::MouseButton pressed =
        event.button() == Qt::NoButton && event.buttons().testFlag(Qt::RightButton) ? Qt::RightButton : event.button();
    const MouseButton button = pressed == Qt::RightButton    ? MouseButton::Right
                               : pressed == Qt::MiddleButton ? MouseButton::Middle
                                                             : MouseButton::Left;
    handler(button, event.position().toPoint().x(), event.position().toPoint().y());
  }

  Picture& picture_;
  Files& files_;
  std::string file_;
  QPixmap background_;
};

class PictureBinding : public ControlBinding {
 public:
  PictureBinding(Picture& picture, PictureWidget* widget) : ControlBinding(picture, widget), picture_(picture), widget_(widget) {}
  void Update(Aspect) override {
    if (widget_->ShownFile() != picture_.File()) widget_->TakeFile();
    widget_->update();
  }

 private:
  Picture& picture_;
  PictureWidget* widget_;
};

}  // namespace

std::unique_ptr<ControlBinding> BindPicture(Picture& picture, BindingContext& context) {
  return std::make_unique<PictureBinding>(picture, new PictureWidget(picture, context.files, context.parent));
}

}  // namespace morlan
