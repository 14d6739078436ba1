// The rows of a text that no view has laid out: each line is one row, each character one column wide, with a tab stop
// every eight columns.
#pragma once

#include "core/editsurface.h"

namespace morlan {

class LogicalRows : public RowLayout {
 public:
  explicit LogicalRows(const MlnEditor& editor) : editor_(editor) {}
  std::size_t RowStart(std::size_t offset) override;
  std::size_t RowEnd(std::size_t offset) override;
  std::size_t OffsetInRow(std::size_t offset, std::ptrdiff_t rows, double x) override;
  double HorizontalPlace(std::size_t offset) override;
  std::size_t RowsInPage() override { return 20; }

 private:
  const MlnEditor& editor_;
};

}  // namespace morlan
