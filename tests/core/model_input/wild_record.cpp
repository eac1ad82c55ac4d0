#include "core/model_input/wild_record.h"

#include <rapidcheck.h>

#include <cstdint>
#include <limits>
#include <string>

#include "core/project_file/value_slots.h"

namespace barvon::testing {
namespace {

double Wild_Real() {
  return *rc::gen::oneOf(
      rc::gen::element(0.0, -0.0, 1.0, 100.0, 1e300, -1e300, 5e-324, 0.1, 1e9,
                       std::numeric_limits<double>::infinity(),
                       -std::numeric_limits<double>::infinity(),
                       std::numeric_limits<double>::quiet_NaN()),
      rc::gen::map(rc::gen::inRange(-20000, 20000), [](int i) { return i / 8.0; }),
      rc::gen::arbitrary<double>());
}

/// A count near its bound, or any.
std::int16_t Wild_Count(int most) {
  return static_cast<std::int16_t>(
      *rc::gen::weightedOneOf<int>({{12, rc::gen::inRange(0, most + 1)},
                                    {1, rc::gen::inRange(-2, most + 3)},
                                    {1, rc::gen::element(-32768, 32767)}}));
}

std::string Wild_Text() {
  return *rc::gen::oneOf(
      rc::gen::element(std::string(), std::string("\r\n"), std::string("M\u00fcnde\u4e2d"),
                       std::string("\n\r"), std::string("\xC3"), std::string(200, 'w')),
      rc::gen::arbitrary<std::string>());
}

}  // namespace

std::unique_ptr<ProjectRecord> Wild_Record() {
  auto record = std::make_unique<ProjectRecord>();
  ProjectRecord& r = *record;
  const bool tame = *rc::gen::weightedElement<bool>({{3, true}, {1, false}});
  for (const Slot_Row& row : Real_Slot_Rows()) {
    for (int i = 1; i <= row.count; ++i) {
      const double value = tame || row.integer ? *rc::gen::inRange(0, 3000) / 16.0 : Wild_Real();
      row.set(r, i, value);
    }
  }
  for (const Slot_Row& row : Int_Slot_Rows()) {
    for (int i = 1; i <= row.count; ++i) row.set(r, i, *rc::gen::inRange(-1, 3));
  }
  if (tame) r.DX0 = 50, r.DZ0 = *rc::gen::element(0.0, 60.0);
  r.MMAX0 = Wild_Count(96), r.NMAX0 = Wild_Count(96);
  r.NumSolids = Wild_Count(4), r.LAYERS = Wild_Count(6), r.NOPENS = Wild_Count(6);
  r.NBINS = Wild_Count(9), r.NROA0 = Wild_Count(5), r.NumPrintTimes = Wild_Count(12);
  r.NumOutputDepths = *rc::gen::element(0.0, 1.0, 2.5, 5.0, 5.0, 6.0);
  r.DisposalMethod = *rc::gen::element<std::int16_t>(1, 1, 2, 3, 3, 4, 0);
  r.KEY2 = *rc::gen::element<std::int16_t>(0, 1, 2);
  r.KEY3 = *rc::gen::inRange<std::int16_t>(-1, 9);
  r.VelocityProfileType = *rc::gen::element(0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 1.5);
  r.TidalAvgVelX = static_cast<float>(Wild_Real());
  r.ProjectTitle = Wild_Text();
  r.FileTypeTag = Wild_Text();
  for (auto& name : r.SolidNames) name = Wild_Text();
  if (!tame) {
    for (int a = 1; a <= kMaxGridPoints; a += 7) {
      r.DepthGrid[a][a] = Wild_Real();
      r.VelocityFieldX[a][a] = Wild_Real();
    }
  }
  return record;
}

}  // namespace barvon::testing
