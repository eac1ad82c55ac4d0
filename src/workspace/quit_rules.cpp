#include "workspace/quit_rules.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

std::function<void()>& Program_End() {
  static std::function<void()> end;
  return end;
}

std::string Program_Name() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).filename().string();
}

}  // namespace

bool Wish_To_Quit() {
  return Ask("Do You Wish to Quit?", Buttons::YesNo, Icon::Question, Program_Name()) == Answer::Yes;
}

Close_Action Ask_On_Close(const std::string& caption, Flag data_saved) {
  if (caption == kUntitledCaption || data_saved != kFalse) {
    return Wish_To_Quit() ? Close_Action::End_At_Once : Close_Action::Stay;
  }
  // No and Cancel have changed places here: No stays, Cancel ends without saving. Nobody who only
  // gets rid of the box may lose data by that.
  switch (Show_Message({"Do You Wish To Save the Current File Before Quitting?", kMessageTitle,
                        Buttons::YesNoCancel, Icon::None, Answer::No})) {
    case Answer::Yes:
      return Close_Action::Save_And_Close;
    case Answer::Cancel:
      return Close_Action::End_At_Once;
    default:
      return Close_Action::Stay;
  }
}

bool Ask_On_Exit() { return Ask("Are You Sure You Want to Quit?", Buttons::YesNo) != Answer::No; }

void End_Program() {
  if (Program_End()) Program_End()();
}

void Set_Program_End(std::function<void()> end) { Program_End() = std::move(end); }

}  // namespace barvon
