#include "attacks/attack.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <utility>

#include "attacks/same_files.h"
#include "core/desk/recent_files.h"
#include "core/desk/workspace_port.h"
#include "platform/files/app_folder.h"
#include "platform/files/safe_file.h"
#include "run/scratch_names.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr unsigned kLongestSave = 60;  // seconds
constexpr long kWholeRoom = 64L << 20;

/// What the process of a save tells, in memory that both see. It is written while no call fails.
struct Report {
  std::atomic<bool> began, ended;
  int calls, failed;
  double seconds;
  char files[16];
  bool told, refails, unsynced;
  char told_text[4000];
  char left[2000];
  const char* names[kMostCalls];  // of the library that both have loaded
};

Report& Shared_Report() {
  static auto* const report = static_cast<Report*>(
      ::mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  return *report;
}

template <class Function>
Function* In_Library(const char* name) {
  void* const found = ::dlsym(RTLD_DEFAULT, name);
  if (found == nullptr) {
    std::fprintf(stderr, "%s: load the library of failing file calls with LD_PRELOAD\n", name);
    std::exit(2);
  }
  return reinterpret_cast<Function*>(found);
}

/// What could not be written of the settings is kept and goes there with the next that are set: the
/// same save again need not set any.
bool Is_New_Again(const std::string& states, const Attacked_Save& save) {
  for (std::size_t i = 0; i < states.size(); ++i) {
    const bool kept = save.keeps_settings && save.files[i].ends_with(".INI");
    if (states[i] != 'n' && !kept) return false;
  }
  return true;
}

std::string Joined(const std::set<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += name + "\n";
  return text;
}

std::set<std::string> Split(const char* text) {
  std::set<std::string> names;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) names.insert(line);
  return names;
}

void Set_Room(const std::string& root, long bytes) {
  const std::string size = "size=" + std::to_string(bytes);
  if (::mount("tmpfs", root.c_str(), "tmpfs", MS_REMOUNT, size.c_str()) != 0) {
    std::perror("mount");
    std::exit(2);
  }
}

long Used(const std::string& root) {
  struct statvfs room {};
  ::statvfs(root.c_str(), &room);
  return static_cast<long>((room.f_blocks - room.f_bfree) * room.f_frsize);
}

}  // namespace

Attack::Attack(std::string root, Attacked_Save save, bool fresh)
    : root_(std::move(root)), save_(std::move(save)), fresh_(fresh) {}

bool Attack::Learn() {
  Changed_Sample({root_, nullptr, {}});  // read once, before there are processes
  learning_ = Learning::Old;
  Run(Call_Plan{}, 0, -1);
  expected_ = Names();
  learning_ = Learning::New;
  learned_ = Run(Call_Plan{}, 0, -1);
  expected_.merge(Names());
  learning_ = Learning::Nothing;
  usual_words_ = Split(learned_.told_text.c_str());
  for (const auto& [name, bytes] : new_) {
    if (!bytes || Is_Same(name, bytes, old_[name])) {
      learned_.told_text = name + " is not written: " + learned_.told_text;
      return false;
    }
  }
  return !learned_.ended_badly;
}

long Attack::New_Bytes() const {
  long bytes = 0;
  for (const auto& [name, content] : new_) bytes += static_cast<long>(content->size());
  return bytes;
}

Attack_Result Attack::Run(const Call_Plan& plan) { return Run(plan, 0, -1); }
Attack_Result Attack::Kill_After(double seconds) { return Run(Call_Plan{}, seconds, -1); }
Attack_Result Attack::Run_In_Room(long bytes) { return Run(Call_Plan{}, 0, bytes); }

Attack_Result Attack::Run(const Call_Plan& plan, double kill_after, long room) {
  Report& report = Shared_Report();
  std::memset(static_cast<void*>(&report), 0, sizeof report);
  if (room >= 0) Set_Room(root_, kWholeRoom);
  Attack_Bench bench{root_, nullptr, {}};
  Lay(bench);
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child == 0) {
    In_Child(plan, room);
    std::_Exit(0);
  }
  if (kill_after > 0) {
    while (!report.began && ::waitpid(child, nullptr, WNOHANG) == 0) ::usleep(50);
    const auto end = Clock::now() + std::chrono::duration<double>(kill_after);
    while (Clock::now() < end) {
    }
    ::kill(child, SIGKILL);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  Attack_Result result;
  result.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  const bool kills = kill_after > 0 || plan.fault == Fault::Kill || plan.fault == Fault::Kill_After;
  result.ended_badly = result.killed ? !kills : !WIFEXITED(status) || WEXITSTATUS(status) != 0;
  if (room >= 0) Set_Room(root_, kWholeRoom);
  result.calls = report.calls;
  result.failed = report.failed;
  result.seconds = report.seconds;
  result.files = report.ended ? report.files : States();
  result.told = report.told;
  result.may_be_silent = save_.is_lock;
  result.told_text = report.told_text;
  result.refails = report.refails;
  result.unsynced = report.unsynced;
  for (int i = 0; report.ended && i < std::min(report.calls, kMostCalls); ++i) {
    result.call_names.emplace_back(report.names[i]);
  }
  result.left = report.ended ? Split(report.left) : Litter();
  if (learning_ != Learning::Nothing) (learning_ == Learning::Old ? old_ : new_) = Read_Files();
  // What the program does when it starts.
  Set_Application_Folder(bench.In("app"));
  Set_Save_Notes_Folder(bench.In("app"));
  Reset_Port();
  GetRecentFiles();
  std::vector<std::string> folders = {bench.In("app")};
  for (const std::string& path : Recent_Menu()) {
    if (!path.empty()) folders.push_back(fs::path(path).parent_path());
  }
  Remove_Leftover_Saves(folders);
  save_.start(bench);
  result.left_after = Litter();
  return result;
}

void Attack::In_Child(const Call_Plan& plan, long room) {
  const auto begin = In_Library<void(const Call_Plan*)>("Begin_File_Calls");
  const auto end = In_Library<int()>("End_File_Calls");
  const auto name_of = In_Library<const char*(int)>("File_Call_Name");
  const auto failed = In_Library<int()>("File_Calls_Failed");
  const auto unsynced = In_Library<bool(const char*)>("Is_Unsynced");
  ::alarm(kLongestSave);
  if (const int nowhere = ::open("/dev/null", O_WRONLY); std::getenv("ATTACK_WORDS") == nullptr) {
    ::dup2(nowhere, STDOUT_FILENO);
    ::dup2(nowhere, STDERR_FILENO);
  }
  Report& report = Shared_Report();
  Attack_Bench bench{root_, nullptr, {}};
  Set_Up_Bench(bench, bench.In(save_.files.front()));
  save_.prepare(bench);
  bench.told.clear();
  if (room >= 0) Set_Room(root_, Used(root_) + room);
  Call_Plan here = plan;
  here.folder = root_.c_str();
  const auto began = Clock::now();
  report.began = true;
  begin(&here);
  if (learning_ != Learning::Old) save_.save(bench);
  report.calls = end();
  report.seconds = std::chrono::duration<double>(Clock::now() - began).count();
  report.failed = failed();
  for (const std::string& file : save_.files) {
    const std::string path = Find_File(root_, file);
    report.unsynced =
        report.unsynced || unsynced(path.c_str()) || unsynced(fs::path(path).parent_path().c_str());
  }
  for (int i = 0; i < std::min(report.calls, kMostCalls); ++i) report.names[i] = name_of(i + 1);
  if (room >= 0) Set_Room(root_, kWholeRoom);
  std::string text;
  report.told = Was_Told(bench.told, text);
  std::snprintf(report.told_text, sizeof report.told_text, "%s", text.c_str());
  if (learning_ == Learning::Nothing) {
    std::snprintf(report.left, sizeof report.left, "%s", Joined(Litter()).c_str());
    const std::string states = States();
    std::snprintf(report.files, sizeof report.files, "%s", states.c_str());
    if (states.find_first_of("o-") != std::string::npos) {
      bench.told.clear();
      save_.save(bench);
      report.refails = !Is_New_Again(States(), save_) && !Was_Told(bench.told, text);
    }
  }
  report.ended = true;
  std::fflush(nullptr);
}

void Attack::Lay(Attack_Bench& bench) const {
  for (const auto& entry : fs::directory_iterator(root_)) fs::remove_all(entry.path());
  fs::create_directory(bench.In("app"));
  fs::create_directory(bench.In("bay"));
  // A tmpfs that is to have room for nothing would have no limit.
  Put_File(bench.In("taken"), "t");
  save_.lay(bench);
  if (!fresh_) return;
  for (const std::string& file : save_.files) fs::remove(bench.In(file));
}

Attack::Contents Attack::Read_Files() const {
  Contents contents;
  for (const std::string& file : save_.files) contents[file] = Bytes_Of(Find_File(root_, file));
  return contents;
}

std::string Attack::States() const {
  std::string states;
  if (learning_ != Learning::Nothing) return states;
  for (const std::string& file : save_.files) {
    const std::optional<std::string> seen = Bytes_Of(Find_File(root_, file));
    const auto copied = save_.copies.find(file);
    const bool is_copy =
        seen && copied != save_.copies.end() && seen == Bytes_Of(root_ + "/" + copied->second);
    const bool is_old = Is_Same(file, seen, old_.at(file)) || (save_.is_lock && !seen);
    char state = is_copy || Is_Same(file, seen, new_.at(file)) ? 'n' : is_old ? 'o' : 'x';
    if (save_.about_the_first.contains(file)) {
      if (!seen)
        state = '-';
      else if (state != states.front())
        state = 'x';
    }
    states += state;
  }
  return states;
}

std::set<std::string> Attack::Names() const {
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(root_)) {
    // A copy that mending keeps of a former file is no litter, however often it is tried.
    if (entry.path().extension().string().starts_with(".bak")) continue;
    // The mark of a run that was killed tells the next run what to end.
    if (entry.path().filename() == kRunMark) continue;
    const fs::path folder = entry.path().parent_path();
    names.insert((folder / Common_Name(entry.path().filename())).string().substr(root_.size() + 1));
  }
  return names;
}

std::set<std::string> Attack::Litter() const {
  std::set<std::string> litter;
  const std::set<std::string> names = Names();
  std::ranges::set_difference(names, expected_, std::inserter(litter, litter.end()));
  return litter;
}

bool Attack::Was_Told(const std::vector<std::string>& told, std::string& text) const {
  bool is_told = false;
  for (std::string words : told) {
    // Durations differ from time to time.
    std::ranges::replace_if(
        words, [](char c) { return c >= '0' && c <= '9'; }, '#');
    std::ranges::replace(words, '\n', ' ');
    is_told = is_told || !usual_words_.contains(words);
    text += words + "\n";
  }
  return is_told;
}

}  // namespace barvon::testing
