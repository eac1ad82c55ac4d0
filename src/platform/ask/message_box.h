#pragma once

#include <functional>
#include <optional>
#include <string>

namespace barvon {

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Critical, Question, Warning, Information };
enum class Answer { Ok, Cancel, Yes, No };

/// The title of every box that is not told another.
inline constexpr char kMessageTitle[] = "BARVON";

/// One message box. The text is UTF-8 and is shown as plain text.
struct Message {
  std::string text;
  std::string title = kMessageTitle;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
  std::optional<Answer> on_close = {};   // what closing the box counts as, where not as below
  std::optional<Answer> on_return = {};  // what Return presses, where not the first button
};

/// What shows a message and brings the user's answer. Closing the box without a choice counts as
/// Cancel where there is a Cancel button, as No where there is only No, as Ok otherwise, unless the
/// message says what it counts as.
using Message_Presenter = std::function<Answer(const Message&)>;

/// Shows the message and waits for the answer. Without a presenter nothing is shown and the
/// answer is the one of a box that is closed without a choice.
Answer Show_Message(const Message& message);

/// A box with this icon and an OK button.
void Show_Warning(const std::string& text, const std::string& title = kMessageTitle);
void Show_Critical(const std::string& text, const std::string& title = kMessageTitle);
void Show_Information(const std::string& text, const std::string& title = kMessageTitle);

/// A question with these buttons. Closed without a choice it counts as Cancel where there is that
/// button, as No otherwise.
Answer Ask(const std::string& question, Buttons buttons, Icon icon = Icon::None,
           const std::string& title = kMessageTitle);

/// Puts another presenter in place and returns the one that was there.
Message_Presenter Set_Message_Presenter(Message_Presenter presenter);

/// The answer of this box when it is closed without a choice.
Answer Answer_On_Close(const Message& message);

}  // namespace barvon
