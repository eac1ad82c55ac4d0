#pragma once

#include <optional>

namespace barvon {

/// What a screen's Cancel puts back. It is taken when the screen opens and anew whenever the user
/// comes back to it from another screen. Who closes the screen for everything that happened since
/// it opened goes back to the first one.
template <class Copy>
class Cancel_Copy {
 public:
  void Take(const Copy& copy) {
    if (!opening_) opening_ = copy;
    latest_ = copy;
  }
  /// A save has left the screen open: nothing before it is to come back by closing.
  void Saved(const Copy& copy) { opening_ = copy; }
  void Go_Back_To_Opening() {
    if (opening_) latest_ = *opening_;
  }

  const Copy& operator*() const { return latest_; }
  const Copy* operator->() const { return &latest_; }

 private:
  std::optional<Copy> opening_;
  Copy latest_{};
};

}  // namespace barvon
