#include "solver/additions_file.h"
#include "solver/assumed.h"
#include "solver/columns.h"
#include "solver/cutting.h"
#include "solver/drift.h"
#include "solver/evaluation.h"
#include "solver/layer_place.h"
#include "solver/listing_parts.h"
#include "solver/look_times.h"
#include "solver/model_input.h"
#include "solver/number_text.h"
#include "solver/outcome.h"
#include "solver/parts.h"
#include "solver/raster.h"
#include "solver/release.h"
#include "solver/settling.h"
#include "solver/simulation.h"
#include "solver/tables.h"
#include "solver/vertical.h"
#include "solver/water.h"

namespace companion {

std::string Constant_Line(std::string_view meaning, double value, std::string_view unit) {
  std::string text = Plain(value, 6);
  if (!unit.empty()) text += " " + std::string(unit);
  return Caption_Line("  " + std::string(meaning), text);
}

std::string Assumed_Water_And_Release() {
  std::string text = std::string("  Water and release") + kLineEnd;
  text += Constant_Line("Gravity", kGravity, "ft/s2");
  text += Constant_Line("Water of 1 g/cc", kSlugsPerGramCc, "slug/ft3");
  text += Constant_Line("  in mg/l", kMilligramsPerLitre);
  text += Constant_Line("Volume of 1 cu yd", kCubicFeetPerYard, "ft3");
  text += Constant_Line("Von Karman's constant", kVonKarman);
  text += Constant_Line("Roughness height over that of the profile", kRoughnessDivisor);
  text += Constant_Line("  the latter at least", kLeastRoughness, "ft");
  text += Constant_Line("  at most the depth over", kRoughnessOfDepth);
  text += Constant_Line("Same flow through another depth: factor at least", kLeastDepthRatio);
  text += Constant_Line("  at most", kGreatestDepthRatio);
  text += Constant_Line("Points of a tide's pattern are apart by", kTidePointSpacing, "s");
  text += Constant_Line("Clouds of a batch at most", kCloudsOfABatch);
  text += Constant_Line("Clouds of a run at most, unless batches are more", kCloudsOfARun);
  return text;
}

std::string Assumed_Settling() {
  std::string text = std::string("  Settling, in clouds and in what drifts") + kLineEnd;
  text += Constant_Line("Hindered settling, power of the water's share", kHinderedPower);
  text += Constant_Line("Flocs settle faster from", kFlocFrom, "mg/l");
  text += Constant_Line("  at most, times the fall velocity", kMostOfFlocs);
  return text;
}

std::string Assumed_Transport() {
  std::string text = std::string("  Passive transport") + kLineEnd;
  text += Constant_Line("Layers of a column", kLayers);
  text += Constant_Line("  the one at the bed, of an even layer", kThinnestLayer);
  text += Constant_Line("Longest step", kLongestStep, "s");
  text += Constant_Line("Width in the 4/3 law, in standard deviations", kDiffusionWidth);
  text += Constant_Line("Strain of one part of a step at most", kGreatestTurn);
  text += Constant_Line("  parts of a step at most", kMostParts);
  text += Constant_Line("  form kept below a determinant, of its variances,", kThinnest);
  text += Constant_Line("  or a root of it", kSmallest, "ft2");
  text += Constant_Line("Vertical diffusion, (1 + a Ri)^-1.5: a", kMunkAndersonFactor);
  text += Constant_Line("  Ri at most", kMunkAndersonLimit);
  text += Constant_Line("  gradients over, of the depth each way", kGradientShare);
  text += Constant_Line("  height in the shear at least, of the depth", kLeastHeightShare);
  text += Constant_Line("Pritchard's expression, factor", kPritchardFactor);
  text += Constant_Line("  (1 + a Ri)^-2: a", kPritchardRichardson);
  text += Constant_Line("  shear, of U/H", kPritchardShear);
  text += Constant_Line("  Ri at most", kPritchardLimit);
  text += Constant_Line("  at least", kPritchardLeast, "ft2/s");
  text += Constant_Line("What grains feel, of a layer's peak", kTypicalOfPeak);
  text += Constant_Line("Last of a column settles at once, of what it got", kLastOfAColumn);
  text += Constant_Line("Columns are cut every", kCutEvery, "s");
  text += Constant_Line("  looking ahead at most", kCutOutlook, "s");
  text += Constant_Line("  where the current's curvature displaces, of sigma", kCutLimit);
  text += Constant_Line("  share of each outer part", kCutShare);
  text += Constant_Line("  its distance, in sigma", kCutDistance);
  text += Constant_Line("  columns added by cutting at most", static_cast<double>(kMostCut));
  return text;
}

std::string Assumed_Evaluation() {
  std::string text = std::string("  What is looked at") + kLineEnd;
  text += Constant_Line("Tolerance of descent and collapse, relative", kTolerance);
  text += Constant_Line("  of the run that finds when phases end", kFirstRunTolerance);
  text += Constant_Line("Maps go down to, of their largest part", kLeastOfMap);
  text += Constant_Line("  their windows, of their largest value", kWindowShare);
  text += Constant_Line("  variance of a part on the grid at least", kLeastVariance, "ft2");
  text += Constant_Line("  layers are one where apart by less, of sigma", kSamePlace);
  text += Constant_Line("  and where variances differ by less, a share of", kSameSpread);
  text += Constant_Line("A distribution is nothing beyond the exponent", kFarthest);
  text += Constant_Line("Deposits go as far as, in standard deviations", kDepositReach);
  text += Constant_Line("Maxima are looked for every", kFineSpacing, "s");
  text += Constant_Line("  until, after the last cloud has left", kFineUntil, "s");
  text += Constant_Line("  then every", kMiddleSpacing, "s");
  text += Constant_Line("  until", kMiddleUntil, "s");
  text += Constant_Line("  then every", kCoarseSpacing, "s");
  text += Constant_Line("  until", kCoarseUntil, "s");
  text += Constant_Line("  then at times that grow by the factor", kLateGrowth);
  text += Constant_Line("  fine times at most, fewer a second beyond", kMostFineTimes);
  text += Constant_Line("  and this long behind every phase's end", kBehindPhase, "s");
  text += Constant_Line("  times closer than this are one", kSameTime, "s");
  text += Constant_Line("Initial mixing inside a disposal site", kInitialMixing, "s");
  text += Constant_Line("Thickness of deposit that an area is told of", kNotableThickness, "ft");
  return text;
}

std::string Assumed_Section() {
  return Section_Heading("ASSUMED") + Assumed_Water_And_Release() + Assumed_Descent_And_Collapse() +
         Assumed_Settling() + Assumed_Transport() + Assumed_Evaluation();
}

std::string Left_Out_Section() {
  static constexpr char kMound[] =
      "The mound under the point of impact: all that lands goes through the cloud on the bed, so "
      "that the thickness there is a lower bound, the area an upper one.";
  std::string text = Section_Heading("WHAT THIS MODEL LEAVES OUT");
  for (const char* left_out :
       {kMound, "Mixing of a light cloud on its way up.",
        "Clouds that fall into each other's wake.",
        "The jet of a slow release: a succession of clouds stands for it.", "Waves and wind.",
        "Pick-up from the bed, and flow of the deposit.",
        "Reversal of the tide where the run knows its average alone.",
        "Depth differences under one cloud, and shores: a cloud does not feel them.",
        "Flocs of mixed fractions.", "Chemistry: the tracer stays in the water.",
        "Stratification made by the suspension itself.",
        "Calibration: nobody has held this model against field releases."}) {
    text += Paragraph(left_out);
  }
  return text;
}

}  // namespace companion
