#include "site/open_site_boxes.h"

#include <utility>

#include "core/number_text.h"

namespace barvon {
namespace {

std::optional<Site_Boxes>& Boxes() {
  static std::optional<Site_Boxes> boxes;
  return boxes;
}

}  // namespace

void Set_Open_Site_Boxes(std::optional<Site_Boxes> boxes) { Boxes() = std::move(boxes); }

Site_Boxes Open_Site_Boxes(const ProjectRecord& record) {
  if (Boxes()) return *Boxes();
  return {Plain_Number(record.NMAX0), Plain_Number(record.MMAX0)};
}

}  // namespace barvon
