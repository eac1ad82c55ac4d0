#include "graphs/contour_page.h"

#include "results/telling_time.h"

namespace barvon {

Contour_Page::Contour_Page(QWidget* parent)
    : Map_Page(Map_Kind::concentration, QStringLiteral("Map of concentrations"), parent) {}

Map_View Contour_Page::First_View(const Results& results) const {
  const Telling_Moment moment = Telling_Moment_Of(results);
  Map_View view = View();
  view.species = moment.species;
  view.depth = moment.depth;
  view.time = moment.map_time;
  return view;
}

}  // namespace barvon
