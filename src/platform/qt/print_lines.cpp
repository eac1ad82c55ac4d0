#include "platform/qt/print_lines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/printed_file.h"

namespace barvon {
namespace {

constexpr int kTab = 8;
constexpr double kHeadGap = 1.5;   // lines between the head and the text
constexpr int kPagesAtATime = 20;  // between two looks at who waits

double Top_Of(const QFontMetricsF& metrics) { return metrics.lineSpacing() * (1 + kHeadGap); }

class Pages {
 public:
  Pages(QPrinter& printer, const Printed_Text& text, QPainter& painter)
      : printer_(printer),
        text_(text),
        painter_(painter),
        metrics_(text.font, &printer),
        room_(painter.viewport()) {
    painter_.setFont(text.font);
    top_ = Top_Of(metrics_);
  }

  void Print(QString line) {
    if (line.startsWith(QLatin1Char('\f'))) {
      // The first line of a page is there already.
      if (page_ > 0 && at_ > top_) page_full_ = true;
      line.remove(0, 1);
    }
    line = Plain(line);
    do {
      const qsizetype fits = Fitting(line);
      Put(line.left(fits));
      line.remove(0, fits);
    } while (!line.isEmpty() && !Is_Over());
  }

  int page() const { return page_; }
  bool Is_Over() const { return printer_.toPage() > 0 && page_ > printer_.toPage(); }

 private:
  static QString Plain(const QString& line) {
    QString plain;
    for (const QChar c : line) {
      if (c == QLatin1Char('\t')) {
        plain += QString(kTab - plain.size() % kTab, QLatin1Char(' '));
      } else {
        plain += c < QLatin1Char(' ') ? QLatin1Char(' ') : c;
      }
    }
    return plain;
  }

  /// How many characters of the line the page has room for, at least one.
  qsizetype Fitting(const QString& line) const {
    if (metrics_.horizontalAdvance(line) <= room_.width()) return line.size();
    qsizetype least = 1;
    qsizetype most = line.size();
    while (least + 1 < most) {
      const qsizetype middle = (least + most) / 2;
      (metrics_.horizontalAdvance(line.left(middle)) <= room_.width() ? least : most) = middle;
    }
    return least;
  }

  void Put(const QString& line) {
    if (page_ == 0 || page_full_ || at_ + metrics_.lineSpacing() > room_.height()) Start_Page();
    if (In_Range()) painter_.drawText(QPointF(0, at_ + metrics_.ascent()), line);
    at_ += metrics_.lineSpacing();
  }

  void Start_Page() {
    ++page_;
    page_full_ = false;
    at_ = top_;
    if (!In_Range()) return;
    if (printed_) printer_.newPage();
    printed_ = true;
    const QRectF head(0, 0, room_.width(), metrics_.lineSpacing());
    const QString number = QStringLiteral("Page %1").arg(page_);
    const double left =
        head.width() - metrics_.horizontalAdvance(number) - metrics_.averageCharWidth();
    painter_.drawText(head, Qt::AlignLeft, metrics_.elidedText(text_.title, Qt::ElideLeft, left));
    painter_.drawText(head, Qt::AlignRight, number);
  }

  bool In_Range() const {
    return (printer_.fromPage() == 0 || page_ >= printer_.fromPage()) && !Is_Over();
  }

  QPrinter& printer_;
  const Printed_Text& text_;
  QPainter& painter_;
  QFontMetricsF metrics_;
  QRect room_;
  double top_ = 0, at_ = 0;
  int page_ = 0;
  bool page_full_ = false, printed_ = false;
};

}  // namespace

bool Print_Lines(QPrinter& printer, const Printed_Text& text) {
  Printed_File file(printer);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  Pages pages(printer, text, painter);
  int looked = 0;
  for (std::size_t i = 0; i < text.lines && !pages.Is_Over(); ++i) {
    pages.Print(text.line(i));
    if (!text.go_on || pages.page() - looked < kPagesAtATime) continue;
    looked = pages.page();
    if (text.go_on(static_cast<double>(i) / static_cast<double>(text.lines))) continue;
    printer.abort();
    return true;
  }
  return painter.end() && file.Keep() == 0;
}

int Estimated_Pages(QPrinter& printer, const Printed_Text& text) {
  const QFontMetricsF metrics(text.font, &printer);
  const double room = std::floor((printer.height() - Top_Of(metrics)) / metrics.lineSpacing());
  const double pages = std::ceil(static_cast<double>(text.lines) / std::max(1.0, room));
  const int first = std::max(1, printer.fromPage());
  const double last = printer.toPage() > 0 ? std::min<double>(pages, printer.toPage()) : pages;
  return static_cast<int>(std::max(0.0, last - first + 1));
}

}  // namespace barvon
