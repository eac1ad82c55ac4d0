#include "run/solver_command.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>
#include <sstream>

#include "platform/files/foreign_files.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/process/search_path.h"

namespace barvon {
namespace {

std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

enum class File_Format { None, Dos, Native };

/// What a regular file is by its first bytes; trying to run it would be too late.
File_Format Format_Of(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return File_Format::None;
  struct stat status {};
  std::string start(4, '\0');
  const bool readable = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                        ::read(descriptor, start.data(), start.size()) >= 2;
  ::close(descriptor);
  if (!readable) return File_Format::None;
  if (start ==
          "\x7F"
          "ELF" ||
      start.substr(0, 2) == "#!")
    return File_Format::Native;
  return start.substr(0, 2) == "MZ" ? File_Format::Dos : File_Format::None;
}

bool Leads_Nowhere(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode) &&
         ::stat(path.c_str(), &status) != 0;
}

bool May_Be_Executed(const std::string& path) { return ::access(path.c_str(), X_OK) == 0; }

/// Files of that name in any case, the name as given first.
std::vector<std::string> Files_Named(const std::string& folder, const std::string& name) {
  std::vector<std::string> files = Matching_Files(folder, name);
  std::stable_partition(files.begin(), files.end(),
                        [&](const std::string& file) { return Name_Of(file) == name; });
  return files;
}

std::optional<std::string> Program_In(const std::string& folder, const std::string& name) {
  for (const std::string& file : Files_Named(folder, name)) {
    if (Format_Of(file) == File_Format::Native && May_Be_Executed(file) &&
        !Is_Put_By_A_Stranger(file)) {
      return file;
    }
  }
  return std::nullopt;
}

std::optional<std::string> On_Search_Path(const std::string& name) {
  for (const std::string& folder : Search_Folders()) {
    if (auto program = Program_In(folder, name)) return program;
  }
  return std::nullopt;
}

bool Has_Dos_Program(const std::string& folder, const std::string& name) {
  const auto files = Files_Named(folder, name);
  return std::any_of(files.begin(), files.end(), [](const std::string& file) {
    return Format_Of(file) == File_Format::Dos && !Is_Put_By_A_Stranger(file);
  });
}

/// The drive is the current directory, which is the application directory, so that no path has to
/// pass through the emulator's own command line.
Solver_Command Through_Dosbox(const std::string& dosbox, const std::string& dos_command) {
  return {{dosbox, "-noautoexec", "-c", "mount c .", "-c", "c:", "-c", dos_command, "-c", "exit"},
          {"SDL_VIDEODRIVER=dummy", "SDL_AUDIODRIVER=dummy"},
          {}};
}

/// One of the names of a command line's launcher or program.
bool Has_A_File_Of(const std::string& command_line, const std::string& folder) {
  std::vector<std::string> names = Words(command_line);
  if (names.empty()) return false;
  names.resize(std::min<std::size_t>(names.size(), 2));
  names.push_back(Base_Name(names.back()));
  if (names.size() > 2) names.push_back(names.front() + ".EXE");
  return std::ranges::any_of(
      names, [&](const std::string& name) { return !Matching_Files(folder, name).empty(); });
}

/// The program that a command line's launcher starts, or a command's own. A launcher alone starts
/// nothing, so that it is no solver.
bool Has_A_Program_Of(const std::string& command_line, const std::string& folder) {
  const std::vector<std::string> words = Words(command_line);
  if (words.empty()) return false;
  const std::string& program = words[words.size() > 1 ? 1 : 0];
  return !Matching_Files(folder, program).empty() ||
         !Matching_Files(folder, Base_Name(program)).empty();
}

std::string Joined(const std::vector<std::string>& words, std::size_t from) {
  std::string text;
  for (std::size_t i = from; i < words.size(); ++i) text += (i == from ? "" : " ") + words[i];
  return text;
}

/// What is in the application directory under one of the names and still can't be run.
std::string Remark_On(const std::string& folder, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    for (const std::string& file : Files_Named(folder, name)) {
      if (Is_Put_By_A_Stranger(file)) {
        return "; " + file + " belongs to another user, in a folder that everybody can write";
      }
      if (Leads_Nowhere(file)) return "; " + file + " is a link that leads nowhere";
      if (Format_Of(file) == File_Format::Native) return "; " + file + " is not executable";
      return "; " + file + " is no program of this system";
    }
  }
  return {};
}

/// What is chosen where no external solver is.
Solver_Choice Companion_Where_It_Is(const std::string& folder) {
  return Matching_Files(folder, kCompanionProgram).empty() ? Solver_Choice::External
                                                           : Solver_Choice::Companion;
}

Solver_Command Find_Companion(const std::string& folder) {
  if (const auto program = Program_In(folder, kCompanionProgram)) {
    return {{*program}, {}, {}, kCompanionName};
  }
  return {{},
          {},
          std::string("the companion solver, ") + kCompanionProgram + ", can't be run in " +
              folder + Remark_On(folder, {kCompanionProgram})};
}

}  // namespace

Solver_Command Find_Solver_Command(const std::string& command_line,
                                   const std::string& application_folder) {
  const std::vector<std::string> words = Words(command_line);
  if (words.empty()) return {{}, {}, "no program is named"};
  const std::string& launcher = words[0];
  auto found = Program_In(application_folder, launcher);
  if (!found) found = On_Search_Path(launcher);
  std::size_t arguments = 1;

  const std::size_t named = words.size() > 1 ? 1 : 0;
  std::vector<std::string> names{words[named]};
  if (Base_Name(words[named]) != words[named]) names.push_back(Base_Name(words[named]));
  for (std::size_t i = 0; i < names.size() && !found; ++i) {
    found = Program_In(application_folder, names[i]);
    arguments = named + 1;
  }
  if (found) {
    Solver_Command result{{*found}, {}, {}};
    result.command.insert(result.command.end(),
                          words.begin() + static_cast<std::ptrdiff_t>(arguments), words.end());
    return result;
  }

  if (Has_Dos_Program(application_folder, words[named])) {
    const auto dosbox = On_Search_Path("dosbox");
    if (!dosbox) {
      return {{},
              {},
              words[named] + " in " + application_folder +
                  " is a DOS program, and dosbox was not found on the search path"};
    }
    // A launcher that is there too is what the program was meant to be started by.
    const bool launched = named > 0 && (Has_Dos_Program(application_folder, launcher) ||
                                        Has_Dos_Program(application_folder, launcher + ".EXE"));
    return Through_Dosbox(*dosbox, Joined(words, launched ? 0 : named));
  }

  std::string problem =
      launcher + " was found neither in " + application_folder + " nor on the search path";
  std::vector<std::string> wanted = names;
  if (named > 0) {
    const std::string either = names.size() > 1 ? " or " + names[1] : std::string();
    problem += ", and no " + names[0] + either + " in " + application_folder + " can be run here";
    wanted.insert(wanted.begin(), launcher);
  }
  return {{}, {}, problem + Remark_On(application_folder, wanted)};
}

std::string Solver_Folder(const std::string& command_line, const std::string& own_folder,
                          const std::string& delivered_folder) {
  return Has_A_File_Of(command_line, own_folder) ? own_folder : delivered_folder;
}

Solver_Command Find_Solver_Command(const std::string& command_line,
                                   const std::string& application_folder,
                                   const std::string& delivered_folder) {
  const std::string folder = Solver_Folder(command_line, application_folder, delivered_folder);
  Solver_Command found = Find_Solver_Command(command_line, folder);
  if (folder == application_folder) return found;
  if (found.command.empty()) {
    found.problem += "; a solver of your own goes into " + application_folder;
  } else if (!found.environment.empty()) {
    return {{},
            {},
            "the solver in " + folder + " is a DOS program, which can be run in " +
                application_folder + " only; please copy it there"};
  } else if (found.command.size() > 1) {
    const std::vector<std::string> files = Files_Named(folder, found.command[1]);
    if (!files.empty()) found.command[1] = files.front();
  }
  return found;
}

bool Has_External_Solver(const std::string& command_line, const std::string& application_folder,
                         const std::string& delivered_folder) {
  return Has_A_Program_Of(command_line, application_folder) ||
         Has_A_Program_Of(command_line, delivered_folder);
}

Solver_Choice Chosen_Solver(const std::string& command_line, const std::string& application_folder,
                            const std::string& delivered_folder) {
  return Has_External_Solver(command_line, application_folder, delivered_folder)
             ? Solver_Choice::External
             : Companion_Where_It_Is(delivered_folder);
}

Solver_Command Find_Solver(const std::string& command_line, Solver_Choice choice,
                           const std::string& application_folder,
                           const std::string& delivered_folder) {
  const bool none_is_external =
      choice == Solver_Choice::External_First &&
      !Has_External_Solver(command_line, application_folder, delivered_folder);
  if (none_is_external) choice = Companion_Where_It_Is(delivered_folder);
  if (choice == Solver_Choice::Companion) return Find_Companion(delivered_folder);
  Solver_Command found = Find_Solver_Command(command_line, application_folder, delivered_folder);
  if (none_is_external && found.command.empty()) {
    found.problem += std::string("; nor is ") + kCompanionProgram + " in " + delivered_folder;
  }
  return found;
}

}  // namespace barvon
