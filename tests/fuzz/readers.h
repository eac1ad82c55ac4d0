#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace barvon::fuzz {

/// A file that the program reads, or a text that a person hands it.
struct Reader {
  const char* name = "";
  int share = 0;  // of all mutated files; 0: only inputs that coverage leads are for it
  /// Good files, to be changed.
  std::vector<std::string> (*samples)() = nullptr;
  /// What the program does with the bytes. Its processor time is measured.
  void (*read)(std::string_view bytes) = nullptr;
  /// What must hold of them whatever they are; nullptr: nothing beyond what `read` demands.
  void (*hold)(std::string_view bytes) = nullptr;
  /// The file that a short input stands for, where whole files would be too long to be led by
  /// coverage; nullptr: the input itself.
  std::string (*made_of)(std::string_view input) = nullptr;
};

/// All of them.
std::vector<Reader> Readers();
/// Those of each source.
std::span<const Reader> Project_Readers();
std::span<const Reader> Database_Readers();
std::span<const Reader> Settings_Readers();
std::span<const Reader> Left_File_Readers();
std::span<const Reader> Text_Readers();
std::span<const Reader> Number_Readers();
std::span<const Reader> Solver_Input_Readers();
std::span<const Reader> Result_Readers();

/// The processor time in ms that an input may take to be read; beyond it is a find.
inline constexpr double kLimitMs = 100;
/// The processor time in ms that this process has taken.
double Processor_Ms();

/// Ends the program with the words, as a crash does, where something does not hold.
void Demand(bool holds, const char* what);

/// A folder of this process, where $TMPDIR says. It is the current one and the application
/// directory, and is removed at the end.
const std::string& Work_Folder();
/// Puts a file there, not by the program's own ways.
void Put(const std::string& name, std::string_view bytes);
std::string Content(const std::string& path);
/// The files of a folder of the sources with that end, in the order of their names.
std::vector<std::string> Files_Of(const std::string& folder, std::string_view end);

}  // namespace barvon::fuzz
