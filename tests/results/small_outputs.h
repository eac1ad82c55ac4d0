#pragma once

#include <string>

namespace barvon::testing {

// Outputs of a run as small as one can be: a grid of 3 rows and 4 columns, a solid and a tracer,
// one depth, two times. The numbers were made up column by column.

inline const std::string kSmallLabel =
    "COMPANION SOLVER 1.0 - a model of its own from general fluid dynamics; not a validated code "
    "for permits.\r\n";

inline const std::string kSmallSeries =
    kSmallLabel +
    "Time series of \"M\xF6wenbank\"\r\n"
    "INPU  0123456789abcdef\r\n"
    "SPEC     1  Sand      mg/l\r\n"
    "SPEC     2  Copper    %   \r\n"
    "LIMI     2    1  2.000000e+00  0.000000e+00    1  6.000000e+02  9.000000e+02  2.500000e+00"
    "  7.500000e+02  criterion outside the disposal site\r\n"
    "VERD criterion outside the disposal site, 2 %:\r\n"
    "VERD   exceeded from 600 s to 900 s\r\n"
    "MAXI   6.000000e+02    1  5.000000e+00  1.500000e+01  2.500000e+00  0.000000e+00\r\n"
    "MAXI   6.000000e+02    2  5.000000e+00  4.000000e+00  2.250000e+00  1.000000e+00\r\n"
    "MAXI   1.200000e+03    1  5.000000e+00  7.500000e+00  1.250000e+00  0.000000e+00\r\n"
    "MAXI   1.200000e+03    2  5.000000e+00  2.000000e+00  1.125000e+00  5.000000e-01\r\n"
    "PEAK   6.000000e+02    1  2.000000e+01  1.100000e+02  5.500000e+01  4.000000e+00\r\n"
    "PEAK   6.000000e+02    2  5.000000e+00  1.200000e+02  6.500000e+01  4.500000e+00\r\n"
    "PEAK   1.200000e+03    1  1.000000e+01  1.300000e+02  7.500000e+01  3.000000e+00\r\n"
    "PEAK   1.200000e+03    2  2.500000e+00  1.400000e+02  8.500000e+01  3.500000e+00\r\n"
    "MASS   6.000000e+02    1  6.000000e+01  3.000000e+01  1.000000e+01  1.000000e+02\r\n"
    "MASS   6.000000e+02    2  5.000000e+01  0.000000e+00  0.000000e+00  5.000000e+01\r\n"
    "MASS   1.200000e+03    1  2.000000e+01  6.000000e+01  2.000000e+01  1.000000e+02\r\n"
    "MASS   1.200000e+03    2  5.000000e+01  0.000000e+00  0.000000e+00  5.000000e+01\r\n";

inline const std::string kSmallMaps =
    kSmallLabel +
    "Maps of \"M\xF6wenbank\"\r\n"
    "INPU  0123456789abcdef\r\n"
    "GRID     3    4  5.000000e+01  2.000000e+01\r\n"
    "SITE   0.000000e+00  5.000000e+01  2.000000e+01  4.000000e+01\r\n"
    "ZIDR   0.000000e+00  0.000000e+00  2.000000e+01  2.000000e+01\r\n"
    "POIN   5.500000e+01  2.500000e+01\r\n"
    "MAP    6.000000e+02    1  5.000000e+00  0.000000e+00    2    3    2    4\r\n"
    " 1.0000e+00 2.5000e+00 0.0000e+00\r\n"
    " 1.5000e+01 1.2500e-01 3.0000e+00\r\n"
    "MAP    6.000000e+02    2  5.000000e+00  1.000000e+00    1    1    1    2\r\n"
    " 4.0000e+00 2.2500e+00\r\n"
    "MAP    1.200000e+03    1  5.000000e+00  0.000000e+00    3    3    4    4\r\n"
    " 7.5000e+00\r\n"
    "MAP    1.200000e+03    2  5.000000e+00  1.000000e+00    1    0    1    0\r\n"
    "BED    6.000000e+02    0  0.000000e+00  0.000000e+00    2    2    3    3\r\n"
    " 2.0000e-01\r\n"
    "BED    6.000000e+02    1  0.000000e+00  0.000000e+00    2    2    3    3\r\n"
    " 2.0000e-01\r\n"
    "BED    1.200000e+03    0  0.000000e+00  0.000000e+00    2    2    3    3\r\n"
    " 3.0000e-01\r\n"
    "BED    1.200000e+03    1  0.000000e+00  0.000000e+00    2    2    3    3\r\n"
    " 3.0000e-01\r\n"
    "MOST   1.200000e+03    1  5.000000e+00  0.000000e+00    2    2    2    3\r\n"
    " 1.0000e+00 2.5000e+00\r\n"
    "MOST   1.200000e+03    2  5.000000e+00  1.000000e+00    1    1    1    1\r\n"
    " 4.0000e+00\r\n";

inline const std::string kSmallPhases =
    kSmallLabel +
    "Descent and collapse of \"M\xF6wenbank\"\r\n"
    "INPU  0123456789abcdef\r\n"
    "PHAS     1  Descent of cloud 1; ended: bed\r\n"
    "STEP   0.000000e+00  1.000000e+02  5.000000e+01  1.000000e+01  1.500000e+01  8.000000e+00"
    "  0.000000e+00  1.000000e+00  1.500000e+00  2.700000e+03  1.000000e+02\r\n";

/// A text with the first place of a part replaced, which must be there.
inline std::string With(std::string text, const std::string& part, const std::string& instead) {
  return text.replace(text.find(part), part.size(), instead);
}

}  // namespace barvon::testing
