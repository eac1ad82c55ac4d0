#pragma once

/// Elementary functions of + - * / and the square root alone: the same bits from every compiler,
/// option and C library.
namespace companion {

/// Pi and the like, rounded once.
inline constexpr double kPi = 3.141592653589793;

double Exp(double x);
double Log(double x);   // x > 0
double Cbrt(double x);  // any sign
double Erf(double x);
double Pow(double base, double exponent);  // base >= 0; 0 to a positive power is 0
double Sin(double radians);

}  // namespace companion
