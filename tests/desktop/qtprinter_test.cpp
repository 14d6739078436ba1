#include "platform/qt/qtprinter.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

// Prints into a file and gives its bytes back.
QByteArray Printed(const std::string& text) {
  const ThrowAwayFolder folder;
  const QString path = QString::fromStdString((folder.path / "druk.pdf").string());
  QtPrinter printer;
  printer.choosePrinter = [&path](QPrinter& chosen) {
    chosen.setOutputFormat(QPrinter::PdfFormat);
    chosen.setOutputFileName(path);
    return true;
  };
  printer.Print(text);
  EXPECT_TRUE(printer.EndDocument());
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

qsizetype PagesOf(const QByteArray& pdf) { return pdf.count("/Type /Page\n"); }

TEST(QtPrinter, PrintsAPage) {
  const QByteArray pdf = Printed("raz\r\ndwa");
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_EQ(PagesOf(pdf), 1);
}

TEST(QtPrinter, LongTextsGoOnOnFurtherPages) {
  std::string text;
  for (int i = 0; i < 300; ++i) text += "wiersz\r\n";
  EXPECT_GT(PagesOf(Printed(text)), 3);
}

TEST(QtPrinter, ALineThatIsTooWideGoesOnBelow) { EXPECT_GT(PagesOf(Printed(std::string(40000, 'x'))), 3); }

TEST(QtPrinter, ACancelledDialogPrintsNothing) {
  QtPrinter printer;
  printer.choosePrinter = [](QPrinter&) { return false; };
  printer.Print("x");
  EXPECT_FALSE(printer.EndDocument());
}

}  // namespace
}  // namespace morlan
