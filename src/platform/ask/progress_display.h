#pragma once

#include <functional>
#include <string>

namespace barvon {

/// What draws the progress display. `move` takes the share that is done, 0 to 1.
struct Progress_Presenter {
  std::function<void(const std::string& caption)> open;
  std::function<void(double share)> move;
  std::function<void()> close;
};

/// The progress display of one load or save: open while it lives.
class Progress_Display {
 public:
  explicit Progress_Display(const std::string& caption);
  ~Progress_Display();
  Progress_Display(const Progress_Display&) = delete;
  Progress_Display& operator=(const Progress_Display&) = delete;

  /// Tells how much is done, 0 to 1. The display is repainted at most once a frame, so that a
  /// call for every line costs next to nothing.
  void Move(double share);

 private:
  long long last_frame_ = 0;
};

Progress_Presenter Set_Progress_Presenter(Progress_Presenter presenter);

}  // namespace barvon
