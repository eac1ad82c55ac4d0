#include "graphs/picture_page.h"

#include <QBuffer>
#include <QDateTime>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "pictures/shape_painter.h"
#include "pictures/shape_picture.h"
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

bool Has_Text(const Shape_List& picture, const std::string& words) {
  return std::ranges::any_of(picture.shapes, [&words](const Shape& shape) {
    const auto* text = std::get_if<Text_Shape>(&shape);
    return text != nullptr && text->text == words;
  });
}

}  // namespace

Picture_Page Page_Of(Picture& picture, const QString& title, const Results& results) {
  Picture_Page page;
  if (auto* shapes = dynamic_cast<Shape_Picture*>(&picture)) page.picture = shapes->As_Shapes();
  if (!Has_Text(page.picture, title.toStdString())) page.title = title;
  page.project = QString::fromStdString(results.title);
  const QDateTime made = QDateTime::fromSecsSinceEpoch(results.made);
  page.footnote = QStringLiteral("%1, outputs of %2")
                      .arg(QString::fromStdString(Name_Of(Base_Name(results.path))),
                           made.toString(QStringLiteral("yyyy-MM-dd HH:mm")));
  page.label = QString::fromStdString(results.label);
  return page;
}

bool Paint_Picture_Page(const Picture_Page& page, QPagedPaintDevice& device) {
  const Shape_List& picture = page.picture;
  QPainter painter;
  if (!(picture.width > 0 && picture.height > 0) || !painter.begin(&device)) return false;
  const double scale = device.logicalDpiX() / kPointsPerInch;
  painter.scale(scale, scale);
  const double width = device.width() / scale, height = device.height() / scale;
  Text_Column column(painter, width);
  const QFont small = Letters(kText, false), large = Letters(kTitle, true);
  double top = column.Put(page.title, large, 0, kInk);
  top = column.Put(page.project, page.title.isEmpty() ? large : small, top, kInk) + kGap;
  double bottom = height - column.Height(page.footnote, small) - column.Height(page.label, small);
  column.Put(page.label, small, column.Put(page.footnote, small, bottom, kQuietInk), kQuietInk);
  bottom -= kGap;
  const double fits = std::min(width / picture.width, (bottom - top) / picture.height);
  if (fits > 0) {
    painter.translate((width - fits * picture.width) / 2, top);
    painter.scale(fits, fits);
    Paint_Shapes(painter, picture, Letters(kText, false));
  }
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
