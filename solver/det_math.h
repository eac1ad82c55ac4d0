#pragma once

/// Elementary functions of + - * / alone: the same bits from every compiler, option and C library.
/// Each is within 1e-15 of the exact value, as a part of it, unless told otherwise. What is no
/// number stays so.
namespace companion {

/// Pi, rounded once.
inline constexpr double kPi = 3.141592653589793;

/// 0 below about -745, infinite above about 709.8.
double Exp(double x);
/// Of 0 minus infinity, of a negative number no number.
double Log(double x);
/// Any sign.
double Cbrt(double x);
/// Any sign; 1 from 6 on.
double Erf(double x);
/// For a base of 0 and above, others give no number. 0 to a positive power is 0, to a negative one
/// infinite; anything to the power 0 is 1. Within 1e-15 for results from e^-100 to e^100, within
/// 2e-15 beyond.
double Pow(double base, double exponent);
/// Within 1e-15 for angles to 1e5, at its zeros too; a larger angle is first brought within one
/// turn of 2 kPi.
double Sin(double radians);

}  // namespace companion
