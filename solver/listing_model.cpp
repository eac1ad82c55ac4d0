#include "solver/listing_parts.h"
#include "solver/look_times.h"
#include "solver/number_text.h"
#include "solver/outcome.h"
#include "solver/tables.h"

namespace companion {

std::string Left_Out_Section() {
  std::string text = Section_Heading("WHAT THIS MODEL LEAVES OUT");
  for (const char* left_out :
       {"The mound under the point of impact: all that lands goes through the cloud on the bed, so "
        "that the thickness there is a lower bound, the area an upper one.",
        "Mixing of a light cloud on its way up.", "Clouds that fall into each other's wake.",
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
