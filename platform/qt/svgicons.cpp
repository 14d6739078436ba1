#include "platform/qt/svgicons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace morlan {
namespace {

// The colours in which the drawings are made, and which the palette's replace.
constexpr QByteArrayView kInk = "#303030";
constexpr QByteArrayView kAccent = "#2f6fd0";

QColor InkOf(QIcon::Mode mode) {
  const QPalette palette = QGuiApplication::palette();
  return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::WindowText);
}

class SvgIconEngine : public QIconEngine {
 public:
  explicit SvgIconEngine(QString path) : path_(std::move(path)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override { return scaledPixmap(size, mode, state, 1); }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
    const QColor ink = InkOf(mode);
    const QColor accent = mode == QIcon::Disabled ? ink : QGuiApplication::palette().color(QPalette::Link);
    const QString key = path_ + QLatin1Char(' ') + QString::number(size.width()) + ink.name() + accent.name();
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = Draw(size, ink, accent);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
  }

  QIconEngine* clone() const override { return new SvgIconEngine(*this); }
  QString key() const override { return QStringLiteral("morlan7-svg"); }

 private:
  QPixmap Draw(const QSize& size, const QColor& ink, const QColor& accent) {
    if (drawing_.isEmpty()) {
      QFile file(path_);
      if (file.open(QIODevice::ReadOnly)) drawing_ = file.readAll();
    }
    QByteArray coloured = drawing_;
    coloured.replace(kInk, ink.name().toLatin1());
    coloured.replace(kAccent, accent.name().toLatin1());
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(coloured);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(), size));
    painter.end();
    return QPixmap::fromImage(std::move(image));
  }

  QString path_;
  QByteArray drawing_;
};

}  // namespace

QIcon SvgIcon(std::string_view name) {
  const QString path = QStringLiteral(":/icons/%1.svg").arg(QLatin1StringView(name.data(), static_cast<qsizetype>(name.size())));
  return name.empty() || !QFile::exists(path) ? QIcon() : QIcon(new SvgIconEngine(path));
}

}  // namespace morlan
