#include "pictures/picture.h"

#include <qcustomplot.h>

#include <QAction>
#include <QBuffer>
#include <QHelpEvent>
#include <QSvgGenerator>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>

#include "pictures/shape_painter.h"
#include "pictures/shapes/inks.h"
#include "platform/qt/save_picture.h"
#include "platform/qt/spoken_roles.h"

namespace barvon {
namespace {

constexpr int kFrame = 2;          // room for the frame that shows the keyboard
constexpr int kSavedWidth = 1600;  // a PNG has about so many pixels at least
constexpr int kLeastEnlarged = 2, kMostEnlarged = 8;
const QColor kCaption = To_QColor(kQuietInk);

}  // namespace

Picture::Picture(const QString& name, const QString& file_name, QWidget* content, QWidget* parent)
    : QWidget(parent), content_(content), caption_(new QLabel(this)), file_name_(file_name) {
  setAccessibleName(name);
  Speak_As(this, QAccessible::Graphic);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  // Wheel and clicks are not for the content: a picture must not keep a screen from scrolling.
  content_->setAttribute(Qt::WA_TransparentForMouseEvents);
  content_->setFocusPolicy(Qt::NoFocus);
  caption_->setWordWrap(true);
  caption_->setTextFormat(Qt::PlainText);
  caption_->setAttribute(Qt::WA_TransparentForMouseEvents);
  QPalette quiet = caption_->palette();
  quiet.setColor(QPalette::WindowText, kCaption);
  caption_->setPalette(quiet);
  caption_->setContentsMargins(6, 0, 6, 4);
  caption_->hide();
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kFrame, kFrame, kFrame, kFrame);
  column->setSpacing(0);
  column->addWidget(content_, 1);
  column->addWidget(caption_);
  auto* png = new QAction(QStringLiteral("Save picture as PNG..."), this);
  auto* svg = new QAction(QStringLiteral("Save picture as SVG..."), this);
  connect(png, &QAction::triggered, this, [this] { Save("PNG", &Picture::As_Png); });
  connect(svg, &QAction::triggered, this, [this] { Save("SVG", &Picture::As_Svg); });
  addActions({png, svg});
  setContextMenuPolicy(Qt::ActionsContextMenu);
  pending_.setSingleShot(true);
  pending_.setInterval(0);
  connect(&pending_, &QTimer::timeout, this, &Picture::Catch_Up);
}

void Picture::Set_Caption(const QString& caption) {
  given_caption_ = caption;
  Show_Texts();
}

void Picture::Tell(const std::string& note, const std::string& description) {
  note_ = QString::fromStdString(note);
  setAccessibleDescription(QString::fromStdString(description));
  Show_Texts();
}

QString Picture::Caption() const {
  QStringList lines = {note_, given_caption_};
  lines.removeAll(QString());
  return lines.join(QLatin1Char('\n'));
}

int Picture::Caption_Height() const {
  if (caption_->isHidden()) return 2 * kFrame;
  return 2 * kFrame + caption_->heightForWidth(std::max(width() - 2 * kFrame, 1));
}

void Picture::Show_Texts() {
  caption_->setText(Caption());
  caption_->setVisible(!Caption().isEmpty());
}

void Picture::Data_Changed() {
  behind_ = true;
  pending_.start();
}

void Picture::Catch_Up() {
  if (!behind_) return;
  behind_ = false;
  pending_.stop();
  Build();
  Take_Font();
  layout()->activate();
  Redraw_Content();
}

void Picture::Take_Font() {
  QFont small = font();
  if (small.pointSizeF() > 0) small.setPointSizeF(small.pointSizeF() * 0.92);
  caption_->setFont(small);
  Dress_Content(small);
}

void Picture::Save(const char* kind, QByteArray (Picture::*content)()) {
  Save_Picture(file_name_.toStdString(), kind, [&] { return (this->*content)().toStdString(); });
}

void Picture::Draw_On(QPaintDevice& device) {
  const int caption_height = caption_->isHidden() ? 0 : caption_->height();
  QCPPainter painter;
  painter.begin(&device);
  painter.fillRect(rect(), Qt::white);
  painter.setMode(QCPPainter::pmNoCaching);
  painter.save();
  painter.translate(content_->pos());
  Draw_Content(painter);
  painter.restore();
  if (caption_height > 0) {
    painter.setFont(caption_->font());
    painter.setPen(kCaption);
    painter.drawText(caption_->geometry().adjusted(6, 0, -6, 0), Qt::TextWordWrap,
                     caption_->text());
  }
  painter.end();
}

QByteArray Picture::As_Png() {
  Catch_Up();
  const int enlarged =
      std::clamp((kSavedWidth + width() - 1) / std::max(width(), 1), kLeastEnlarged, kMostEnlarged);
  QImage image(size() * enlarged, QImage::Format_RGB32);
  if (image.isNull()) return {};
  image.setDevicePixelRatio(enlarged);
  image.setText(QStringLiteral("Title"), accessibleName());
  image.setText(QStringLiteral("Description"), accessibleDescription());
  Draw_On(image);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG")) return {};
  return bytes;
}

QByteArray Picture::As_Svg() {
  Catch_Up();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setSize(size());
  generator.setViewBox(rect());
  generator.setResolution(logicalDpiX());
  generator.setTitle(accessibleName());
  generator.setDescription(accessibleDescription());
  Draw_On(generator);
  return bytes;
}

QSize Picture::sizeHint() const { return {420, 280}; }

QSize Picture::minimumSizeHint() const { return {200, 150}; }

bool Picture::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), Tip_At(help->pos()), this);
    return true;
  }
  return QWidget::event(event);
}

// Once a tip is up it follows the pointer from cell to cell.
void Picture::mouseMoveEvent(QMouseEvent* event) {
  if (QToolTip::isVisible()) {
    QToolTip::showText(event->globalPosition().toPoint(), Tip_At(event->position()), this);
  }
  QWidget::mouseMoveEvent(event);
}

void Picture::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) Data_Changed();
  QWidget::changeEvent(event);
}

void Picture::showEvent(QShowEvent* event) {
  Catch_Up();
  QWidget::showEvent(event);
}

void Picture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(214, 218, 223));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace barvon
