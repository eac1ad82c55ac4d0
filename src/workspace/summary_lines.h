#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// The lines of the data board, composed from the record. Lines that the record's method of
/// disposal does not write are empty optionals: the board leaves them as they are.
struct Summary_Lines {
  std::array<std::string, 7> SiteLabel;
  std::array<std::string, 2> Label5;  // output options
  std::array<bool, 3> SSCheck2{};     // what is printed
  std::optional<std::string> Matlabel3, Matlabel4, Matlabel5, Matlabel6;
  bool shows_moisture = false;        // Matlabel(5) is visible
  std::array<std::string, 3> Label6;  // disposal operation
  bool SSCheck3 = false;              // dumping over a depression
};

/// "Moisture Content: " with its value.
std::string Moisture_Line(const ProjectRecord& record);

Summary_Lines Compose_Summary(const ProjectRecord& record);

}  // namespace barvon
