#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/plain_support.h"
#include "support/run_program.h"

namespace barvon::testing {

/// Drives barvon-run as a process of its own in a scratch folder. Scratch application directories
/// go to a folder of the test's, so that it can see that none stays.
class BatchProgram : public ::testing::Test {
 protected:
  BatchProgram();

  Program_Result Batch(const std::vector<std::string>& arguments);
  Program_Start Start_Of(const std::vector<std::string>& arguments) const;

  /// A copy of a sample under the given name.
  void Put_Sample(const std::string& sample, const std::string& name);
  /// A solver that is a shell script, in a solvers' folder of its own. Returns that folder.
  std::string Put_Solver(const std::string& script);
  /// A sound project with a remark: 4000 cu. yds. in three openings.
  void Put_Remarkable(const std::string& name);
  /// A project that can be written as model input but has one finding.
  void Put_Faulty(const std::string& name);

  std::string Path(const std::string& name) const { return folder_ / name; }
  /// Scratch application directories that were left behind.
  std::vector<std::string> Left_Behind() const { return Names_In(folder_ / "tmp"); }

  Scratch_Folder folder_;
};

inline constexpr char kHopper[] = "Hopper_Six_Openings.DUI";
inline constexpr char kBarge[] = "Barge_Four_Layers.DUI";

/// A solver that writes its four outputs, each with the input's title line.
inline constexpr char kAllOutputsScript[] =
    "for e in duo dup dut duc; do sed -n 2p Tmpfile.Due > tmpfile.$e; done\n";

}  // namespace barvon::testing
