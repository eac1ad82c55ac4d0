#include "graphs/graph_pages.h"

#include "graphs/blank_page.h"
#include "graphs/maxima_page.h"
#include "graphs/overview_page.h"

namespace barvon {

std::array<Graph_Page*, kGraphViews> Make_Graph_Pages(QWidget* parent) {
  return {new Overview_Page(parent), new Maxima_Page(parent), new Blank_Page(parent),
          new Blank_Page(parent)};
}

}  // namespace barvon
