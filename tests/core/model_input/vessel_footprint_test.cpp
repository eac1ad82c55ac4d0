#include "core/model_input/vessel_footprint.h"

#include <gtest/gtest.h>

#include <memory>

namespace barvon {
namespace {

Footprint Of_Bins(int bins) {
  const auto record = std::make_unique<ProjectRecord>();
  record->BINL = 100;
  record->BINW = 10;
  record->DBINS = 1;
  record->NBINS = static_cast<std::int16_t>(bins);
  return Vessel_Footprint(*record);
}

struct Expected_Footprint {
  int bins;
  double length, width;
};

TEST(VesselFootprint, Every_Count_Of_Bins_Has_Its_Length_And_Width) {
  constexpr Expected_Footprint kRows[] = {{1, 100, 10}, {2, 100, 21}, {3, 302, 10}, {4, 201, 21},
                                          {5, 504, 10}, {6, 302, 21}, {7, 605, 10}, {8, 403, 21}};
  for (const auto& row : kRows) {
    EXPECT_EQ(Of_Bins(row.bins).length, row.length) << row.bins;
    EXPECT_EQ(Of_Bins(row.bins).width, row.width) << row.bins;
  }
}

TEST(VesselFootprint, Seven_Bins_Are_Six_Lengths) { EXPECT_EQ(Of_Bins(7).length, 6 * 100 + 5); }

TEST(VesselFootprint, Nine_Or_No_Bins_Are_One_Bin) {
  for (const int bins : {9, 0, -1, 32767, -32768}) {
    EXPECT_EQ(Of_Bins(bins).length, 100) << bins;
    EXPECT_EQ(Of_Bins(bins).width, 10) << bins;
  }
}

}  // namespace
}  // namespace barvon
