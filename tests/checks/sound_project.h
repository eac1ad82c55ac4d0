#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "checks/error_entries.h"
#include "core/project_defaults.h"

namespace barvon::testing {

/// A project that no rule finds fault with: 20 by 30 points, 10 along X and 20 along Z, so that
/// the grid is 200 in X and 600 in Z as the rules count it.
inline ProjectRecord Sound_Project() {
  ProjectRecord r;
  Set_Project_Defaults(r);
  r.MMAX0 = 20, r.NMAX0 = 30;
  r.DX0 = 10, r.DZ0 = 20;
  r.RHDA0 = 0.005;
  r.DEPC0 = 60;
  r.DensityDepths = {0, 0, 60};
  r.Densities = {0, 1.01, 1.02};
  r.SolidNames[1] = "Sand";
  r.SolidVolFraction[1] = 0.2;
  r.XBARGE = 100, r.ZBARGE = 100;
  r.BINL = r.BINW = 30;
  r.BargeLength = r.BargeWidth = 30;
  r.SimulationDuration = 3600, r.LongTermTimeStep = 100;
  return r;
}

/// One finding as the tests expect it.
struct Finding {
  std::string message;
  std::string reference;
  int topic = 0;
  bool operator==(const Finding&) const = default;
};

inline void PrintTo(const Finding& finding, std::ostream* out) {
  *out << '"' << finding.message << "\" at " << finding.reference << ", topic " << finding.topic;
}

/// The findings with their topics, for lists short enough to keep every topic.
inline std::vector<Finding> Findings_Of(const Error_List& errors) {
  std::vector<Finding> findings;
  for (std::size_t i = 0; i < errors.entries.size(); ++i) {
    findings.push_back({errors.entries[i].message, errors.entries[i].reference,
                        i + 1 < errors.ErrorHelpTopics.size() ? errors.ErrorHelpTopics[i + 1] : 0});
  }
  return findings;
}

/// A change to a sound project, and what one group of rules then finds.
struct Rule_Case {
  const char* name;
  void (*change)(ProjectRecord&);
  std::vector<Finding> found;
};

/// Runs one rule group over every case, and makes sure that it finds nothing in a sound project.
template <class Cases>
void Check_Cases(void (*group)(const ProjectRecord&, Error_List&), const Cases& cases) {
  Error_List none;
  group(Sound_Project(), none);
  EXPECT_EQ(Findings_Of(none), std::vector<Finding>{});
  for (const Rule_Case& row : cases) {
    ProjectRecord record = Sound_Project();
    row.change(record);
    Error_List errors;
    group(record, errors);
    EXPECT_EQ(Findings_Of(errors), row.found) << row.name;
  }
}

}  // namespace barvon::testing
