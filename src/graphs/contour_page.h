#pragma once

#include "graphs/map_page.h"

namespace barvon {

/// Concentrations as maps.
class Contour_Page : public Map_Page {
  Q_OBJECT

 public:
  explicit Contour_Page(QWidget* parent = nullptr);

 protected:
  Map_View First_View(const Results& results) const override;
};

}  // namespace barvon
