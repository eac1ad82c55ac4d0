#pragma once

#include <span>

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// A run of slots and the field that they hold: the one place that says which is which. Saving,
/// loading and the tests go by these tables.
struct Slot_Row {
  int first = 0;           // first slot
  int count = 1;           // slots of the row; element i of the field is in first + i - 1
  const char* field = "";  // the field's name
  bool integer = false;    // the field holds 16-bit integers
  bool cut = false;        // an integer field whose fraction is cut instead of rounded
  double (*get)(const ProjectRecord&, int i) = nullptr;
  /// Throws Run_Time_Failure (Overflow) when an integer field can't hold the value.
  void (*set)(ProjectRecord&, int i, double value) = nullptr;
};

std::span<const Slot_Row> Int_Slot_Rows();
/// Slots 1 to 169; the depth grid follows from kFirstDepthSlot.
std::span<const Slot_Row> Real_Slot_Rows();

inline constexpr int kFirstDepthSlot = 170;
inline constexpr int kShortLayoutPoints = 45;  // points a side of the older layout

/// The slot of DepthGrid[a][b] in a layout of n by n grid points: b outer, a inner.
constexpr int Depth_Slot(int a, int b, int n) { return kFirstDepthSlot + (b - 1) * n + (a - 1); }

/// Fields to slots, the depth grid always 96 by 96.
void Pack_Slots(ProjectRecord& record);

/// Slots to fields; the depth grid has 45 points a side when OldGridFile is 1, otherwise 96.
/// Overflow when a value does not fit a 16-bit field; the record is then partly filled.
Failure Unpack_Slots(ProjectRecord& record);

}  // namespace barvon
