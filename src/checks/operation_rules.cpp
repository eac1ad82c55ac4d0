#include "checks/operation_rules.h"

#include "checks/references.h"
#include "core/desk/help_topics.h"
#include "core/keys.h"

namespace barvon {
namespace {

constexpr char kBadBinLength[] = "Inapproprite Length of Vessel Bin";
constexpr char kBadBinWidth[] = "Inapproprite Width of Vessel Bin";

void Check_Vessel_Location(const ProjectRecord& record, Error_List& errors) {
  if (record.XBARGE < 0 || record.ZBARGE < 0) {
    errors.Add("Location of Vessel Outside of Grid", reference::kVesselPlace);
  }
}

void Check_Hopper_Bin_Length(const ProjectRecord& record, Error_List& errors) {
  if (record.DisposalMethod == kHopper && record.BINL <= 0) {
    errors.Add(kBadBinLength, reference::kVesselLength);
  }
}

void Check_Hopper_Bin_Width(const ProjectRecord& record, Error_List& errors) {
  if (record.DisposalMethod == kHopper && record.BINW <= 0) {
    errors.Add(kBadBinWidth, reference::kVesselWidth);
  }
}

void Check_Barge_Length(const ProjectRecord& record, Error_List& errors) {
  if (record.DisposalMethod == kBarge && record.BargeLength <= 0) {
    errors.Add(kBadBinLength, reference::kVesselLength);
  }
}

/// The only one of these rules with a help topic, and that is the timing screen's.
void Check_Barge_Width(const ProjectRecord& record, Error_List& errors) {
  if (record.DisposalMethod == kBarge && record.BargeWidth <= 0) {
    errors.Add(kBadBinWidth, reference::kVesselWidth, help_topic::kSimulation);
  }
}

}  // namespace

void Check_Operation(const ProjectRecord& record, Error_List& errors) {
  Check_Vessel_Location(record, errors);
  Check_Hopper_Bin_Length(record, errors);
  Check_Hopper_Bin_Width(record, errors);
  Check_Barge_Length(record, errors);
  Check_Barge_Width(record, errors);
}

}  // namespace barvon
