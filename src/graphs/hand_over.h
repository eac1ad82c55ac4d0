#pragma once

#include <string>

namespace barvon {

/// What the main program hands over in its settings file.
inline constexpr char kHandOverFile[] = "BARVON.INI";
inline constexpr char kGraphFileSectionName[] = "Graph File";
inline constexpr char kGraphFileKeyName[] = "GraphFile";
inline constexpr char kSimTypeSectionName[] = "Simulation Type";
inline constexpr char kSimTypeKeyName[] = "SimType";

/// The views by the number of "Type 0" to "Type 3".
inline constexpr int kOverview = 0, kMaxima = 1, kContours = 2, kDeposit = 3;
inline constexpr int kGraphViews = 4;

struct Hand_Over {
  std::string file;      // from the root; empty: none
  int view = kOverview;  // of a type that is none as well
};

/// Reads it from the settings in the application directory. A relative name is one of that
/// directory, in which this program is started.
Hand_Over Read_Hand_Over(const std::string& application_folder);

/// Whether the name leads to a file, or to what a run has left under it, whatever the case of its
/// letters.
bool Leads_To_Results(const std::string& file);

}  // namespace barvon
