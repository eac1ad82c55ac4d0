#include "dilution/dilution_hints.h"

#include <array>
#include <cstddef>

namespace barvon {
namespace {

constexpr std::array<const char*, 4> kButtonHints = {
    "Press The Compute Button To Compute Dilution Requirements",
    "Press Save To File Key To Save Data To Disk and To Create Output File",
    "Press The Close Key To Return To Main BARVON Window", "Press The Help Key For On-Line Help"};

constexpr std::array<std::array<const char*, kDilutionColumn>, kDilutionTabs> kColumnHints = {
    {{"Enter The Name of a Parameter",
      "Enter The Concentration of the Parameter in the Bulk Sediement",
      "Enter The Water Quality Criteria", "Enter The Background Concentration of the Parameter",
      "Press the Compute Button To Determine the Required Dilution for Bulk Sediement"},
     {"Enter The Name of a Parameter", "Enter The Concentration of the Parameter in the Elutriate",
      "Enter The Water Quality Criteria", "Enter The Background Concentration of the Parameter",
      "Press the Compute Button To Determine the Required Dilution for Elutriate"}}};

}  // namespace

std::string Button_Hint(int index) {
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < kButtonHints.size() ? kButtonHints[at] : "";
}

std::string Column_Hint(Dilution_Tab tab, int col) {
  if (col < kNameColumn || col > kDilutionColumn) return "";
  return kColumnHints[tab][static_cast<std::size_t>(col - 1)];
}

}  // namespace barvon
