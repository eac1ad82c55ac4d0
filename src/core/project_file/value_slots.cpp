#include "core/project_file/value_slots.h"

#include <array>
#include <type_traits>

#include "core/number_text.h"

namespace barvon {
namespace {

template <class T>
void Assign(T& field, double value) {
  if constexpr (std::is_same_v<T, std::int16_t>) {
    field = To_Int16(value);
  } else {
    field = value;
  }
}

/// Layer 1 with its solids, layer 2 with its solids, and so on.
constexpr int Layer_Of(int i) { return (i - 1) / kMaxSolids + 1; }
constexpr int Solid_Of(int i) { return (i - 1) % kMaxSolids + 1; }

// One row of a table: a single field, or elements 1 to COUNT of an array field.
#define BARVON_SLOT(SLOT, FIELD)                                                          \
  Slot_Row {                                                                              \
    SLOT, 1, #FIELD, std::is_same_v<decltype(ProjectRecord::FIELD), std::int16_t>, false, \
        [](const ProjectRecord& r, int) { return static_cast<double>(r.FIELD); },         \
        [](ProjectRecord& r, int, double value) { Assign(r.FIELD, value); }               \
  }
#define BARVON_SLOTS(SLOT, COUNT, FIELD)                                                           \
  Slot_Row {                                                                                       \
    SLOT, COUNT, #FIELD, std::is_same_v<decltype(ProjectRecord::FIELD)::value_type, std::int16_t>, \
        false, [](const ProjectRecord& r, int i) { return static_cast<double>(r.FIELD[i]); },      \
        [](ProjectRecord& r, int i, double value) { Assign(r.FIELD[i], value); }                   \
  }

constexpr std::array kIntRows = {
    BARVON_SLOTS(1, 4, SolidCohesive),
    BARVON_SLOT(5, ConstantDepthFlag),
    BARVON_SLOT(6, VelocityProfileType),
    BARVON_SLOT(7, PrintCollapse),
    BARVON_SLOT(8, PrintConvectiveDescent),
    BARVON_SLOT(9, NumPrintTimes),
    BARVON_SLOT(10, SeparationFlag),
    BARVON_SLOT(11, DisposalMethod),
    BARVON_SLOT(12, ZidFlag),
    BARVON_SLOT(13, JBFCFlag),
    BARVON_SLOT(14, KEY1),
    BARVON_SLOT(15, KEY2),
    BARVON_SLOT(16, KEY3),
    BARVON_SLOT(17, LAYERS),
    BARVON_SLOT(18, SiteTop),
    BARVON_SLOT(19, SiteBottom),
    BARVON_SLOT(20, MMAX0),
    BARVON_SLOT(21, ZidTop),
    BARVON_SLOT(22, ZidBottom),
    BARVON_SLOT(23, NBINS),
    BARVON_SLOT(24, SiteLeft),
    BARVON_SLOT(25, SiteRight),
    BARVON_SLOT(26, NMAX0),
    BARVON_SLOT(27, NOPENS),
    BARVON_SLOT(28, NROA0),
    BARVON_SLOT(29, NumSolids),
    BARVON_SLOT(30, NumOutputDepths),
    BARVON_SLOT(31, ZidLeft),
    BARVON_SLOT(32, ZidRight),
    BARVON_SLOTS(33, 4, SolidStripped),
    BARVON_SLOTS(37, 4, SolidTracerFlag),
    BARVON_SLOT(41, PritchardFlag),
};

constexpr std::array kRealRows = {
    BARVON_SLOT(1, AKY0),
    BARVON_SLOT(2, ALAMDA),
    BARVON_SLOT(3, ALPHA0),
    BARVON_SLOT(4, ALPHA1),
    BARVON_SLOT(5, ALPHA2),
    BARVON_SLOT(6, ALPHA3),
    BARVON_SLOT(7, ALPHA4),
    BARVON_SLOT(8, ALPHAC),
    BARVON_SLOT(9, MoistureContent),
    BARVON_SLOTS(10, 6, LayerMoisture),
    BARVON_SLOT(16, DischargeAngle),
    BARVON_SLOT(17, BargeLength),
    BARVON_SLOT(18, BargeWidth),
    BARVON_SLOT(19, PipeRadius),
    BARVON_SLOT(20, BETA),
    BARVON_SLOT(21, SpareReal21),
    BARVON_SLOT(22, BackgroundConcentration),
    BARVON_SLOT(23, SedimentConcentration),
    BARVON_SLOT(24, CriterionConcentration),
    BARVON_SLOT(25, CD),
    BARVON_SLOT(26, CD3),
    BARVON_SLOT(27, CD4),
    BARVON_SLOT(28, CDRAG),
    BARVON_SLOT(29, CFRIC),
    BARVON_SLOT(30, TracerConcentration),
    BARVON_SLOT(31, CM),
    BARVON_SLOTS(32, 4, SolidVolFraction),
    Slot_Row{36, 24, "LayerSolidFraction", false, false,
             [](const ProjectRecord& r, int i) {
               return r.LayerSolidFraction[Solid_Of(i)][Layer_Of(i)];
             },
             [](ProjectRecord& r, int i, double value) {
               r.LayerSolidFraction[Solid_Of(i)][Layer_Of(i)] = value;
             }},
    BARVON_SLOT(60, CSTRIP),
    BARVON_SLOT(61, SpareReal61),
    BARVON_SLOTS(62, 6, LayerVelX),
    BARVON_SLOT(68, SpareReal68),
    BARVON_SLOTS(69, 6, LayerVelZ),
    BARVON_SLOT(75, AvgVelocityDepth),
    BARVON_SLOT(76, DBINS),
    BARVON_SLOT(77, DEPC0),
    BARVON_SLOT(78, DHOLE),
    BARVON_SLOT(79, DischargeDepth),
    BARVON_SLOT(80, DREL1),
    BARVON_SLOT(81, DREL2),
    BARVON_SLOT(82, SiteDensity),
    BARVON_SLOT(83, LongTermTimeStep),
    BARVON_SLOT(84, VelXDepth1),
    BARVON_SLOT(85, VelXDepth2),
    BARVON_SLOT(86, VelZDepth1),
    BARVON_SLOT(87, VelZDepth2),
    BARVON_SLOT(88, DX0),
    BARVON_SLOT(89, DZ0),
    BARVON_SLOT(90, ToxicityDilution),
    BARVON_SLOT(91, FRICTN),
    BARVON_SLOT(92, GAMA),
    BARVON_SLOT(93, RHDA0),
    BARVON_SLOTS(94, 5, Densities),
    BARVON_SLOTS(99, 4, SolidSG),
    BARVON_SLOT(103, BulkDensity),
    BARVON_SLOT(104, MaterialVolumeOption),
    BARVON_SLOT(105, VesselCourse),
    BARVON_SLOT(106, SLOPEX0),
    BARVON_SLOT(107, SLOPEZ0),
    BARVON_SLOTS(108, 4, SolidCriticalShear),
    BARVON_SLOT(112, TDIS),
    BARVON_SLOT(113, BINL),
    // The one integer that travels in a real slot; its fraction is cut, not rounded.
    Slot_Row{
        114, 1, "DischargeDuration", true, true,
        [](const ProjectRecord& r, int) { return static_cast<double>(r.DischargeDuration); },
        [](ProjectRecord& r, int, double value) { r.DischargeDuration = Cut_To_Int16(value); }},
    BARVON_SLOTS(115, 12, PrintTimes),
    BARVON_SLOT(127, BargeEmptyTime),
    BARVON_SLOT(128, ContinuousTimeStart),
    BARVON_SLOT(129, SimulationDuration),
    BARVON_SLOT(130, BINW),
    BARVON_SLOT(131, VesselSpeed),
    BARVON_SLOT(132, VelX1),
    BARVON_SLOT(133, VelX2),
    BARVON_SLOT(134, AvgVelocityX),
    BARVON_SLOT(135, AvgVelocityZ),
    BARVON_SLOT(136, DischargeRate),
    BARVON_SLOTS(137, 4, SolidFallVelocity),
    BARVON_SLOTS(141, 4, SolidVoidRatio),
    BARVON_SLOTS(145, 6, LayerVolume),
    BARVON_SLOT(151, TotalVolume),
    BARVON_SLOT(152, VelZ1),
    BARVON_SLOT(153, VelZ2),
    BARVON_SLOT(154, XBARGE),
    BARVON_SLOT(155, XHOLE),
    BARVON_SLOTS(156, 5, DensityDepths),
    BARVON_SLOTS(161, 5, OutputDepths),
    BARVON_SLOT(166, ZBARGE),
    BARVON_SLOT(167, ZCRIT),
    BARVON_SLOT(168, ZHOLE),
    BARVON_SLOT(169, ZidToxicityDilution),
};

#undef BARVON_SLOT
#undef BARVON_SLOTS

constexpr bool Covers(std::span<const Slot_Row> rows, int last) {
  int next = 1;
  for (const Slot_Row& row : rows) {
    if (row.first != next) return false;
    next += row.count;
  }
  return next == last + 1;
}
static_assert(Covers(kIntRows, kIntSlots), "the integer slots follow each other without a gap");
static_assert(Covers(kRealRows, kFirstDepthSlot - 1), "the real slots follow without a gap");

}  // namespace

std::span<const Slot_Row> Int_Slot_Rows() { return kIntRows; }
std::span<const Slot_Row> Real_Slot_Rows() { return kRealRows; }

void Pack_Slots(ProjectRecord& record) {
  for (const Slot_Row& row : kIntRows) {
    for (int i = 1; i <= row.count; ++i) record.IntSlots[row.first + i - 1] = row.get(record, i);
  }
  for (const Slot_Row& row : kRealRows) {
    for (int i = 1; i <= row.count; ++i) record.RealSlots[row.first + i - 1] = row.get(record, i);
  }
  for (int b = 1; b <= kMaxGridPoints; ++b) {
    for (int a = 1; a <= kMaxGridPoints; ++a) {
      record.RealSlots[Depth_Slot(a, b, kMaxGridPoints)] = record.DepthGrid[a][b];
    }
  }
}

Failure Unpack_Slots(ProjectRecord& record) {
  try {
    for (const Slot_Row& row : kIntRows) {
      for (int i = 1; i <= row.count; ++i) row.set(record, i, record.IntSlots[row.first + i - 1]);
    }
    for (const Slot_Row& row : kRealRows) {
      for (int i = 1; i <= row.count; ++i) row.set(record, i, record.RealSlots[row.first + i - 1]);
    }
  } catch (const Run_Time_Failure& stopped) {
    return stopped.failure;
  }
  const int n = record.OldGridFile == 1 ? kShortLayoutPoints : kMaxGridPoints;
  for (int b = 1; b <= n; ++b) {
    for (int a = 1; a <= n; ++a) record.DepthGrid[a][b] = record.RealSlots[Depth_Slot(a, b, n)];
  }
  return Failure::None;
}

}  // namespace barvon
