#include "pictures/plot_picture.h"

#include <qcustomplot.h>

#include "pictures/plot_parts.h"

namespace barvon {

Plot_Picture::Plot_Picture(const QString& name, const QString& file_name, QWidget* parent)
    : Picture(name, file_name, new QCustomPlot, parent),
      plot_(static_cast<QCustomPlot*>(content())) {
  plot_->setLocale(QLocale::c());
  connect(plot_, &QCustomPlot::beforeReplot, this, [this] { Fit(); });
}

// The plot outlives the part of this object that it asks before it draws.
Plot_Picture::~Plot_Picture() { plot_->disconnect(this); }

void Plot_Picture::Draw_Content(QCPPainter& painter) {
  plot_->toPainter(&painter, plot_->width(), plot_->height());
}

void Plot_Picture::Dress_Content(const QFont& font) { Dress_Fonts(*plot_, font); }

void Plot_Picture::Redraw_Content() { plot_->replot(QCustomPlot::rpQueuedRefresh); }

}  // namespace barvon
