#include "core/desk/analysis_choices.h"

#include "core/keys.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr Evaluation_Captions kGeneralCaptions = {
    "No Diffusion of a Conservative Tracer", "Long-Term Diffusion of Conservative Tracer", nullptr};
constexpr Evaluation_Captions kTierCaptions = {"Tier II, Determine Need for Further Testing",
                                               "Tier II, Compare Water Quality",
                                               " Tier III, Compare Toxicity Results"};

}  // namespace

const Evaluation_Captions& Evaluation_Captions_Of(std::int16_t analysis_type) {
  return analysis_type == kOpenWater ? kGeneralCaptions : kTierCaptions;
}

bool Ask_To_Disable_Variable_Depth() {
  return Ask("To Use Two-Point Velocity Profile Variable Depth Must Be Disabled. Do You Wish To "
             "Disable Variable Depth Specification Now?",
             Buttons::YesNoCancel) == Answer::Yes;
}

}  // namespace barvon
