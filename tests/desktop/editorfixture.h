// A document in a real text view, in a window that is shown.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointF>
#include <QString>
#include <memory>
#include <string>
#include <string_view>

#include "core/document.h"
#include "platform/qt/editorview.h"
#include "tests/support/testprogram.h"

namespace morlan {

class EditorTest : public testing::Test {
 protected:
  void Open(std::string_view text, std::string_view font = "DejaVu Sans Mono") {
    document = &program.OpenText(text);
    document->EditedText.SetFont({.name = std::string(font)});
    view = std::make_unique<EditorWidget>(*document);
    view->resize(640, 400);
    view->show();
    view->activateWindow();
    view->setFocus();
    Settle();
  }
  MlnEditor& editor() const { return document->EditedText; }
  std::string Text() const { return editor().Text(); }
  static void Settle() {
    for (int round = 0; round < 3; ++round) QApplication::processEvents();
  }

  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) const {
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(view.get(), &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(view.get(), &up);
  }
  void Type(const QString& text) const {
    for (const QChar character : text) Press(character.toUpper().unicode(), Qt::NoModifier, QString(character));
  }
  // Whether the text takes the key before a menu or another shortcut can.
  bool Overrides(int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) const {
    QKeyEvent event(QEvent::ShortcutOverride, key, modifiers, text);
    event.ignore();
    QApplication::sendEvent(view.get(), &event);
    return event.isAccepted();
  }

  // The middle of the character's left edge, in pixels of the viewport.
  QPointF PointOf(std::size_t offset) const { return view->Scene().CaretArea(offset, 0).center(); }
  void Mouse(QEvent::Type type, const QPointF& point, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    const QPointF global = view->viewport()->mapToGlobal(point);
    QMouseEvent event(type, point, global, type == QEvent::MouseMove ? Qt::NoButton : button, held, modifiers);
    QApplication::sendEvent(view->viewport(), &event);
  }
  void Click(std::size_t offset, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    Mouse(QEvent::MouseButtonPress, PointOf(offset), button, modifiers);
    Mouse(QEvent::MouseButtonRelease, PointOf(offset), button, modifiers);
  }
  void DragMouse(std::size_t from, std::size_t to) const {
    Mouse(QEvent::MouseButtonPress, PointOf(from));
    Mouse(QEvent::MouseMove, PointOf(to));
    Mouse(QEvent::MouseButtonRelease, PointOf(to));
  }
  // Drags something over the character and lets it fall where that is accepted.
  bool Drop(const QMimeData& data, std::size_t offset) const {
    QDragEnterEvent enter(PointOf(offset).toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(view->viewport(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(PointOf(offset), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &drop);
    return drop.isAccepted();
  }
  // A part of the viewport in pixels of its picture.
  static QRect OnDevice(const QImage& picture, const QRectF& area) {
    const double ratio = picture.devicePixelRatio();
    return QRectF(area.topLeft() * ratio, area.size() * ratio).toRect() & picture.rect();
  }
  QImage Picture() const { return view->viewport()->grab().toImage(); }
  // How many pixels of the character's cell have the colour.
  int Pixels(const QImage& picture, std::size_t offset, const QColor& colour) const {
    const QRectF left = view->Scene().CaretArea(offset, 1), right = view->Scene().CaretArea(offset + 1, 1);
    const QRect cell = OnDevice(picture, QRectF(left.topLeft(), QPointF(right.left(), left.bottom())));
    int count = 0;
    for (int y = cell.top(); y <= cell.bottom(); ++y)
      for (int x = cell.left(); x <= cell.right(); ++x) count += picture.pixelColor(x, y) == colour;
    return count;
  }

  TestProgram program;
  TEditor* document = nullptr;
  std::unique_ptr<EditorWidget> view;
};

}  // namespace morlan
