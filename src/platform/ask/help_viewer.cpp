#include "platform/ask/help_viewer.h"

#include <utility>

namespace barvon {
namespace {

Help_Presenter& Presenter() {
  static Help_Presenter presenter;
  return presenter;
}

}  // namespace

void Show_Help(const Help_Request& request) {
  if (Presenter()) Presenter()(request);
}

void Show_Topic(int topic) { Show_Help({Help_Command::Context, topic, {}}); }

void Show_Topic_Beside(int topic) { Show_Help({Help_Command::Context, topic, {}, true}); }

Help_Presenter Set_Help_Presenter(Help_Presenter presenter) {
  return std::exchange(Presenter(), std::move(presenter));
}

}  // namespace barvon
