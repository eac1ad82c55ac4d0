#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "checks/check_data.h"
#include "core/model_input/model_input.h"
#include "core/model_input/wild_record.h"

namespace barvon {
namespace {

using testing::Wild_Record;

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
