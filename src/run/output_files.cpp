#include "run/output_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/letter_case.h"
#include "run/scratch_names.h"

namespace barvon {
namespace {

/// A descriptor that is closed when it goes.
class Open_Input {
 public:
  explicit Open_Input(const std::string& path)
      : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
  ~Open_Input() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  Open_Input(const Open_Input&) = delete;
  Open_Input& operator=(const Open_Input&) = delete;
  int descriptor() const { return descriptor_; }

 private:
  int descriptor_;
};

/// Copies a file and says in which folder; whether that lasts is left to the caller.
int Copy_Whole_File(const std::string& from, const std::string& to, Unsynced_Folders& folders,
                    std::string& folder) {
  const Open_Input input(from);
  if (input.descriptor() < 0) return errno;
  struct stat source {};
  struct stat target {};
  if (::fstat(input.descriptor(), &source) != 0) return errno;
  if (!S_ISREG(source.st_mode)) return ENOTSUP;
  // The project may bear the scratch name itself: its output is where it belongs.
  if (::stat(to.c_str(), &target) == 0 && target.st_dev == source.st_dev &&
      target.st_ino == source.st_ino) {
    return 0;
  }
  Safe_File output;
  if (const int error = output.Open(to); error != 0) return error;
  std::string part(1u << 16, '\0');
  for (;;) {
    const ssize_t got = ::read(input.descriptor(), part.data(), part.size());
    if (got == 0) {
      folder = output.Folder();
      return output.Commit(&folders);
    }
    if (got < 0 && errno != EINTR) return errno;
    if (got < 0) continue;
    const int error = output.Write(std::string_view(part.data(), static_cast<std::size_t>(got)));
    if (error != 0) return error;
  }
}

}  // namespace

Output_Files::Output_Files(std::string application_folder)
    : folder_(std::move(application_folder)), before_(Traces(folder_)) {}

std::map<std::string, File_Trace> Output_Files::Traces(const std::string& folder) {
  std::map<std::string, File_Trace> traces;
  for (const char* extension : kOutputExtensions) {
    for (const std::string& path : Matching_Files(folder, std::string(kScratchName) + extension)) {
      if (const std::optional<File_Trace> trace = Trace_Of(path)) traces[path] = *trace;
    }
  }
  return traces;
}

/// Of several files whose names differ only in case, the one that this run wrote, or the newest.
Output_Files::Found Output_Files::Find(const std::string& extension,
                                       const std::map<std::string, File_Trace>& now) const {
  Found best;
  File_Trace best_trace;
  for (const auto& [path, trace] : now) {
    if (!Equal_Ignoring_Case(Name_Of(path), kScratchName + extension)) continue;
    const auto former = before_.find(path);
    const bool written = former == before_.end() || !(former->second == trace);
    const auto rank = std::tuple(written, trace.seconds, trace.nanoseconds);
    if (best.path.empty() ||
        rank > std::tuple(best.written, best_trace.seconds, best_trace.nanoseconds)) {
      best = {path, written};
      best_trace = trace;
    }
  }
  return best;
}

std::vector<Kept_Output> Output_Files::Keep(const std::string& base_name,
                                            Known_Folders& folders) const {
  const std::map<std::string, File_Trace> now = Traces(folder_);
  std::vector<Kept_Output> outputs;
  std::vector<std::string> copied_to;  // the folder of each output's copy
  Unsynced_Folders unsynced;
  for (const char* extension : kOutputExtensions) {
    const Found found = Find(extension, now);
    Kept_Output output{extension, found.written, {}, 0};
    copied_to.emplace_back();
    if (!found.path.empty()) {
      const std::string target = Path_To_Write(base_name + extension, folders);
      output.error = Copy_Whole_File(found.path, target, unsynced, copied_to.back());
      if (output.error == 0) output.path = target;
    }
    outputs.push_back(output);
  }
  const std::map<std::string, int> failed = unsynced.Sync();
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    const auto error = failed.find(copied_to[i]);
    if (error == failed.end() || outputs[i].path.empty()) continue;
    outputs[i].path.clear();
    outputs[i].error = error->second;
  }
  return outputs;
}

}  // namespace barvon
