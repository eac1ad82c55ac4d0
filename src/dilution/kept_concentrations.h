#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "dilution/dilution_tables.h"

namespace barvon {

// Concentrations on their way between rows: lifted out of one, kept while their name stands
// nowhere, and found again for a name.

/// Blanks around a name are not seen.
bool Are_Same_Name(std::string_view one, std::string_view other);
/// Whether one of two names is as much of the other as a file keeps.
bool Is_One_Cut(std::string_view one, std::string_view other);
bool Holds_Name(const std::set<std::string>& names, const std::string& name);

/// Whether the row has a concentration that somebody has entered. A number 0 is none.
bool Holds_Concentration(Dilution_Tab tab, int row, const Dilution_Grids& grids);

/// Takes the concentration out of the row, under the name that it has there, with its note.
Kept_Concentration Lift(Dilution_Tab tab, int row, const std::string& name, Dilution_Grids& grids);
void Put(const Kept_Concentration& lifted, Dilution_Tab tab, int row, Dilution_Grids& grids);
/// Until its name comes back. One that nobody has entered is not worth it.
void Keep(Kept_Concentration lifted, Dilution_Tab tab, Dilution_Grids& grids);

/// What is kept for the name: what has left this very row, or else any. The latest is what counts.
/// A name that the file has cut is taken for its whole where it can be no other's.
std::optional<Kept_Concentration> Take_Kept(Dilution_Tab tab, int row, const std::string& name,
                                            Dilution_Grids& grids);
/// The same, or else what has gone from the row to another one that awaited it: an undo has brought
/// the name back.
std::optional<Kept_Concentration> Find_Concentration(Dilution_Tab tab, int row,
                                                     const std::string& name,
                                                     Dilution_Grids& grids);

}  // namespace barvon
