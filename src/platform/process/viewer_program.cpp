#include "platform/process/viewer_program.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "platform/process/bounded_output.h"
#include "platform/process/program_watch.h"
#include "platform/process/spawn_program.h"

namespace barvon {
namespace {

constexpr off_t kOutputRoom = 64 * 1024;

/// What a viewer prints, in memory that can't grow: a pipe would end the viewer once nobody reads
/// it any more, a file would grow for as long as it is open.
class Viewer_Output {
 public:
  Viewer_Output() : descriptor_(::memfd_create("output", MFD_CLOEXEC | MFD_ALLOW_SEALING)) {
    if (descriptor_ < 0) return;
    if (::ftruncate(descriptor_, kOutputRoom) != 0 ||
        ::fcntl(descriptor_, F_ADD_SEALS, F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL) != 0) {
      ::close(std::exchange(descriptor_, -1));
    }
  }
  ~Viewer_Output() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  Viewer_Output(const Viewer_Output&) = delete;
  Viewer_Output& operator=(const Viewer_Output&) = delete;

  /// -1 when there is none.
  int descriptor() const { return descriptor_; }

  std::string Last_Lines() const {
    // The viewer writes through the same open file: its place in it is this one's.
    const off_t printed = descriptor_ < 0 ? 0 : ::lseek(descriptor_, 0, SEEK_CUR);
    std::string text(static_cast<std::size_t>(std::clamp<off_t>(printed, 0, kOutputRoom)), '\0');
    const ssize_t got = text.empty() ? 0 : ::pread(descriptor_, text.data(), text.size(), 0);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    Bounded_Output lines;
    lines.Add(text);
    return lines.Last_Lines();
  }

 private:
  int descriptor_;
};

struct Viewer {
  Viewer() = default;
  ~Viewer() {
    if (handle >= 0) ::close(handle);
  }
  Viewer(const Viewer&) = delete;
  Viewer& operator=(const Viewer&) = delete;

  Viewer_Output output;
  pid_t pid = -1;
  int handle = -1;  // readable once it has ended
  Viewer_Over when_over;
};

/// True while the viewer is open.
bool Is_Open(const Viewer& viewer) {
  int status = 0;
  const pid_t ended = ::waitpid(viewer.pid, &status, WNOHANG);
  if (ended == 0) return true;
  Process_End end;
  if (ended != viewer.pid) {
    end.exit_code = -1;
  } else if (WIFSIGNALED(status)) {
    end.signal = WTERMSIG(status);
  } else {
    end.exit_code = WEXITSTATUS(status);
  }
  viewer.when_over(end, viewer.output.Last_Lines());
  return false;
}

}  // namespace

int Start_Viewer(const std::vector<std::string>& command, const std::string& folder,
                 Viewer_Over when_over) {
  const auto viewer = std::make_shared<Viewer>();
  viewer->when_over = std::move(when_over);
  const int error =
      Spawn_Program({command, {}, folder, viewer->output.descriptor(), Bond::None}, viewer->pid);
  if (error != 0) return error;
  viewer->handle = Open_End_Descriptor(viewer->pid);
  Watch_Program(viewer->handle, [viewer] { return Is_Open(*viewer); });
  return 0;
}

}  // namespace barvon
