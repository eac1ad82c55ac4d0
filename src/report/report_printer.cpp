#include "report/report_printer.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QMarginsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "pictures/shape_painter.h"
#include "report/report_pages.h"

namespace barvon {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMargin = 54;       // points
constexpr double kLeastMargin = 18;  // points; printers leave that much white
constexpr int kResolution = 1200;    // dots per inch of a PDF

Report_Paper Paper_Of(const QPageLayout& layout) {
  const QRectF sheet = layout.fullRect(QPageLayout::Point);
  const QMarginsF margins = layout.margins(QPageLayout::Point);
  const auto held = [](double margin) { return std::max(margin, kLeastMargin); };
  return {sheet.width(),       sheet.height(),        held(margins.left()),
          held(margins.top()), held(margins.right()), held(margins.bottom())};
}

/// A sans serif that every desktop has something for.
QFont Letters() {
  QFont letters(QStringLiteral("Helvetica"));
  letters.setStyleHint(QFont::SansSerif);
  return letters;
}

}  // namespace

std::vector<Shape_List> Pages_On(const Report_Document& report, const QPageLayout& layout) {
  // Larger than any text, so that widths are not rounded.
  constexpr int kMeasured = 256;
  QFont plain = Letters();
  plain.setPixelSize(kMeasured);
  QFont strong = plain;
  strong.setBold(true);
  const QFontMetricsF plain_metrics(plain), strong_metrics(strong);
  const auto measure = [&](const std::string& text, double size, bool bold) {
    const QFontMetricsF& metrics = bold ? strong_metrics : plain_metrics;
    return metrics.horizontalAdvance(QString::fromStdString(text)) * size / kMeasured;
  };
  return Report_Pages(report, Paper_Of(layout), measure);
}

bool Paint_Pages(const std::vector<Shape_List>& pages, const Page_Range& range,
                 QPagedPaintDevice& device) {
  const int count = static_cast<int>(pages.size());
  const int first = std::clamp(range.first, 1, std::max(count, 1));
  const int last = range.last < 1 ? count : std::min(range.last, count);
  QPainter painter;
  if (!painter.begin(&device)) return false;
  // The places of a page count from the corner of the sheet, a device's from that of its margins
  // unless it paints the whole sheet.
  const QPageLayout& own = device.pageLayout();
  const QMarginsF margins =
      own.mode() == QPageLayout::FullPageMode ? QMarginsF() : own.margins(QPageLayout::Point);
  const double scale = device.logicalDpiX() / kPointsPerInch;
  const QFont letters = Letters();
  for (int i = first; i <= last; ++i) {
    const int page = range.last_page_first ? first + last - i : i;
    if (i > first && !device.newPage()) return false;
    painter.save();
    painter.scale(scale, scale);
    painter.translate(-margins.left(), -margins.top());
    Paint_Shapes(painter, pages[static_cast<std::size_t>(page - 1)], letters);
    painter.restore();
  }
  return painter.end();
}

QByteArray Report_Pdf(const Report_Document& report, const QPageLayout& layout) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter writer(&bytes);
  writer.setResolution(kResolution);
  writer.setPageLayout(layout);
  writer.setTitle(QString::fromStdString(report.title + " - " + report.subtitle));
  writer.setCreator(QStringLiteral("BARVON " BARVON_VERSION));
  return Paint_Pages(Pages_On(report, layout), {}, writer) ? bytes.data() : QByteArray();
}

QPageLayout Default_Report_Layout() {
  return {QPageSize(QPageSize::Letter), QPageLayout::Portrait,
          QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Point};
}

}  // namespace barvon
