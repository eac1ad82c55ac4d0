#pragma once

#include <memory>
#include <string>

namespace barvon {

/// An application directory for one run, so that runs at the same time don't share their
/// "Tmpfile.*": a new folder under TMPDIR with links to the files of the solvers' folder, but for
/// what a run makes itself. Subfolders are made anew with links to their files, so that what a
/// solver adds to them stays here too. It is removed with everything in it when this goes out of
/// scope.
class Scratch_Application {
 public:
  /// Null when it could not be made; `problem` says why.
  static std::unique_ptr<Scratch_Application> Make(const std::string& solver_folder,
                                                   std::string& problem);
  /// Removes those whose program was killed, with what still runs in them. Those of programs that
  /// live are left alone, those of other users too.
  static void Remove_Abandoned();
  ~Scratch_Application();
  Scratch_Application(const Scratch_Application&) = delete;
  Scratch_Application& operator=(const Scratch_Application&) = delete;

  const std::string& Path() const { return path_; }

 private:
  explicit Scratch_Application(std::string path);

  std::string path_;
  int lock_ = -1;  // held for as long as this program lives
};

}  // namespace barvon
