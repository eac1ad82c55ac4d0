#include "fuzz/readers.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/files/app_folder.h"

namespace barvon::fuzz {
namespace {

namespace fs = std::filesystem;

/// The folder goes with the process that made it, not with those that it forks.
struct Folder_Of_Process {
  Folder_Of_Process() {
    std::string name = fs::temp_directory_path() / "barvon-fuzz-XXXXXX";
    Demand(::mkdtemp(name.data()) != nullptr, "there is no folder to work in");
    path = name;
    Demand(Change_Current_Folder(path), "the folder can't be entered");
    Set_Application_Folder(path);
  }
  ~Folder_Of_Process() {
    std::error_code error;
    if (::getpid() == owner) fs::remove_all(path, error);
  }
  Folder_Of_Process(const Folder_Of_Process&) = delete;
  Folder_Of_Process& operator=(const Folder_Of_Process&) = delete;

  std::string path;
  pid_t owner = ::getpid();
};

}  // namespace

std::vector<Reader> Readers() {
  std::vector<Reader> all;
  for (const auto some :
       {Project_Readers(), Database_Readers(), Settings_Readers(), Left_File_Readers(),
        Text_Readers(), Number_Readers(), Solver_Input_Readers(), Result_Readers()}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

double Processor_Ms() {
  timespec now{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

void Demand(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

const std::string& Work_Folder() {
  static const Folder_Of_Process folder;
  return folder.path;
}

void Put(const std::string& name, std::string_view bytes) {
  std::ofstream file(Work_Folder() + "/" + name, std::ios::binary | std::ios::trunc);
  file << bytes;
  file.close();
  Demand(!file.fail(), "a file is written");
}

std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  Demand(file.is_open(), path.c_str());
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> Files_Of(const std::string& folder, std::string_view end) {
  std::vector<std::string> paths;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().string().ends_with(end)) paths.push_back(entry.path().string());
  }
  std::ranges::sort(paths);
  std::vector<std::string> files;
  for (const std::string& path : paths) files.push_back(Content(path));
  return files;
}

}  // namespace barvon::fuzz
