#include "results/row_order.h"

#include "platform/text/counted.h"

namespace barvon {

std::string Row_Order::Next(double time, int species, double depth) {
  const Key key{species, depth};
  if (time < 0) return "a time below 0";
  const bool begins = keys_.empty() || time != time_ || (times_ > 1 && at_ == keys_.size());
  if (!begins && times_ == 1) {
    keys_.push_back(key);
    ++at_;
    return {};
  }
  if (begins) {
    if (times_ > 0 && time < time_) return "a time before that of the line above";
    if (std::string reason = End(); !reason.empty()) return reason;
    if (times_ == 0) keys_.push_back(key);
    at_ = 0;
    time_ = time;
    ++times_;
  }
  if (at_ == keys_.size() || !(keys_[at_] == key)) return "not the species or depth in its turn";
  ++at_;
  return {};
}

std::string Row_Order::End() const {
  if (at_ == keys_.size()) return {};
  return "the time before has " + Counted(at_, "line") + " instead of " +
         std::to_string(keys_.size());
}

}  // namespace barvon
