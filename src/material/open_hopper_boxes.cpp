#include "material/open_hopper_boxes.h"

namespace barvon {
namespace {

std::optional<Hopper_Boxes>& Boxes() {
  static std::optional<Hopper_Boxes> boxes;
  return boxes;
}

}  // namespace

void Set_Open_Hopper_Boxes(std::optional<Hopper_Boxes> boxes) { Boxes() = boxes; }

Hopper_Boxes Open_Hopper_Boxes(const ProjectRecord& record) {
  return Boxes().value_or(Hopper_Boxes{record.SiteSalinity, record.SiteTemperature});
}

}  // namespace barvon
