#pragma once

#include <string>
#include <string_view>

#include "support/plain_support.h"

namespace barvon::testing {

// Records as the walk wants them, short and with values that tell them apart.

/// A site with two points: 32 by 36, spacings 100 and 200, the depth as given.
inline std::string Site_Record(const std::string& code, const std::string& depth) {
  return code + " 2\r\n 32 36\r\n   100   200\r\n" + depth +
         "\r\n  .005\r\n0\r\n 0.5 0.25\r\n0\r\n     01.0010\r\n    501.0020\r\n" + depth + "\r\n";
}

/// Twelve months; the upper X velocity is the month with the code's first digit behind the point.
inline std::string Velocity_Block(const std::string& code) {
  std::string block = code + "\r\n";
  for (int month = 1; month <= 12; ++month) {
    const std::string number = std::to_string(month);
    block += number + "\r\n      10" + std::string(6 - number.size(), ' ') + number + "." +
             code.at(1) + "            10    0.25\r\n      30     0.5            30    0.25\r\n";
  }
  return block;
}

inline std::string Solid_Line(std::string_view name, const char* cohesive, const char* stripped) {
  std::string line = "   " + std::string(name);
  line.resize(18, ' ');
  return line + "2.70  0.100  0.0200 0.7000 0.0150 " + cohesive + " " + stripped + "\r\n";
}

/// A material with one solid.
inline std::string Material_Record(const std::string& code, const std::string& name) {
  return code + std::string(37, ' ') + "1\r\n     4000\r\n" + Solid_Line(name, "N", "N") +
         "0\r\n0\r\n";
}

/// A vessel with so many openings; the length as given.
inline std::string Vessel_Record(const std::string& code, const std::string& length, int openings) {
  std::string vessel = code + "\r\n" + length + "\r\n30\r\n5\r\n20\r\n10\r\n240\r\n4\r\n" +
                       std::to_string(openings) + "\r\n";
  for (int i = 1; i <= openings; ++i) vessel += "   1.5    0.25\r\n";
  return vessel + "0\r\n7\r\n8\r\n9\r\n";
}

/// A database of two sites, of which the first has data, one material, and two vessels, of which
/// only the first is in the file of vessels.
inline void Write_Small_Database(const Scratch_Folder& folder) {
  Write_Text(folder / "dspsites.dat", "1\r\nNorth\r\n\r\n2\r\nSouth\r\n\r\n");
  Write_Text(folder / "sites.dat", "1\r\nBar\r\n\r\n");
  Write_Text(folder / "vessels.dat", "1\r\nAuk\r\n2\r\nBittern\r\n");
  Write_Text(folder / "dispdb.dat", Site_Record(" 100", "    10") + "\r\n");
  Write_Text(folder / "veldb.dat", Velocity_Block(" 100") + "\r\n");
  Write_Text(folder / "matdb.dat", Material_Record(" 100", "Sand") + "\r\n");
  Write_Text(folder / "vesdb.dat", Vessel_Record(" 100", "10", 1) + "\r\n");
}

}  // namespace barvon::testing
