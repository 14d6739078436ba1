// The hints shown while a tag is typed: a block of text, or a list to choose from, beside the caret's line.
#pragma once

#include <QRectF>
#include <QSize>
#include <functional>
#include <memory>

#include "platform/forms/control.h"

class QLabel;
class QListWidget;
class QWidget;

namespace morlan {

class TEditor;

// Shows the document's FastHelpL and FastHelpC within `area`; the widgets come into being with the first hint.
class HintPanel : private ControlView {
 public:
  // `caret` answers with the caret's rectangle within the area.
  HintPanel(TEditor& document, QWidget& area, std::function<QRectF()> caret);
  ~HintPanel() override;

  // Puts what is shown beside the caret.
  void Place();
  bool ListIsShown() const;
  void EnterList();  // the keyboard goes to the list

 private:
  void ControlChanged(Control& control, Aspect aspect) override;
  void ShowBlock();
  void ShowList(bool rowsChanged);
  // Below the caret's line, or above it where there is more room; never over it, and within the area.
  QRect BesideLine(const QRectF& caret, QSize wanted, double left, double gapAbove) const;
  void PlaceBlock(const QRectF& caret);
  void PlaceList(const QRectF& caret);
  QListWidget* MakeList();

  TEditor& document_;
  QWidget& area_;
  std::function<QRectF()> caret_;
  QLabel* block_ = nullptr;  // both belong to the area
  QListWidget* list_ = nullptr;
};

}  // namespace morlan
