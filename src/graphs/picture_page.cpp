#include "graphs/picture_page.h"

#include <QBuffer>
#include <QDateTime>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <algorithm>

#include "pictures/shape_painter.h"
#include "pictures/shapes/inks.h"
#include "platform/files/paths.h"

namespace barvon {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMargin = 36;         // points
constexpr int kResolution = 1200;      // dots per inch of a PDF
constexpr double kGap = 8;             // points, between the picture and the texts
constexpr int kTitle = 14, kText = 9;  // points

/// A sans serif that every desktop has something for.
QFont Letters(int size, bool bold) {
  QFont letters(QStringLiteral("Helvetica"));
  letters.setStyleHint(QFont::SansSerif);
  letters.setPixelSize(size);
  letters.setBold(bold);
  return letters;
}

/// Paints texts one below the other, in points.
class Text_Column {
 public:
  Text_Column(QPainter& painter, double width) : painter_(painter), width_(width) {}

  /// The height that the text takes, and the same with the text painted from there down.
  double Height(const QString& text, const QFont& letters) {
    return text.isEmpty() ? 0 : Bounds(text, letters).height();
  }
  double Put(const QString& text, const QFont& letters, double top, Colour ink) {
    if (text.isEmpty()) return top;
    const QRectF room = Bounds(text, letters).translated(0, top);
    painter_.setPen(To_QColor(ink));
    painter_.drawText(QRectF(0, top, width_, room.height()), kWrapped, text);
    return room.bottom();
  }

 private:
  static constexpr int kWrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

  QRectF Bounds(const QString& text, const QFont& letters) {
    painter_.setFont(letters);
    return painter_.boundingRect(QRectF(0, 0, width_, 1e5), kWrapped, text);
  }

  QPainter& painter_;
  double width_;
};

}  // namespace

Picture_Page Page_Of(const QByteArray& svg, const QString& title, const Results& results) {
  const QDateTime made = QDateTime::fromSecsSinceEpoch(results.made);
  return {svg, title, QString::fromStdString(results.title),
          QStringLiteral("%1, outputs of %2")
              .arg(QString::fromStdString(Name_Of(Base_Name(results.path))),
                   made.toString(QStringLiteral("yyyy-MM-dd HH:mm"))),
          QString::fromStdString(results.label)};
}

bool Paint_Picture_Page(const Picture_Page& page, QPagedPaintDevice& device) {
  QSvgRenderer picture(page.svg);
  picture.setAspectRatioMode(Qt::KeepAspectRatio);
  QPainter painter;
  if (page.svg.isEmpty() || !picture.isValid() || !painter.begin(&device)) return false;
  const double scale = device.logicalDpiX() / kPointsPerInch;
  painter.scale(scale, scale);
  const double width = device.width() / scale, height = device.height() / scale;
  Text_Column column(painter, width);
  const QFont small = Letters(kText, false);
  const double top = column.Put(page.project, small,
                                column.Put(page.title, Letters(kTitle, true), 0, kInk), kQuietInk) +
                     kGap;
  double bottom = height - column.Height(page.footnote, small) - column.Height(page.label, small);
  column.Put(page.label, small, column.Put(page.footnote, small, bottom, kQuietInk), kQuietInk);
  bottom -= kGap;
  if (bottom > top) picture.render(&painter, QRectF(0, top, width, bottom - top));
  return painter.end();
}

QByteArray Picture_Pdf(const Picture_Page& page) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(kResolution);
    writer.setTitle(page.title);
    writer.setCreator(QStringLiteral("BARVON"));
    writer.setPageLayout({QPageSize(QPageSize::Letter), QPageLayout::Landscape,
                          QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Point});
    if (!Paint_Picture_Page(page, writer)) return {};
  }
  return bytes;
}

}  // namespace barvon
