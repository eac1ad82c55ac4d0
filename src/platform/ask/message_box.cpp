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

Message_Presenter Set_Message_Presenter(Message_Presenter presenter) {
  return std::exchange(Presenter(), std::move(presenter));
}

}  // namespace barvon
