#include "batch/scratch_application.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "batch/interrupts.h"
#include "core/desk/settings_keys.h"
#include "platform/files/paths.h"
#include "platform/process/stray_processes.h"
#include "platform/text/letter_case.h"
#include "run/scratch_names.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFolderName = "barvon-run-";
/// In each folder, and locked by the program that made it for as long as that lives.
constexpr char kOwnerFile[] = ".barvon-run";

/// A folder that no solvers' folder has.
constexpr char kNowhere[] = ".barvon-run-nowhere";

std::string Scratch_Base() {
  const char* base = std::getenv("TMPDIR");
  return Absolute_Path(base != nullptr && *base != '\0' ? base : "/tmp");
}

/// The descriptor that holds the folder's lock, or -1. The file bears its name only once it is
/// locked, so that none without a living owner is one that is just being made.
int Lock_As_Owner(const std::string& folder) {
  const std::string owner = Join_Path(folder, kOwnerFile);
  const std::string fresh = owner + ".new";
  const int descriptor =
      ::open(fresh.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
  if (descriptor < 0) return -1;
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::rename(fresh.c_str(), owner.c_str()) == 0) {
    return descriptor;
  }
  ::unlink(fresh.c_str());
  ::close(descriptor);
  return -1;
}

/// What a run writes into its application directory: an older one's must not be found there, nor
/// the solvers' folder be written through a link.
bool Is_Made_By_A_Run(const std::string& name) {
  return Upper_Case(name).starts_with(Upper_Case(kScratchName) + ".") ||
         Equal_Ignoring_Case(name, kMarkerFile) || Equal_Ignoring_Case(name, kSettingsFile) ||
         name == kOwnerFile;
}

std::error_code Link_Entry(const fs::directory_entry& entry, const fs::path& link);

std::error_code Link_Subfolder(const fs::path& from, const fs::path& into) {
  std::error_code error;
  if (!fs::create_directory(into, error)) return error;
  fs::directory_iterator entry(from, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (const auto failed = Link_Entry(*entry, into / entry->path().filename())) return failed;
  }
  return {};  // one that can't be read is none of the solver's either
}

/// A folder behind a link is handed over as the link that it is: it may lead in a circle. One that
/// leads nowhere leads nowhere here too, so that nothing is written through it outside.
std::error_code Link_Entry(const fs::directory_entry& entry, const fs::path& link) {
  std::error_code unknown;  // a link that leads nowhere is no file
  std::error_code error;
  if (entry.is_symlink() && !entry.exists(unknown)) {
    fs::create_symlink(fs::path(kNowhere) / link.filename(), link, error);
    return error;
  }
  if (entry.is_regular_file(unknown) || (entry.is_symlink() && entry.is_directory(unknown))) {
    fs::create_symlink(entry.path(), link, error);
    return error;
  }
  // The folder for scratch folders may be in the solvers' own, which would have no end.
  const bool is_scratch = link.filename().string().starts_with(kFolderName);
  if (!entry.is_directory(unknown) || is_scratch || Interrupt_Seen() != 0) return {};
  return Link_Subfolder(entry.path(), link);
}

std::error_code Link_Files(const fs::path& from, const fs::path& into) {
  std::error_code error;
  fs::directory_iterator entry(from, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const fs::path name = entry->path().filename();
    if (Is_Made_By_A_Run(name.string())) continue;
    if (const auto failed = Link_Entry(*entry, into / name)) return failed;
  }
  return error;
}

/// True when the program that made the folder lives no longer. `lock` is then held.
bool Is_Abandoned(const fs::path& folder, int& lock) {
  struct stat status {};
  if (::lstat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) ||
      status.st_uid != ::geteuid()) {
    return false;
  }
  lock = ::open((folder / kOwnerFile).c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
  if (lock < 0) return false;
  if (::flock(lock, LOCK_EX | LOCK_NB) == 0) return true;
  ::close(lock);
  return false;
}

}  // namespace

Scratch_Application::Scratch_Application(std::string path)
    : path_(std::move(path)), lock_(Lock_As_Owner(path_)) {}

std::unique_ptr<Scratch_Application> Scratch_Application::Make(const std::string& solver_folder,
                                                               std::string& problem) {
  std::string pattern = Join_Path(Scratch_Base(), std::string(kFolderName) + "XXXXXX");
  if (mkdtemp(pattern.data()) == nullptr) {
    problem = "no scratch folder " + pattern + ": " + std::strerror(errno);
    return nullptr;
  }
  std::unique_ptr<Scratch_Application> made(new Scratch_Application(std::move(pattern)));
  const std::error_code error = Link_Files(Absolute_Path(solver_folder), made->Path());
  if (!error) return made;
  problem = "the solvers in " + solver_folder + " can't be used: " + error.message();
  return nullptr;
}

void Scratch_Application::Remove_Abandoned() {
  std::error_code error;
  fs::directory_iterator entry(Scratch_Base(), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    int lock = -1;
    if (!entry->path().filename().string().starts_with(kFolderName) ||
        !Is_Abandoned(entry->path(), lock)) {
      continue;
    }
    Kill_Strays_In(entry->path().string());
    std::error_code ignored;  // what can't be removed now is for the next call
    fs::remove_all(entry->path(), ignored);
    ::close(lock);
  }
}

Scratch_Application::~Scratch_Application() {
  std::error_code ignored;  // nobody is left to be told
  fs::remove_all(path_, ignored);
  if (lock_ >= 0) ::close(lock_);
}

}  // namespace barvon
