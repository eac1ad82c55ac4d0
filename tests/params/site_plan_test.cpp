#include "params/site_plan.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "core/keys.h"
#include "core/velocity_types.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

/// A hopper of 3 bins over a grid of 21 x 41 points, 100 ft apart in X and 50 ft in Z.
class SitePlanOfRecord : public ::testing::Test {
 protected:
  SitePlanOfRecord() {
    record_.MMAX0 = 21;
    record_.NMAX0 = 41;
    record_.DX0 = 100;
    record_.DZ0 = 50;
    record_.DisposalMethod = kHopper;
    record_.XBARGE = 1200;
    record_.ZBARGE = 800;
    record_.BINL = 30;
    record_.BINW = 20;
    record_.DBINS = 5;
    record_.NBINS = 3;
    record_.NOPENS = 2;
    record_.TDIS = 60;
    record_.LAYERS = 3;
    for (int i = 1; i <= kMaxLayers; ++i) {
      record_.LayerVelX[i] = i;
      record_.LayerVelZ[i] = -i;
    }
  }
  Site_Plan Built() { return Plan_Of_Site(record_); }

  std::unique_ptr<ProjectRecord> own_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *own_;
};

TEST_F(SitePlanOfRecord, A_Hopper_Is_The_Bins_That_Open_Together_And_Its_Openings) {
  const Site_Plan site = Built();
  EXPECT_EQ(site.length_x, 2000);
  EXPECT_EQ(site.length_z, 2000);
  EXPECT_EQ(site.disposal_point, (Feet_Point{1200, 800}));
  EXPECT_EQ(site.vessel_length, 3 * 30 + 2 * 5);
  EXPECT_EQ(site.vessel_width, 20);
  ASSERT_EQ(site.course.size(), 2u);
  EXPECT_EQ(site.course[1].x, 2);
  EXPECT_EQ(site.course[1].z, -2);
  EXPECT_EQ(site.course[1].seconds, 30);  // half of the 60 s
  EXPECT_FALSE(site.boundary);
  EXPECT_FALSE(site.zid);
  EXPECT_FALSE(site.current);
}

TEST_F(SitePlanOfRecord, A_Barge_Moves_By_Its_Layers) {
  record_.DisposalMethod = kBarge;
  record_.BargeLength = 180;
  record_.BargeWidth = 45;
  record_.BargeEmptyTime = 30;
  const Site_Plan site = Built();
  EXPECT_EQ(site.vessel_length, 180);
  EXPECT_EQ(site.vessel_width, 45);
  ASSERT_EQ(site.course.size(), 3u);
  EXPECT_EQ(site.course[2].seconds, 10);
}

TEST_F(SitePlanOfRecord, A_Pipeline_Has_A_Course_And_No_Hull_Or_Depression) {
  record_.DisposalMethod = kContinuous;
  record_.VesselSpeed = 4;
  record_.VesselCourse = 90;  // counter-clockwise from down: to the right
  record_.DischargeDuration = 50;
  record_.XHOLE = record_.ZHOLE = 100;
  const Site_Plan site = Built();
  EXPECT_EQ(site.vessel_length, 0);
  EXPECT_EQ(site.hole_x, 0);
  ASSERT_EQ(site.course.size(), 1u);
  EXPECT_NEAR(site.course[0].x, 0, 1e-9);
  EXPECT_NEAR(site.course[0].z, 4, 1e-9);
  EXPECT_EQ(site.course[0].seconds, 50);
}

TEST_F(SitePlanOfRecord, Counts_Beyond_The_Arrays_Are_Brought_In) {
  record_.NOPENS = 30000;
  EXPECT_EQ(Built().course.size(), 6u);
  record_.NOPENS = -4;
  EXPECT_TRUE(Built().course.empty());
  record_.VelocityProfileType = kVelocityField;
  record_.MMAX0 = record_.NMAX0 = 30000;
  EXPECT_TRUE(Built().current);
}

TEST_F(SitePlanOfRecord, Boundaries_Follow_The_Evaluation) {
  record_.SiteTop = 100;
  record_.SiteLeft = 200;
  record_.SiteBottom = 300;
  record_.SiteRight = 400;
  record_.ZidBottom = record_.ZidRight = 50;
  record_.ZidFlag = 1;
  record_.KEY3 = kTracer;
  EXPECT_FALSE(Built().boundary);
  record_.KEY3 = kOceanToxicity;
  EXPECT_EQ(Built().boundary_name, "Disposal site");
  EXPECT_EQ(Built().boundary->right, 400);
  EXPECT_FALSE(Built().zid);
  record_.KEY3 = kNavigableToxicity;
  EXPECT_EQ(Built().boundary_name, "Mixing zone");
  EXPECT_EQ(Built().boundary->top, 100);
  EXPECT_EQ(Built().zid->bottom, 50);
  // Zeros leave it to the program to find them.
  record_.SiteTop = record_.SiteLeft = record_.SiteBottom = record_.SiteRight = 0;
  record_.ZidBottom = record_.ZidRight = 0;
  EXPECT_FALSE(Built().boundary);
  EXPECT_FALSE(Built().zid);
}

TEST_F(SitePlanOfRecord, The_Mean_Current_Is_That_Of_The_Velocity_Type) {
  record_.AvgVelocityX = 1;
  record_.AvgVelocityZ = 2;
  record_.VelX1 = 3;
  record_.VelX2 = 4;
  record_.VelZ1 = -1;
  record_.VelZ2 = 0;
  record_.TidalAvgVelX = 0.1F;
  record_.TidalAvgVelZ = 0.2F;
  record_.MMAX0 = 1;
  record_.NMAX0 = 2;
  record_.VelocityFieldX[1][1] = 1;
  record_.VelocityFieldX[1][2] = 2;
  record_.VelocityFieldZ[1][2] = 5;
  const auto current = [&](double type) {
    record_.VelocityProfileType = type;
    const auto mean = Built().current;
    return mean ? std::vector<double>{mean->x, mean->z} : std::vector<double>{};
  };
  EXPECT_EQ(current(kSingleVelocity), (std::vector<double>{1, 2}));
  EXPECT_EQ(current(kLogarithmicVelocity), (std::vector<double>{1, 2}));
  EXPECT_EQ(current(kTwoPointVelocity), (std::vector<double>{3.5, -0.5}));
  EXPECT_EQ(current(kVelocityField), (std::vector<double>{1.5, 2.5}));
  EXPECT_EQ(current(kUnsteadyVelocity), (std::vector<double>{0.1, 0.2}));
  EXPECT_EQ(current(kNoVelocity), std::vector<double>{});
}

TEST_F(SitePlanOfRecord, The_Question_Names_The_Point) {
  Scripted_Messages messages({Answer::Yes, Answer::No});
  EXPECT_TRUE(Agrees_To_Put("the vessel", {1200, 800}));
  EXPECT_FALSE(Agrees_To_Put("the vessel", {0.5, 800}));
  EXPECT_EQ(messages.shown[0].text, "Put the vessel at X = 1200 ft, Z = 800 ft?");
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(messages.shown[1].text, "Put the vessel at X = 0.5 ft, Z = 800 ft?");
}

}  // namespace
}  // namespace barvon::testing
