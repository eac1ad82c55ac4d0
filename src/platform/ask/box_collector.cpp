#include "platform/ask/box_collector.h"

#include <utility>

namespace barvon {

Box_Collector::Box_Collector() {
  former_ = Set_Message_Presenter([this](const Message& message) {
    if (message.buttons == Buttons::Ok) {
      if (!texts_.empty()) texts_ += "; ";
      texts_ += message.text;
      return Answer::Ok;
    }
    return answer_no_ ? Answer::No : Answer_On_Close(message);
  });
}

Box_Collector::~Box_Collector() { Set_Message_Presenter(std::move(former_)); }

}  // namespace barvon
