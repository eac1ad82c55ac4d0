#pragma once

#include "pictures/picture.h"

class QCustomPlot;

namespace barvon {

/// A picture whose axes, lines and cells the plotting library draws.
class Plot_Picture : public Picture {
  Q_OBJECT

 public:
  ~Plot_Picture() override;

 protected:
  Plot_Picture(const QString& name, const QString& file_name, QWidget* parent);

  /// Chooses labels and lengths for the plot's present size; runs before each drawing.
  virtual void Fit() = 0;

  void Draw_Content(QCPPainter& painter) override;
  void Dress_Content(const QFont& font) override;
  void Redraw_Content() override;

  QCustomPlot* plot() const { return plot_; }

 private:
  QCustomPlot* plot_;
};

}  // namespace barvon
