#pragma once

#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "core/desk/workspace_port.h"
#include "platform/files/app_folder.h"
#include "platform/files/safe_file.h"
#include "platform/process/event_pump.h"
#include "platform/process/program_watch.h"
#include "support/plain_support.h"

namespace barvon::testing {

/// Waits for something that comes by itself, however slow the machine is; gives up after minutes,
/// so that a fault does not hang the tests.
inline bool Comes_True(const std::function<bool()>& condition) {
  for (int tries = 0; tries < 24000; ++tries) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return false;
}

/// The number that a child wrote to a file.
inline pid_t Pid_In(const std::string& path) {
  return static_cast<pid_t>(std::atol(Read_Text(path).c_str()));
}

/// True while a process of that number runs. One that has ended and waits for its parent's notice
/// does not run.
inline bool Is_Alive(pid_t pid) {
  if (::kill(pid, 0) != 0) return false;
  std::string stat;
  if (Read_Whole_File("/proc/" + std::to_string(pid) + "/stat", stat) != 0) return false;
  const auto name_end = stat.rfind(')');
  return name_end != std::string::npos && stat.at(name_end + 2) != 'Z' &&
         stat.at(name_end + 2) != 'X';
}

/// Another value of an environment variable while it lives.
class Changed_Variable {
 public:
  Changed_Variable(std::string name, const std::string& value) : name_(std::move(name)) {
    if (const char* former = std::getenv(name_.c_str())) former_ = former;
    ::setenv(name_.c_str(), value.c_str(), 1);
  }
  ~Changed_Variable() { ::setenv(name_.c_str(), former_.c_str(), 1); }
  Changed_Variable(const Changed_Variable&) = delete;
  Changed_Variable& operator=(const Changed_Variable&) = delete;

 private:
  std::string name_, former_;
};

/// Watches programs as an interface does: their start returns at once, and how they get on is asked
/// when the test wants it.
class Watched_Programs {
 public:
  Watched_Programs()
      : former_(Set_Program_Watcher([this](int, std::function<bool()> goes_on) {
          watched_.push_back(std::move(goes_on));
        })) {}
  ~Watched_Programs() { Set_Program_Watcher(std::move(former_)); }
  Watched_Programs(const Watched_Programs&) = delete;
  Watched_Programs& operator=(const Watched_Programs&) = delete;

  /// How many are open.
  std::size_t Open() {
    std::erase_if(watched_, [](const std::function<bool()>& goes_on) { return !goes_on(); });
    return watched_.size();
  }

 private:
  std::vector<std::function<bool()>> watched_;
  Program_Watcher former_;
};

/// An application directory with a stand-in solver in it, and a workspace that listens.
class Solver_Bench {
 public:
  Solver_Bench() : former_folder_(Application_Folder()) {
    std::filesystem::create_directory(app());
    std::filesystem::current_path(app());
    Set_Application_Folder(app());
    former_pump_ = Set_Event_Pump(nullptr);
    Reset_Port();
    Port().board.show_note = [this](const Status_Note& note) { notes.push_back(note); };
    Port().run.state = [this](bool running, const std::string& program) {
      states.push_back((running ? "on " : "off ") + program);
    };
  }
  ~Solver_Bench() {
    Reset_Port();
    Set_Event_Pump(std::move(former_pump_));
    Set_Application_Folder(former_folder_);
  }
  Solver_Bench(const Solver_Bench&) = delete;
  Solver_Bench& operator=(const Solver_Bench&) = delete;

  std::string app() const { return folder / "app"; }
  std::string operator/(const std::string& name) const { return app() + "/" + name; }

  /// Puts the stand-in there under a name, with what it is to do.
  void Install(const std::string& name, const std::string& steps) {
    std::filesystem::copy_file(BARVON_TEST_CHILD, *this / name);
    Write_Text(*this / "test_child.steps", steps);
  }
  /// Puts a graphics program there. Each start of it writes a file of its process number in "open"
  /// and stays until there is a file "close"; then it prints, writes "closed" and ends.
  void Install_Viewer() {
    std::filesystem::create_directory(*this / "open");
    Write_Text(*this / "kv_graph",
               "#!/bin/sh\n: > open/$$\nwhile [ ! -e close ]; do sleep 0.02; done\n"
               "echo 'nobody may read this'\n: > closed\n");
    std::filesystem::permissions(*this / "kv_graph", std::filesystem::perms::owner_all);
  }
  /// The viewers that have been opened, once there are as many.
  std::vector<pid_t> Viewers(std::size_t count) {
    EXPECT_TRUE(Comes_True([&] { return Names_In(*this / "open").size() >= count; }));
    std::vector<pid_t> viewers;
    for (const std::string& name : Names_In(*this / "open")) {
      viewers.push_back(static_cast<pid_t>(std::atol(name.c_str())));
    }
    return viewers;
  }
  /// Calls back each time the wait for a program lets the interface live.
  void While_Waiting(std::function<void()> event) {
    Set_Event_Pump([this, event](std::chrono::milliseconds longest, int descriptor) {
      ++pumped;
      event();
      Sleep_Until_Readable(descriptor, longest);
    });
  }

  Scratch_Folder folder;
  std::vector<Status_Note> notes;
  std::vector<std::string> states;
  int pumped = 0;

 private:
  std::string former_folder_;
  Event_Pump former_pump_;
};

}  // namespace barvon::testing
