#include "core/desk/text_prompt.h"

#include <optional>

#include "core/desk/file_dialogs.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

/// False when there was no name to save under or the save failed: then nothing may be thrown away.
bool Save_Changes(ProjectRecord& record) {
  const std::optional<std::string> path = Ask_Name_To_Save(record);
  if (!path || !Save_File(*path, kProjectKind, record)) return false;
  record.ProjectFileName = *path;
  return true;
}

}  // namespace

bool Text_Changed_Prompt(ProjectRecord& record) {
  if (!Port().text.has_changed()) return false;
  const std::string name =
      record.ProjectFileName.empty() ? Port().text.caption() : record.ProjectFileName;
  const Answer answer =
      Ask("The text in " + name + " has changed.\n\nDo you want to save the changes?",
          Buttons::YesNoCancel);
  if (answer == Answer::Yes) return !Save_Changes(record);
  return answer != Answer::No;
}

}  // namespace barvon
