#include "core/desk/text_prompt.h"

#include "core/desk/workspace_port.h"
#include "platform/ask/message_box.h"

namespace barvon {

bool Text_Changed_Prompt() {
  if (!Port().text.has_changed()) return false;
  Port().text.show_changed();
  const Answer answer = Ask(
      "The text in " + Port().text.caption() + " has changed.\n\nDo you want to save the changes?",
      Buttons::YesNoCancel);
  // What changed is a text: the project's file must not be written in its place.
  if (answer == Answer::Yes) return !Port().text.save();
  return answer != Answer::No;
}

}  // namespace barvon
