#pragma once

#include <cstddef>
#include <vector>

#include "solver/cloud.h"
#include "solver/sources.h"

namespace companion {

/// What leaves a cloud on a stretch of its way: an amount a species with its mean time, place and
/// plan. Every amount is the difference of what the cloud had at the ends of the stretch, so
/// nothing is lost between the cloud and what it leaves behind.
class Trail {
 public:
  explicit Trail(std::size_t number) : number_(number) {}

  /// A stretch begins with these amounts.
  void Begin(const Cloud& cloud, std::vector<double> amounts);
  /// A step on; what left in it counts at the mean of its ends.
  void Pass(const Cloud& cloud, const std::vector<double>& amounts);
  /// Ends the stretch and begins the next. As sources over the depths that the cloud passed.
  void Leave_Sources(double bed, std::vector<Source>& sources);
  /// The same from the depths of the cloud's foot alone.
  void Leave_From_Foot(double bed, std::vector<Source>& sources);
  /// The same as deposits.
  void Leave_Deposits(std::vector<Deposit>& deposits);

 private:
  /// Where the cloud is, for the means.
  struct Place {
    double time = 0, x = 0, z = 0;
    Plan_Moments spread;
  };
  struct Mean {
    double amount = 0, weight = 0;
    Place sum;
  };

  static Place Of(const Cloud& cloud);
  Place Centre_Of(const Mean& mean) const;
  /// Ends the stretch: puts what each species has lost in it, with its mean place and plan.
  template <typename Put>
  void Leave(const Put& put);
  void Leave_Between(double top, double foot, std::vector<Source>& sources);
  void Next_Stretch();

  std::size_t number_;
  std::vector<double> begun_, last_;
  std::vector<Mean> means_;
  Place here_;
  double begun_time_ = 0;
  double top_ = 0, foot_ = 0, upper_foot_ = 0;  // ft: least top, greatest and least foot
  double last_top_ = 0, last_foot_ = 0;
};

}  // namespace companion
