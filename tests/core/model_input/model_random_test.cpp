#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string>

#include "checks/check_data.h"
#include "core/model_input/model_input.h"
#include "core/project_file/value_slots.h"

namespace barvon {
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

/// Every slot field at random; spacings mostly sane, so that not every writing stops early.
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

bool Only_Whole_Line_Ends(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n')) return false;
    if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) return false;
  }
  return text.empty() || text.back() == '\n';
}

RC_GTEST_PROP(ModelRandom, Any_Record_Gives_Whole_Lines_Or_A_Failure_Without_Text, ()) {
  const auto record = Wild_Record();
  std::string text = "left over";
  const Failure failure = Write_Model_Input(*record, text);
  RC_CLASSIFY(failure == Failure::None);
  RC_ASSERT(Only_Whole_Line_Ends(text));
  if (failure != Failure::None) {
    RC_ASSERT(text.empty());
    RC_ASSERT(failure == Failure::Subscript || failure == Failure::Overflow ||
              failure == Failure::Division_By_Zero);
  }
}

RC_GTEST_PROP(ModelRandom, A_Second_Writing_Differs_Only_By_KEY2_And_The_Tidal_Type, ()) {
  const auto record = Wild_Record();
  const bool tidal = record->VelocityProfileType == 5;
  std::string first, second, third;
  const Failure failure = Write_Model_Input(*record, first);
  const bool key2_stays =
      record->DisposalMethod != 2 || record->KEY2 == 2 || record->VesselSpeed != 0;
  RC_ASSERT(Write_Model_Input(*record, second) == failure);
  RC_ASSERT(Write_Model_Input(*record, third) == failure);
  if (!tidal && key2_stays) RC_ASSERT(first == second);
  if (key2_stays) RC_ASSERT(second == third);
}

RC_GTEST_PROP(ModelRandom, Any_Record_Can_Be_Checked, ()) {
  const auto record = Wild_Record();
  const Error_List errors = Check_Data(*record);
  RC_ASSERT(static_cast<std::size_t>(errors.ErrorCount) == errors.entries.size());
  RC_ASSERT((errors.ErrorsFound == kTrue) == !errors.entries.empty());
}

}  // namespace
}  // namespace barvon
