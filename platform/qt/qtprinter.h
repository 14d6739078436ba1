// Prints texts on a printer of the desktop: a fixed-width font, lines broken at the page's width, pages numbered.
#pragma once

#include <QString>
#include <functional>

#include "platform/services.h"

class QPrinter;

namespace morlan {

class QtPrinter : public LinePrinter {
 public:
  void Print(std::string_view item) override;
  // Asks for the printer and prints. False when the user cancels or nothing could be printed.
  bool EndDocument() override;

  // Sets the printer up; false cancels. Normally the desktop's print dialog.
  std::function<bool(QPrinter& printer)> choosePrinter;

 private:
  QString text_;
};

}  // namespace morlan
