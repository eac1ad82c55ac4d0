#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace barvon {

/// Holds rows of one tag to their order: a group for each time, every group with the species and
/// depths of the first one, times rising.
class Row_Order {
 public:
  /// Why this row is out of order; empty: it is the next one.
  std::string Next(double time, int species, double depth = 0);
  /// Why the rows may not end here; empty: they may.
  std::string End() const;
  /// Times that have all their rows.
  int Times() const { return times_; }
  std::size_t Rows_A_Time() const { return keys_.size(); }

 private:
  struct Key {
    int species = 0;
    double depth = 0;
    bool operator==(const Key&) const = default;
  };

  std::vector<Key> keys_;
  std::size_t at_ = 0;
  int times_ = 0;
  double time_ = 0;
};

}  // namespace barvon
