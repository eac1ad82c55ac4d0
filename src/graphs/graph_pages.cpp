#include "graphs/graph_pages.h"

#include "graphs/contour_page.h"
#include "graphs/deposit_page.h"
#include "graphs/maxima_page.h"
#include "graphs/overview_page.h"

namespace barvon {

std::array<Graph_Page*, kGraphViews> Make_Graph_Pages(QWidget* parent) {
  return {new Overview_Page(parent), new Maxima_Page(parent), new Contour_Page(parent),
          new Deposit_Page(parent)};
}

}  // namespace barvon
