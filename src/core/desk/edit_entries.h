#pragma once

namespace barvon {

/// The entries of the Edit menu by their index; 7 is a separator. The water's entry looks like one
/// too: its screen opens from a picture button, by that number.
enum Edit_Entry {
  kEditEvaluationAndTitle = 0,
  kEditSite = 1,
  kEditVelocity = 2,
  kEditKeys = 3,
  kEditMaterial = 4,
  kEditOperation = 5,
  kEditCoefficients = 6,
  kEditErrorCheck = 8,
  kEditWaterDensity = 9,
  kEditTimeAndDate = 10,
  kEditFont = 11
};

}  // namespace barvon
