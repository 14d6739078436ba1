#include "platform/qt/qtprinter.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <utility>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr double kFontPoints = 9.5;
constexpr int kTabColumns = 8;

// Where the lines of a text fall on pages of a printer: everything in the printer's dots.
struct Page {
  QRectF area;
  double lineHeight;
  int linesPerPage, columns;
};

Page PageOf(const QPrinter& printer, const QFont& font) {
  const QFontMetricsF metrics(font, &printer);
  Page page;
  page.area = QRectF(QPointF(), printer.pageLayout().paintRectPixels(printer.resolution()).size());
  page.lineHeight = metrics.lineSpacing();
  // The last line is the page's number.
  page.linesPerPage = std::max(1, static_cast<int>(page.area.height() / page.lineHeight) - 2);
  page.columns = std::max(8, static_cast<int>(page.area.width() / metrics.horizontalAdvance(QLatin1Char('m'))));
  return page;
}

QString WithoutTabs(const QString& line) {
  if (!line.contains(QLatin1Char('\t'))) return line;
  QString result;
  for (const QChar character : line) {
    result += character == QLatin1Char('\t') ? QLatin1Char(' ') : character;
    while (character == QLatin1Char('\t') && result.size() % kTabColumns) result += QLatin1Char(' ');
  }
  return result;
}

QStringList BrokenLines(QString text, int columns) {
  QStringList lines;
  text.replace(QLatin1StringView("\r\n"), QLatin1StringView("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
  for (const QString& line : text.split(QLatin1Char('\n'))) {
    const QString plain = WithoutTabs(line);
    qsizetype start = 0;
    do {
      lines += plain.mid(start, columns);
      start += columns;
    } while (start < plain.size());
  }
  while (!lines.isEmpty() && lines.back().isEmpty()) lines.removeLast();
  return lines;
}

void DrawPage(QPainter& painter, const Page& page, const QStringList& lines, int number, int count) {
  const int first = number * page.linesPerPage;
  const int last = std::min<int>(first + page.linesPerPage, static_cast<int>(lines.size()));
  for (int i = first; i < last; ++i) {
    const QRectF line(0, (i - first) * page.lineHeight, page.area.width(), page.lineHeight);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, lines[i]);
  }
  const QRectF foot(0, page.area.height() - page.lineHeight, page.area.width(), page.lineHeight);
  painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("%1 / %2").arg(number + 1).arg(count));
}

bool AskForPrinter(QPrinter& printer) { return QPrintDialog(&printer, QApplication::activeWindow()).exec() == QDialog::Accepted; }

bool PrintText(QPrinter& printer, const QString& text) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(kFontPoints);
  const Page page = PageOf(printer, font);
  const QStringList lines = BrokenLines(text, page.columns);
  const int count = std::max<int>(1, (static_cast<int>(lines.size()) + page.linesPerPage - 1) / page.linesPerPage);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  painter.setFont(QFont(font, &printer));
  for (int number = 0; number < count; ++number) {
    if (number > 0 && !printer.newPage()) return false;
    DrawPage(painter, page, lines, number, count);
  }
  return painter.end();
}

}  // namespace

void QtPrinter::Print(std::string_view item) {
  text_ += ToQt(item);
  text_ += QLatin1Char('\n');
}

bool QtPrinter::EndDocument() {
  const QString text = std::exchange(text_, QString());
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(QStringLiteral("Morlan7"));
  const bool chosen = choosePrinter ? choosePrinter(printer) : AskForPrinter(printer);
  return chosen && PrintText(printer, text);
}

}  // namespace morlan
