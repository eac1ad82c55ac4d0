#include "platform/ask/progress_display.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace barvon {
namespace {

constexpr long long kFrameMilliseconds = 16;

Progress_Presenter& Presenter() {
  static Progress_Presenter presenter;
  return presenter;
}

long long Now() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

}  // namespace

Progress_Display::Progress_Display(const std::string& caption) : last_frame_(Now()) {
  if (Presenter().open) Presenter().open(caption);
}

Progress_Display::~Progress_Display() {
  if (Presenter().close) Presenter().close();
}

void Progress_Display::Move(double share) {
  const long long now = Now();
  if (now - last_frame_ < kFrameMilliseconds) return;
  last_frame_ = now;
  if (Presenter().move) Presenter().move(std::clamp(share, 0.0, 1.0));
}

Progress_Presenter Set_Progress_Presenter(Progress_Presenter presenter) {
  return std::exchange(Presenter(), std::move(presenter));
}

}  // namespace barvon
