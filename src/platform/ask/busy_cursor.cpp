#include "platform/ask/busy_cursor.h"

#include <utility>

namespace barvon {
namespace {

int depth = 0;

Cursor_Presenter& Presenter() {
  static Cursor_Presenter presenter;
  return presenter;
}

}  // namespace

Busy_Cursor::Busy_Cursor() {
  if (depth++ == 0 && Presenter()) Presenter()(true);
}

Busy_Cursor::~Busy_Cursor() {
  if (--depth == 0 && Presenter()) Presenter()(false);
}

Cursor_Presenter Set_Cursor_Presenter(Cursor_Presenter presenter) {
  return std::exchange(Presenter(), std::move(presenter));
}

}  // namespace barvon
