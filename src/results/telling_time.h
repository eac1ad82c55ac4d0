#pragma once

#include <vector>

#include "results/results.h"

namespace barvon {

/// Which species, depth and times show best what happened, where one picture of each kind is all
/// that is seen.
struct Telling_Moment {
  int species = 0;      // from 1; 0: the outputs hold no maxima
  double depth = 0;     // an output depth
  double time = 0;      // of the largest value in the series, or of the last output
  double map_time = 0;  // of the map of that species and depth to show; `time` where there is none
  double bed_time = 0;  // of the last map of thickness; 0 where there is none
};

/// The species is the one with the tightest limit (its worst value is the largest part of it);
/// without limits the one whose maxima have the largest number outside the site, inside where all
/// outside is background. The time and depth are those of its largest value in the area of that
/// limit, at the times that the limit looks at; where nothing is above the background there,
/// outside the site, else inside, at any time. The map, of that species and depth, is the one of
/// those times at which that area has its largest value; without such a time the nearest.
Telling_Moment Telling_Moment_Of(const Results& results);

}  // namespace barvon
