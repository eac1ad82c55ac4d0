#include "solver/det_math.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace companion {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

// The natural logarithm of 2 in two parts: a whole number of up to 20 bits times the first is
// exact.
constexpr double kLn2High = 0x1.62e42fefp-1;
constexpr double kLn2Low = 0x1.473de6af278edp-34;
constexpr double kPerLn2 = 1.4426950408889634;

// Half of pi in three parts, of 33 bits but for the last.
constexpr double kHalfPiHigh = 0x1.921fb544p+0;
constexpr double kHalfPiMiddle = 0x1.0b4611a6p-34;
constexpr double kHalfPiLow = 0x1.3198a2e037073p-69;
constexpr double kPerHalfPi = 0.6366197723675814;
constexpr double kGreatestAngle = 1e5;

constexpr double kTwoPerRootPi = 1.1283791670955126;
constexpr double kRootOfTwo = 1.4142135623730951;

// 2 to the power 0, 1/32 ... 31/32.
// clang-format off
constexpr std::array<double, 32> kRootsOfTwo = {
    1.0, 1.0218971486541166, 1.0442737824274138, 1.0671404006768237,
    1.0905077326652577, 1.1143867425958924, 1.1387886347566916, 1.1637248587775775,
    1.189207115002721, 1.215247359980469, 1.241857812073484, 1.2690509571917332,
    1.2968395546510096, 1.3252366431597413, 1.3542555469368927, 1.383909881963832,
    1.4142135623730951, 1.4451808069770467, 1.4768261459394993, 1.5091644275934228,
    1.5422108254079407, 1.5759808451078865, 1.6104903319492543, 1.645755478153965,
    1.681792830507429, 1.718619298122478, 1.7562521603732995, 1.7947090750031072,
    1.8340080864093424, 1.8741676341103, 1.9152065613971474, 1.9571441241754002};
// clang-format on

/// The nearest whole number, for sizes that an int has.
int Nearest(double x) { return static_cast<int>(x < 0 ? x - 0.5 : x + 0.5); }

/// A number as the sum of two, the second far below the last digit of the first.
struct Pair {
  double high = 0, low = 0;
};

Pair Exact_Sum(double a, double b) {
  const double sum = a + b;
  const double of_b = sum - a;
  return {sum, (a - (sum - of_b)) + (b - of_b)};
}

/// A double's upper 26 bits and the rest (Dekker 1971).
Pair Halves(double a) {
  const double shifted = 134217729.0 * a;
  const double high = shifted - (shifted - a);
  return {high, a - high};
}

Pair Exact_Product(double a, double b) {
  const double product = a * b;
  const Pair x = Halves(a), y = Halves(b);
  return {product, ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low};
}

/// 2 to a power from -1022 to 1023.
double Power_Of_Two(int exponent) {
  return std::bit_cast<double>(static_cast<std::uint64_t>(exponent + 1023) << 52);
}

/// x = mantissa 2^exponent with a mantissa from 1 to below 2; x above 0 and finite.
struct Parts {
  double mantissa = 1;
  int exponent = 0;
};

Parts Parts_Of(double x) {
  int exponent = 0;
  if (x < std::numeric_limits<double>::min()) {
    x *= 0x1p54;
    exponent = -54;
  }
  const auto bits = std::bit_cast<std::uint64_t>(x);
  exponent += static_cast<int>(bits >> 52) - 1023;
  return {std::bit_cast<double>((bits & 0xfffffffffffffu) | 0x3ff0000000000000u), exponent};
}

/// The same with a mantissa around 1, from the root of 1/2 to that of 2.
Parts Balanced_Parts(double x) {
  Parts parts = Parts_Of(x);
  if (parts.mantissa > kRootOfTwo) {
    parts.mantissa /= 2;
    ++parts.exponent;
  }
  return parts;
}

/// What follows 2 s in log((1 + s)/(1 - s)), for |s| < 0.172: 2 s^3/3 + 2 s^5/5 + ...
double Log_Tail(double s) {
  const double z = s * s, w = z * z;
  const double even =
      2.0 / 3 + w * (2.0 / 7 + w * (2.0 / 11 + w * (2.0 / 15 + w * (2.0 / 19 + w * (2.0 / 23)))));
  const double odd = 2.0 / 5 + w * (2.0 / 9 + w * (2.0 / 13 + w * (2.0 / 17 + w * (2.0 / 21))));
  return s * z * (even + z * odd);
}

/// The logarithm to some 60 bits, so that a power keeps its digits.
Pair Long_Log(double x) {
  const Parts parts = Balanced_Parts(x);
  const double above = parts.mantissa - 1;
  const Pair below = Exact_Sum(parts.mantissa, 1);
  const double s = above / below.high;
  const Pair back = Exact_Product(s, below.high);
  const double rest = (((above - back.high) - back.low) - s * below.low) / below.high;
  const Pair sum = Exact_Sum(parts.exponent * kLn2High, 2 * s);
  const double low = sum.low + (parts.exponent * kLn2Low + 2 * rest + Log_Tail(s));
  return Exact_Sum(sum.high, low);
}

// erf at 0, 1/16, 2/16 ... 6.
constexpr int kErfPieces = 97;
// clang-format off
constexpr std::array<double, kErfPieces> kErfAtPoints = {
    0.0, 0.07043197772238707, 0.1403162048013338, 0.20911767705937584,
    0.27632639016823696, 0.341468633501595, 0.4041169094348223, 0.463898135749933,
    0.5204998778130465, 0.5736744566155919, 0.623240882188418, 0.6690846628860813,
    0.7111556336535151, 0.749464025586362, 0.7840750610598597, 0.8151024010343998,
    0.8427007929497149, 0.8670582694349528, 0.8883882317017078, 0.9069217197816865,
    0.9229001282564583, 0.9365685747113888, 0.9481700727820903, 0.95794060605646,
    0.9661051464753108, 0.9728746138209335, 0.9784437332399837, 0.982989716601978,
    0.9866716712191824, 0.9896306257947752, 0.9919900576701199, 0.9938568063952132,
    0.9953222650189527, 0.9964637508747902, 0.9973459706405177, 0.9980225088163892,
    0.9985372834133188, 0.9989259267092776, 0.9992170617821089, 0.9994334567454198,
    0.999593047982555, 0.9997098311383266, 0.9997946242638588, 0.9998557114825746,
    0.9998993780778803, 0.9999303492456073, 0.9999521451602562, 0.9999673647128524,
    0.9999779095030014, 0.9999851585892071, 0.9999901032653747, 0.999993449849224,
    0.9999956972205363, 0.9999971946873958, 0.9999981847185726, 0.9999988341746511,
    0.9999992569016276, 0.999999529912161, 0.9999997048598075, 0.9999998160959875,
    0.9999998862727434, 0.9999999302015868, 0.999999957486056, 0.9999999743008093,
    0.9999999845827421, 0.9999999908210709, 0.9999999945765992, 0.999999996819877,
    0.9999999981494259, 0.9999999989312964, 0.9999999993875167, 0.9999999996516503,
    0.9999999998033839, 0.9999999998898706, 0.9999999999387839, 0.999999999966232,
    0.9999999999815149, 0.9999999999899583, 0.9999999999945866, 0.999999999997104,
    0.9999999999984626, 0.99999999999919, 0.9999999999995766, 0.9999999999997803,
    0.9999999999998869, 0.9999999999999423, 0.9999999999999707, 0.9999999999999852,
    0.9999999999999927, 0.9999999999999963, 0.9999999999999982, 0.9999999999999991,
    0.9999999999999996, 0.9999999999999998, 0.9999999999999999, 1.0,
    1.0};
// clang-format on

/// Taylor's series of erf about each of those points, good to half their distance.
constexpr std::size_t kErfTerms = 12;
using Erf_Series = std::array<std::array<double, kErfTerms>, kErfPieces>;

Erf_Series Series_Of_Erf() {
  Erf_Series series{};
  for (int piece = 0; piece < kErfPieces; ++piece) {
    const double x = piece / 16.0;
    std::array<double, kErfTerms>& terms = series[static_cast<std::size_t>(piece)];
    terms[0] = kErfAtPoints[static_cast<std::size_t>(piece)];
    // The bell's own series g: (n + 1) g[n+1] = -2 x g[n] - 2 g[n-1].
    double before = 0, bell = kTwoPerRootPi * Exp(-x * x);
    for (std::size_t n = 0; n + 1 < kErfTerms; ++n) {
      terms[n + 1] = bell / static_cast<double>(n + 1);
      const double next = (-2 * x * bell - 2 * before) / static_cast<double>(n + 1);
      before = bell;
      bell = next;
    }
  }
  return series;
}

/// For angles to a little over a quarter of pi, by Taylor's series.
double Sin_Near_0(double r) {
  const double z = r * r;
  double sum = 1 / 355687428096000.0;
  sum = sum * z - 1 / 1307674368000.0;
  sum = sum * z + 1 / 6227020800.0;
  sum = sum * z - 1 / 39916800.0;
  sum = sum * z + 1 / 362880.0;
  sum = sum * z - 1 / 5040.0;
  sum = sum * z + 1 / 120.0;
  sum = sum * z - 1 / 6.0;
  return r + r * z * sum;
}

double Cos_Near_0(double r) {
  const double z = r * r;
  double sum = 1 / 20922789888000.0;
  sum = sum * z - 1 / 87178291200.0;
  sum = sum * z + 1 / 479001600.0;
  sum = sum * z - 1 / 3628800.0;
  sum = sum * z + 1 / 40320.0;
  sum = sum * z - 1 / 720.0;
  sum = sum * z + 1 / 24.0;
  return 1 + (z * z * sum - z / 2);
}

}  // namespace

double Exp(double x) {
  if (x != x) return x;
  if (x > 709.79) return kInfinity;
  if (x < -745.2) return 0;
  // x is a whole number of 32nds of log 2 and r, which is at most half of one.
  const int whole = Nearest(x * (32 * kPerLn2));
  const double r = (x - whole * (kLn2High / 32)) - whole * (kLn2Low / 32);
  const double z = r * r;
  const double sum = r + z * ((0.5 + r * (1 / 6.0)) + z * ((1 / 24.0 + r * (1 / 120.0)) + z / 720));
  const double root = kRootsOfTwo[static_cast<std::size_t>(whole & 31)];
  const double value = root + root * sum;
  const int power = (whole - (whole & 31)) / 32;
  if (power >= -1022 && power <= 1023) return value * Power_Of_Two(power);
  const int half = power / 2;
  return value * Power_Of_Two(half) * Power_Of_Two(power - half);
}

double Log(double x) {
  if (x != x || x == kInfinity) return x;
  if (x < 0) return kNoNumber;
  if (x == 0) return -kInfinity;
  const Parts parts = Balanced_Parts(x);
  const double above = parts.mantissa - 1;
  const double s = above / (parts.mantissa + 1);
  return parts.exponent * kLn2High + (parts.exponent * kLn2Low + (Log_Tail(s) + 2 * s));
}

double Cbrt(double x) {
  if (x != x || x == 0 || x == kInfinity || x == -kInfinity) return x;
  const Parts parts = Parts_Of(std::abs(x));
  // The exponent to a multiple of 3, downward: the number left is from 1 to below 8.
  const int third = (parts.exponent + 1200) / 3 - 400;
  const double left = parts.mantissa * Power_Of_Two(parts.exponent - 3 * third);
  // Within 0.2 %; Halley's step cubes the error, Newton's squares it and leaves half a digit.
  double y = 0.6272947 +
             left * (0.4491937 + left * (-0.08377507 + left * (0.009583818 - left * 0.0004321008)));
  const double cube = y * y * y;
  y = y * (cube + 2 * left) / (2 * cube + left);
  y = y - (y - left / (y * y)) / 3;
  y *= Power_Of_Two(third);
  return x < 0 ? -y : y;
}

double Erf(double x) {
  static const Erf_Series series = Series_Of_Erf();
  if (x != x) return x;
  const double size = std::abs(x);
  double value = 1;
  if (size < 6) {
    const int piece = Nearest(size * 16);
    const double h = size - piece / 16.0;
    const std::array<double, kErfTerms>& terms = series[static_cast<std::size_t>(piece)];
    const double z = h * h;
    const double odd =
        terms[1] +
        z * (terms[3] + z * (terms[5] + z * (terms[7] + z * (terms[9] + z * terms[11]))));
    const double even = terms[2] + z * (terms[4] + z * (terms[6] + z * (terms[8] + z * terms[10])));
    value = terms[0] + h * (odd + h * even);
  }
  return x < 0 ? -value : value;
}

double Pow(double base, double exponent) {
  if (exponent == 0 || base == 1) return 1;
  if (base != base || exponent != exponent || base < 0) return kNoNumber;
  if (base == 0 || base == kInfinity) return (base == 0) == (exponent > 0) ? 0 : kInfinity;
  const Pair log = Long_Log(base);
  const double rough = exponent * log.high;
  if (rough > 710 || rough < -746) return rough > 0 ? kInfinity : 0;
  const Pair product = Exact_Product(exponent, log.high);
  const double value = Exp(product.high);
  if (value == 0 || value == kInfinity) return value;
  return value + value * (product.low + exponent * log.low);
}

double Sin(double radians) {
  if (!(std::abs(radians) < kInfinity)) return kNoNumber;
  double angle = radians;
  if (std::abs(angle) > kGreatestAngle) angle = std::fmod(angle, 2 * kPi);
  const int quarters = Nearest(angle * kPerHalfPi);
  const double high = angle - quarters * kHalfPiHigh;
  const Pair r = Exact_Sum(high, -quarters * kHalfPiMiddle);
  const double near = r.high + (r.low - quarters * kHalfPiLow);
  switch (quarters & 3) {
    case 0:
      return Sin_Near_0(near);
    case 1:
      return Cos_Near_0(near);
    case 2:
      return -Sin_Near_0(near);
    default:
      return -Cos_Near_0(near);
  }
}

}  // namespace companion
