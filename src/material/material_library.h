#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/project_record.h"

namespace barvon {

/// The materials that a person has used, kept in BARVON.INI in a section for each vessel:
///
///     [Material Properties Hopper]
///     Listsize=8
///     Fraction8=Sand 2.70 .100 .020 .7000 .0150 N Y
///
/// An entry is a name, specific gravity, volumetric fraction, fall velocity (ft/s), void ratio,
/// critical shear (lbs/ft^2), and whether it is cohesive and stripped.
inline constexpr char kBargeLibrary[] = "Material Properties Barge";
inline constexpr char kHopperLibrary[] = "Material Properties Hopper";

inline constexpr int kMaxLibraryEntries = 30;         // that are read
inline constexpr std::size_t kLongestMaterial = 255;  // characters of a name

/// An entry as a row of the solids table takes it.
struct Material_Record {
  std::string name;  // the first word
  float specific_gravity = 0, volume_fraction = 0, fall_velocity = 0, void_ratio = 0,
        critical_shear = 0;
  std::string cohesive = {}, stripped = {};  // "Y" or "N"; "" when the entry does not say
};

struct Material_Library {
  std::string section;
  std::vector<std::string> entries = {};  // Fraction1 and on; "" for one that is not there
};

/// The text up to and including the first blank; without one, the first line feed, escape or zero
/// character. Nothing when it has none of them.
std::optional<std::string> Next_Token(std::string_view text);

/// The entries of a section, at most kMaxLibraryEntries. A missing one is empty.
Material_Library Read_Material_List(const std::string& section);

/// What the list of materials shows, a line for each entry: its first word with the blank behind
/// it. An empty library is seeded with the names, which are not written to the settings.
std::vector<std::string> Show_Material_List(Material_Library& library,
                                            std::span<const char* const> seeds);

/// An entry's values. In one of more words than it has values the name is the first word, and the
/// values are the last ones. What is missing is 0, or not said.
Material_Record Parse_Material(const std::string& entry);

/// Whether two names are one entry: case and outer blanks do not count.
bool Same_Material(std::string_view name, std::string_view other);

/// Writes a fraction of the project as the library's next entry, which may be one that is beyond
/// those that are read.
void Add_Material_To_List(const ProjectRecord& record, int solid, Material_Library& library);

/// Adds every fraction whose name is on no line of the list. Only the first word of an entry is on
/// its line, so a name of two words is added again each time.
void Save_New_Materials(const ProjectRecord& record, std::vector<std::string> lines,
                        Material_Library& library);

/// The name with a blank for every line break and control character, which would break the files.
std::string Material_Name(const std::string& typed);

/// What to say about a name that the files do not keep as it is, else "".
std::string Material_Name_Note(const std::string& typed);

}  // namespace barvon
