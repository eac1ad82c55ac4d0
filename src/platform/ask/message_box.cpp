#include "platform/ask/message_box.h"

#include <utility>

namespace barvon {
namespace {

Message_Presenter& Presenter() {
  static Message_Presenter presenter;
  return presenter;
}

}  // namespace

Answer Answer_On_Close(const Message& message) {
  if (message.on_close) return *message.on_close;
  switch (message.buttons) {
    case Buttons::OkCancel:
    case Buttons::YesNoCancel:
      return Answer::Cancel;
    case Buttons::YesNo:
      return Answer::No;
    case Buttons::Ok:
      break;
  }
  return Answer::Ok;
}

Answer Show_Message(const Message& message) {
  return Presenter() ? Presenter()(message) : Answer_On_Close(message);
}

void Show_Warning(const std::string& text, const std::string& title) {
  Show_Message({text, title, Buttons::Ok, Icon::Warning});
}

void Show_Critical(const std::string& text, const std::string& title) {
  Show_Message({text, title, Buttons::Ok, Icon::Critical});
}

void Show_Information(const std::string& text, const std::string& title) {
  Show_Message({text, title, Buttons::Ok, Icon::Information});
}

Answer Ask(const std::string& question, Buttons buttons, Icon icon, const std::string& title) {
  return Show_Message({question, title, buttons, icon});
}

Message_Presenter Set_Message_Presenter(Message_Presenter presenter) {
  return std::exchange(Presenter(), std::move(presenter));
}

}  // namespace barvon
