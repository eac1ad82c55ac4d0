#pragma once

#include "pictures/shape_picture.h"
#include "pictures/shapes/bars.h"

namespace barvon {

/// Bars, plain, stacked or in pieces; a pointer on one reads its numbers.
class Bar_Picture : public Shape_Picture {
  Q_OBJECT

 public:
  /// Names as `Picture` takes them.
  Bar_Picture(const QString& name, const QString& file_name, QWidget* parent = nullptr);

  void Show(Bar_Chart chart);

  /// What is drawn of it.
  const Bars_Drawing& Drawn();
  QString Tip_At(const QPointF& place) override;

 protected:
  void Build() override;
  Shape_List Shapes(const Canvas& canvas) const override;

 private:
  Bar_Chart chart_;
  Bars_Drawing drawing_;
};

}  // namespace barvon
