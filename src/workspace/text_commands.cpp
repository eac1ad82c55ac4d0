#include "workspace/text_commands.h"

#include <algorithm>
#include <optional>
#include <string>

#include "core/desk/file_dialogs.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "workspace/text_documents.h"

namespace barvon {
namespace {

/// Whether what another program or a run has written may be lost. Return must not discard it.
bool May_Write_Over(const std::string& path) {
  return Show_Message({"File " + path +
                           " has changed on the disk since it was read.\n"
                           "Do you want to write over it?",
                       kMessageTitle, Buttons::YesNo, Icon::Warning, Answer::No, Answer::No}) ==
         Answer::Yes;
}

bool Save_In(int index, const std::string& path, ProjectRecord& record) {
  const std::string file = Path_To_Write(path);
  const int owner = Documents().Find(file);
  if (owner != 0 && owner != index) {
    Show_Warning("Another window has the text of this file. Save the text under another name.");
    return false;
  }
  if (owner == index && Documents().Document(index)->Changed_On_Disk() && !May_Write_Over(file)) {
    return false;
  }
  Documents().Set_Active(index);
  return Save_File(path, kTextKind, record);
}

/// The changed text that is asked about before another project takes the place of the open one.
int Changed_Text() {
  const std::vector<int> changed = Documents().Changed_Ones();
  return changed.empty() ? 0 : changed.front();
}

}  // namespace

bool Save_Text(int index, ProjectRecord& record) {
  const Text_Document* text = Documents().Document(index);
  if (text == nullptr) return false;
  const std::string file = text->File();
  // A run may have written the file anew: what nobody typed into is not put over that.
  const bool changed = Documents().FState(index).Dirty != kFalse;
  if (!changed && !file.empty() && Find_Path(file)) return true;
  return file.empty() ? Save_Text_As(index, record) : Save_In(index, file, record);
}

bool Save_Text_As(int index, ProjectRecord& record) {
  const Text_Document* text = Documents().Document(index);
  if (text == nullptr) return false;
  const std::optional<std::string> path = Ask_Text_To_Save(text->File());
  return path && Save_In(index, *path, record);
}

bool May_Close_Text(int index, ProjectRecord& record) {
  const Text_Document* text = Documents().Document(index);
  if (text == nullptr || Documents().FState(index).Dirty == kFalse) return true;
  const Answer answer =
      Ask("The text in [" + text->Caption() + "] has changed.\nDo you want to save the changes?",
          Buttons::YesNoCancel);
  if (answer == Answer::Yes) return Save_Text_As(index, record);
  return answer == Answer::No;
}

bool May_Leave_Texts(ProjectRecord& record) {
  const std::vector<int> changed = Documents().Changed_Ones();
  return std::ranges::all_of(changed, [&record](int index) {
    if (Text_Document* text = Documents().Document(index)) text->Come_To_Front();
    return May_Close_Text(index, record);
  });
}

bool May_Read_Again(int index) {
  const Text_Document* text = Documents().Document(index);
  if (text == nullptr || Documents().FState(index).Dirty == kFalse) return true;
  // Return must not discard anything.
  return Show_Message(
             {"The text in [" + text->Caption() +
                  "] has changed.\nDo you want to read the file again and lose the changes?",
              kMessageTitle, Buttons::YesNo, Icon::Warning, Answer::No, Answer::No}) == Answer::Yes;
}

void Fill_Text_Port(ProjectRecord& record) {
  Text_Port& port = Port().text;
  port.has_changed = [] { return Changed_Text() != 0; };
  port.show_changed = [] {
    if (Text_Document* text = Documents().Document(Changed_Text())) text->Come_To_Front();
  };
  port.caption = [] {
    const Text_Document* text = Documents().Document(Changed_Text());
    return text != nullptr ? text->Caption() : std::string();
  };
  port.has_document = [] { return Documents().Active() != 0; };
  port.save = [&record] { return Save_Text(Changed_Text(), record); };
  port.active = []() -> std::optional<std::string> {
    Text_Document* text = Documents().Document(Documents().Last_In_Front());
    return text != nullptr ? text->Bytes() : std::nullopt;
  };
  port.set_caption = [](const std::string& file) {
    if (Text_Document* text = Documents().Document(Documents().Last_In_Front())) {
      text->Saved_In(file);
    }
  };
}

}  // namespace barvon
