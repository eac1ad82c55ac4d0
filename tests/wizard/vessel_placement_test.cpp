#include "wizard/vessel_placement.h"

#include <gtest/gtest.h>

#include <memory>

namespace barvon::testing {
namespace {

class VesselPlacement : public ::testing::Test {
 protected:
  VesselPlacement() {
    record->BINL = 40;
    record->BINW = 10;
    record->DBINS = 3;
    record->MMAX0 = 11;
    record->DX0 = 100;
    record->NMAX0 = 21;
    record->DZ0 = 50.5;
  }
  std::unique_ptr<ProjectRecord> record = std::make_unique<ProjectRecord>();
};

TEST_F(VesselPlacement, The_Vessel_Lies_Upstream_Of_The_Middle) {
  PlaceVesselFromTypicalVelocity({1, 0}, *record);
  EXPECT_DOUBLE_EQ(record->XBARGE, 200);
  EXPECT_DOUBLE_EQ(record->ZBARGE, 202) << "a velocity of 0 counts as not negative";
  PlaceVesselFromTypicalVelocity({-1, -0.5F}, *record);
  EXPECT_DOUBLE_EQ(record->XBARGE, 800);
  EXPECT_DOUBLE_EQ(record->ZBARGE, 808);
}

TEST_F(VesselPlacement, A_Hoppers_Site_Begins_Three_Of_Its_Larger_Sizes_Upstream) {
  record->XBARGE = 500;
  record->ZBARGE = 300;
  record->SiteBottom = 900;
  record->SiteRight = 950;
  record->NBINS = 2;
  PlaceSiteEdges({1, 1}, true, *record);
  EXPECT_EQ(record->SiteTop, 380);
  EXPECT_EQ(record->SiteLeft, 180);
  EXPECT_EQ(record->SiteBottom, 900) << "downstream edges stay";
  EXPECT_EQ(record->SiteRight, 950);
  record->BINW = 50;
  PlaceSiteEdges({-1, -1}, true, *record);
  EXPECT_EQ(record->SiteBottom, 500 + 3 * 103);
  EXPECT_EQ(record->SiteRight, 300 + 3 * 103);
  EXPECT_EQ(record->SiteTop, 380);
}

TEST_F(VesselPlacement, A_Barges_Site_Begins_Two_Lengths_Upstream) {
  record->XBARGE = 500;
  record->ZBARGE = 100;
  record->BargeLength = 120;
  PlaceSiteEdges({0, -1}, false, *record);
  EXPECT_EQ(record->SiteTop, 260);
  EXPECT_EQ(record->SiteRight, 340);
  PlaceSiteEdges({0, 0}, false, *record);
  EXPECT_EQ(record->SiteLeft, -140) << "a corner may come out negative";
}

}  // namespace
}  // namespace barvon::testing
