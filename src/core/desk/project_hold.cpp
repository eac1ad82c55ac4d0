#include "core/desk/project_hold.h"

#include <sys/stat.h>

#include <climits>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"
#include "platform/files/check_sum.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/user_folder.h"

namespace barvon {
namespace {

constexpr std::string_view kEnding = ".barvon-lock";

struct Hold {
  std::string path;  // as it was opened
  std::optional<File_State> state;
  Project_Locks locks;
  std::string unsaved_note;
};

Hold& This_Hold() {
  static Hold hold;
  return hold;
}

std::string Behind_Links(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = Path_To_Write(Absolute_Path(path));
  const auto whole = std::filesystem::weakly_canonical(file, error);
  return error ? file.string() : whole.string();
}

bool Is_One_Project(const std::string& path, const std::string& other) {
  if (path.empty() || other.empty()) return false;
  std::error_code error;
  return Behind_Links(path) == Behind_Links(other) ||
         std::filesystem::equivalent(Path_To_Write(path), Path_To_Write(other), error);
}

/// The lock that all hard links of a file share; "" when it has none but itself. A save parts the
/// name that it writes from the others.
std::string Shared_Lock_Path(const std::string& project) {
  struct stat status {};
  if (::stat(Path_To_Write(project).c_str(), &status) != 0 || status.st_nlink < 2) return {};
  const std::optional<std::string> folder = User_Folder();
  if (!folder) return {};
  return Join_Path(*folder, std::to_string(status.st_dev) + "-" + std::to_string(status.st_ino) +
                                std::string(kEnding));
}

std::string Name_Of_Holder(const Lock_File& lock) {
  return lock.Holder() ? Holder_In_Words(*lock.Holder()) : "somebody whose name can't be read";
}

}  // namespace

std::optional<File_State> State_Of_File(const std::string& path) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  struct stat status {};
  if (::stat(Path_To_Write(path).c_str(), &status) != 0) return std::nullopt;
  return File_State{status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec, status.st_size};
}

std::string Lock_Path_Of(const std::string& project) {
  const std::string file = Behind_Links(project);
  std::string name = "." + Name_Of(file);
  const std::size_t room = NAME_MAX - kEnding.size();
  // Two long names that are cut alike would be taken for one project.
  if (name.size() > room) {
    const std::string mark = "~" + std::to_string(Check_Sum(name));
    name = name.substr(0, room - mark.size()) + mark;
  }
  return Join_Path(Folder_Of(file), name + std::string(kEnding));
}

/// False when somebody holds the project and a person does not want it all the same. What is
/// another host's is this window's then; a running window of this host keeps its own.
bool Project_Claim::Lock(const std::string& question) {
  const Hold& hold = This_Hold();
  const std::string beside = Lock_Path_Of(path_);
  const std::string shared = Shared_Lock_Path(path_);
  const bool has_beside = hold.locks.beside.Is_Under(beside);
  const bool has_shared = hold.locks.shared.Is_Held() && hold.locks.shared.Path() == shared;
  if (has_beside && (shared.empty() || has_shared)) return true;
  locks_.emplace();
  const auto take = [&](Lock_File& lock, const std::string& path) {
    if (lock.Take(path) != Lock_File::Outcome::Held) return true;
    const Answer answer =
        Show_Message({Name_Of(path_) + " is open in another window: " + Name_Of_Holder(lock) +
                          ".\n\n" + question,
                      kMessageTitle, Buttons::YesNo, Icon::Warning, Answer::No, Answer::No});
    if (answer == Answer::Yes) lock.Take(path, Lock_File::Foreign::Goes);
    return answer == Answer::Yes;
  };
  if (!has_beside && !take(locks_->beside, beside)) return false;
  return shared.empty() || has_shared || take(locks_->shared, shared);
}

bool Project_Claim::To_Open(const std::string& path) {
  path_ = path;
  // Before the load: what is written while it lasts is a change.
  state_ = State_Of_File(path);
  return Lock(
      "Open it all the same? Work on one copy only: what is saved last replaces the other. BARVON "
      "asks before it saves over it.");
}

bool Project_Claim::To_Save(const std::string& path) {
  path_ = path;
  if (!Lock("Save over it all the same? The changes of the other window are lost when you do, and "
            "yours when it saves.")) {
    return false;
  }
  const Hold& hold = This_Hold();
  state_ = State_Of_File(path);
  // The folder may have another name since.
  const bool is_open_one =
      Is_One_Project(path, hold.path) || hold.locks.beside.Is_Under(Lock_Path_Of(path));
  // A file that was not there, or not known, when the project was taken up is another's now.
  if (!state_ || state_ == hold.state || !is_open_one) return true;
  return Show_Message({Name_Of(path) +
                           " has been changed on the disk since it was opened or saved here. Save "
                           "over it?",
                       kMessageTitle, Buttons::YesNo, Icon::Warning, Answer::No, Answer::No}) ==
         Answer::Yes;
}

void Project_Claim::Keep() { Keep(state_); }

void Project_Claim::Keep(std::optional<File_State> state) {
  Hold& hold = This_Hold();
  hold.path = path_;
  hold.state = state;
  Take_Back_Unsaved_Note();
  // What the window had already was not taken again.
  if (locks_ && !hold.locks.beside.Is_Under(Lock_Path_Of(path_))) {
    hold.locks.beside = std::move(locks_->beside);
  }
  const std::string shared = Shared_Lock_Path(path_);
  if (locks_ && locks_->shared.Is_Held()) hold.locks.shared = std::move(locks_->shared);
  // The links that a save has parted the name from are somebody else's.
  if (hold.locks.shared.Path() != shared) hold.locks.shared.Release();
  locks_.reset();
}

void Hold_What_Is_Free() {
  Hold& hold = This_Hold();
  if (hold.path.empty()) return;
  if (!hold.locks.beside.Is_Held()) hold.locks.beside.Take(Lock_Path_Of(hold.path));
  const std::string shared = Shared_Lock_Path(hold.path);
  if (!shared.empty() && !(hold.locks.shared.Is_Held() && hold.locks.shared.Path() == shared)) {
    hold.locks.shared.Take(shared);
  }
}

std::string Folder_Of_Held_Project() {
  const std::string lock = This_Hold().locks.beside.Present_Path();
  return lock.empty() ? std::string() : Folder_Of(lock);
}

void Note_Unsaved(const std::string& text) {
  Port().board.show_note({text, {}});
  This_Hold().unsaved_note = text;
}

void Take_Back_Unsaved_Note() {
  const std::string note = std::exchange(This_Hold().unsaved_note, {});
  if (!note.empty()) Port().board.take_back_note(note);
}

void Release_Project() { This_Hold() = {}; }

const std::string& Held_Project() { return This_Hold().path; }

std::optional<File_State> Held_State() { return This_Hold().state; }

}  // namespace barvon
