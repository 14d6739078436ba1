// A toolbar: a row of flat buttons with icons.
#pragma once

#include <QHBoxLayout>
#include <QToolButton>
#include <vector>

#include "platform/qt/controlbinding.h"

namespace morlan {

inline constexpr int kToolIconSize = 20;

class ToolBarView : public ControlBinding {
 public:
  ToolBarView(ToolBar& toolBar, QWidget* widget);
  void Update(Aspect aspect) override;

 private:
  void ShowItems();
  int PlaceOf(std::size_t item) const;
  QToolButton* MakeButton(const ToolBar::Item& item);
  ToolBar& toolBar_;
  QHBoxLayout* row_;
  std::vector<QToolButton*> buttons_;  // one for each item, in their order; null where it was never shown
};

}  // namespace morlan
