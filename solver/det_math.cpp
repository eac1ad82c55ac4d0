#include "solver/det_math.h"

#include <cmath>

namespace companion {

double Exp(double x) { return std::exp(x); }
double Log(double x) { return std::log(x); }
double Cbrt(double x) { return std::cbrt(x); }
double Erf(double x) { return std::erf(x); }
double Pow(double base, double exponent) { return std::pow(base, exponent); }
double Sin(double radians) { return std::sin(radians); }

}  // namespace companion
