#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "platform/files/file_trace.h"
#include "platform/files/known_folders.h"

namespace barvon {

/// The four outputs of a solver: "tmpfile.duo" and so on.
inline constexpr std::array<const char*, 4> kOutputExtensions{".duo", ".dup", ".dut", ".duc"};

/// What became of one output.
struct Kept_Output {
  std::string extension;
  bool written = false;  // by this run; otherwise what is there is of an earlier one
  std::string path;      // its copy beside the project; empty when there is none
  int error = 0;         // errno of a copy that failed
};

/// The outputs in the application directory, by name without regard to case. Made before a solver
/// starts, it remembers what is there, so that it can tell afterwards what this run wrote.
class Output_Files {
 public:
  explicit Output_Files(std::string application_folder);

  /// Copies each output that is there to the project's base name, over an older one of any case.
  /// A copy is whole or not made; one that fails is passed over.
  std::vector<Kept_Output> Keep(const std::string& base_name, Known_Folders& folders) const;

 private:
  struct Found {
    std::string path;  // empty when there is none
    bool written = false;
  };
  static std::map<std::string, File_Trace> Traces(const std::string& folder);
  Found Find(const std::string& extension, const std::map<std::string, File_Trace>& now) const;

  std::string folder_;
  std::map<std::string, File_Trace> before_;
};

}  // namespace barvon
