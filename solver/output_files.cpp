#include "solver/output_files.h"

#include <csignal>
#include <cstddef>
#include <cstdio>

namespace companion {
namespace {

volatile std::sig_atomic_t told_to_end = 0;

extern "C" void Remember_To_End(int) { told_to_end = 1; }

std::string New_Name(const Output_File& file) { return file.name + ".new"; }

bool Write_New(const Output_File& file) {
  const std::string name = New_Name(file);
  std::remove(name.c_str());  // what a run that was killed has left
  std::FILE* to = std::fopen(name.c_str(), "wbx");
  if (to == nullptr) return false;
  const bool whole = std::fwrite(file.bytes.data(), 1, file.bytes.size(), to) == file.bytes.size();
  const bool closed = std::fclose(to) == 0;
  return whole && closed;
}

std::string Write_All(const std::vector<Output_File>& files) {
  std::size_t begun = 0, named = 0;
  std::string failed;
  for (const Output_File& file : files) {
    ++begun;
    if (!Write_New(file)) failed = file.name;
    if (!failed.empty() || told_to_end != 0) break;
  }
  if (failed.empty() && told_to_end == 0) {
    for (const Output_File& file : files) {
      if (std::rename(New_Name(file).c_str(), file.name.c_str()) != 0) {
        failed = file.name;
        break;
      }
      ++named;
    }
  }
  if (named == files.size()) return failed;
  for (std::size_t i = 0; i < begun; ++i) {
    std::remove((i < named ? files[i].name : New_Name(files[i])).c_str());
  }
  return failed;
}

}  // namespace

std::string Write_Outputs(const std::vector<Output_File>& files) {
  const auto before = std::signal(SIGTERM, Remember_To_End);
  std::string failed = Write_All(files);
  std::signal(SIGTERM, before == SIG_ERR ? SIG_DFL : before);
  if (told_to_end != 0) std::raise(SIGTERM);
  return failed;
}

}  // namespace companion
