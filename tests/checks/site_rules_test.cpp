#include "checks/site_rules.h"

#include <gtest/gtest.h>

#include <limits>

#include "checks/sound_project.h"

namespace barvon::testing {
namespace {

const Finding kZone0 = {"Location of the Mixing Zone is Outside of the Site Grid",
                        "frmMdlkyn!Text(0)"};
const Finding kZone1 = {kZone0.message, "frmMdlkyn!Text(1)"};
const Finding kZone2 = {kZone0.message, "frmMdlkyn!Text(2)"};
const Finding kZone3 = {kZone0.message, "frmMdlkyn!Text(3)"};
const Finding kSite0 = {"Location of Disposal Site is Outside of the Site Grid",
                        "frmMdlkyn!Text(0)"};
const Finding kDumping = {"Dumping Point is Outside of Specified Mixing Zone", "frmMdlkyn!Text(0)"};
const Finding kZSpacing = {"Z Grid Spacing Less Than Zero", "frmDescription!Text1(3)"};
const Finding kXSpacing = {"X Grid Spacing Less Than Zero", "frmDescription!Text1(4)"};
const Finding kRoughness = {"Roughness Height Outside Bounds", "frmDescription!Text1(5)"};
const Finding kDepth = {"Depth of Receiving Water Not Supplied", "frmDescription!F1Book1"};
const Finding kProfile = {"Receiving Water Densities Unacceptable.", "frmDescription!Text1(4)"};

Finding Grid_Points(const std::string& count, const std::string& control) {
  return {"Number of Grid Pts (" + count + ") Outside Bounds", "frmDescription!" + control};
}

Finding No_Density(const std::string& depth) {
  return {"Density Value Not Supplied at Depth = " + depth, "frmDescription!F1Book1"};
}

/// A disposal site of 50 to 150 in X and 50 to 150 in Z around the vessel at 100, 100.
void Give_Site(ProjectRecord& r, int key3) {
  r.KEY3 = static_cast<std::int16_t>(key3);
  r.SiteTop = r.SiteLeft = 50;
  r.SiteBottom = r.SiteRight = 150;
}

TEST(SiteRules, Grid_Counts_From_8_To_96_Pass) {
  const Rule_Case cases[] = {
      {"NMAX0 8", [](ProjectRecord& r) { r.NMAX0 = 8; }, {}},
      {"NMAX0 7", [](ProjectRecord& r) { r.NMAX0 = 7; }, {Grid_Points("7", "Text1(0)")}},
      {"NMAX0 96", [](ProjectRecord& r) { r.NMAX0 = 96; }, {}},
      {"NMAX0 97", [](ProjectRecord& r) { r.NMAX0 = 97; }, {Grid_Points("97", "Text1(0)")}},
      {"MMAX0 8", [](ProjectRecord& r) { r.MMAX0 = 8; }, {}},
      {"MMAX0 7", [](ProjectRecord& r) { r.MMAX0 = 7; }, {Grid_Points("7", "Text1(1)")}},
      {"MMAX0 96", [](ProjectRecord& r) { r.MMAX0 = 96; }, {}},
      {"MMAX0 97", [](ProjectRecord& r) { r.MMAX0 = 97; }, {Grid_Points("97", "Text1(1)")}},
      {"more than the pattern's digits",
       [](ProjectRecord& r) { r.MMAX0 = 12345; },
       {Grid_Points("12345", "Text1(1)")}},
      {"negative, and with it the X length",
       [](ProjectRecord& r) { r.MMAX0 = -3; },
       {Grid_Points("-3", "Text1(1)"), kZone1, kZone2}},
      {"both, Z first",
       [](ProjectRecord& r) {
         r.MMAX0 = 98;
         r.NMAX0 = 99;
       },
       {Grid_Points("99", "Text1(0)"), Grid_Points("98", "Text1(1)")}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, A_Grid_Count_Of_0_Shows_Nothing_Between_The_Brackets) {
  const Rule_Case cases[] = {
      {"NMAX0 0", [](ProjectRecord& r) { r.NMAX0 = 0; }, {Grid_Points("", "Text1(0)")}}};
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, Spacings_Roughness_And_Depth_Are_Held_At_Their_Bounds) {
  const Rule_Case cases[] = {
      {"DZ0 0", [](ProjectRecord& r) { r.DZ0 = 0; }, {}},
      {"DX0 0", [](ProjectRecord& r) { r.DX0 = 0; }, {}},
      {"RHDA0 0.0005", [](ProjectRecord& r) { r.RHDA0 = 0.0005; }, {}},
      {"RHDA0 0.00049", [](ProjectRecord& r) { r.RHDA0 = 0.00049; }, {kRoughness}},
      {"RHDA0 0.05", [](ProjectRecord& r) { r.RHDA0 = 0.05; }, {}},
      {"RHDA0 0.0501", [](ProjectRecord& r) { r.RHDA0 = 0.0501; }, {kRoughness}},
      {"DEPC0 0", [](ProjectRecord& r) { r.DEPC0 = 0; }, {kDepth}},
      {"DEPC0 0.001", [](ProjectRecord& r) { r.DEPC0 = 0.001; }, {}},
      {"DEPC0 0, variable depths",
       [](ProjectRecord& r) {
         r.DEPC0 = 0;
         r.ConstantDepthFlag = 0;
       },
       {}},
      {"DEPC0 0, flag of -1",
       [](ProjectRecord& r) {
         r.DEPC0 = 0;
         r.ConstantDepthFlag = -1;
       },
       {}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, A_Negative_Spacing_Also_Puts_The_Site_Outside_Its_Extent) {
  // The extents become negative with it, and even a corner at 0 is beyond them.
  const Rule_Case cases[] = {
      {"DZ0", [](ProjectRecord& r) { r.DZ0 = -1; }, {kZSpacing, kZone0, kZone3}},
      {"DX0", [](ProjectRecord& r) { r.DX0 = -1; }, {kXSpacing, kZone1, kZone2}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, Every_Missing_Density_Of_The_Profile_Is_Found) {
  const Rule_Case cases[] = {
      {"first, at depth 0", [](ProjectRecord& r) { r.Densities[1] = 0; }, {No_Density("")}},
      {"second", [](ProjectRecord& r) { r.Densities[2] = 0; }, {No_Density("60")}},
      {"both", [](ProjectRecord& r) { r.Densities = {}; }, {No_Density(""), No_Density("60")}},
      {"depth with a fraction",
       [](ProjectRecord& r) {
         r.Densities[2] = 0;
         r.DensityDepths[2] = 60.5;
       },
       {No_Density("61")}},
      {"beyond the profile", [](ProjectRecord& r) { r.Densities[3] = 0; }, {}},
      {"negative", [](ProjectRecord& r) { r.Densities[1] = -1; }, {}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, Profile_Points_Beyond_The_Record_Are_Not_Looked_At) {
  const Rule_Case cases[] = {
      {"32767 points",
       [](ProjectRecord& r) {
         r.NROA0 = 32767;
         r.Densities.fill(1);
         r.Densities[5] = 0;
         r.DensityDepths[5] = 60;
       },
       {No_Density("60")}},
      {"no points", [](ProjectRecord& r) { r.NROA0 = 0; }, {kProfile}},
      {"negative", [](ProjectRecord& r) { r.NROA0 = -32768; }, {kProfile}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, Site_Top_Is_Held_Against_The_Z_Length) {
  const Rule_Case cases[] = {
      {"600, beyond the X length", [](ProjectRecord& r) { r.SiteTop = 600; }, {}},
      {"600.1", [](ProjectRecord& r) { r.SiteTop = 600.1; }, {kZone0}},
      {"below 0", [](ProjectRecord& r) { r.SiteTop = -0.1; }, {kZone0}},
      {"inside the X length, beyond the Z length",
       [](ProjectRecord& r) {
         r.DX0 = 100;
         r.SiteTop = 700;
       },
       {kZone0}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, Site_Left_Is_Held_Against_The_X_Length) {
  const Rule_Case cases[] = {
      {"200", [](ProjectRecord& r) { r.SiteLeft = 200; }, {}},
      {"200.1, inside the Z length", [](ProjectRecord& r) { r.SiteLeft = 200.1; }, {kZone1}},
      {"below 0", [](ProjectRecord& r) { r.SiteLeft = -0.1; }, {kZone1}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, Bottom_And_Right_Are_Held_Against_Their_Own_Lengths) {
  const Rule_Case cases[] = {
      {"bottom 200", [](ProjectRecord& r) { r.SiteBottom = 200; }, {}},
      {"bottom 200.1", [](ProjectRecord& r) { r.SiteBottom = 200.1; }, {kZone2}},
      {"bottom below 0", [](ProjectRecord& r) { r.SiteBottom = -0.1; }, {kZone2}},
      {"right 600", [](ProjectRecord& r) { r.SiteRight = 600; }, {}},
      {"right 600.1", [](ProjectRecord& r) { r.SiteRight = 600.1; }, {kZone3}},
      {"right below 0", [](ProjectRecord& r) { r.SiteRight = -0.1; }, {kZone3}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, The_Site_Message_Follows_The_Evaluation) {
  for (const int key3 : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8}) {
    ProjectRecord record = Sound_Project();
    Give_Site(record, key3);
    record.SiteTop = -1;
    Error_List errors;
    Check_Site(record, errors);
    const Finding expected = key3 >= 2 && key3 <= 4 ? kSite0 : kZone0;
    EXPECT_EQ(Findings_Of(errors), std::vector<Finding>{expected}) << key3;
  }
}

TEST(SiteRules, A_Disposal_Site_Must_Be_Given) {
  const Finding missing = {"Disposal Site Is Not Specified", "frmMdlkyn!Text(0)"};
  for (const int key3 : {0, 1, 2, 3, 4, 5, 7}) {
    ProjectRecord record = Sound_Project();
    record.KEY3 = static_cast<std::int16_t>(key3);
    // The vessel in the corner, so that it is inside the empty site.
    record.XBARGE = record.ZBARGE = 0;
    Error_List errors;
    Check_Site(record, errors);
    const bool fires = key3 >= 2 && key3 <= 4;
    EXPECT_EQ(Findings_Of(errors), fires ? std::vector<Finding>{missing} : std::vector<Finding>{})
        << key3;
    Error_List with_right;
    record.SiteRight = 1;
    Check_Site(record, with_right);
    EXPECT_EQ(Findings_Of(with_right), std::vector<Finding>{}) << key3;
  }
}

TEST(SiteRules, Only_Corners_Turned_Round_Both_Ways_Are_Invalid) {
  const Finding site = {"Lower Left Point of Disposal Site is Invalid", "frmMdlkyn!Text(2)"};
  const Finding zone = {"Lower Left Point of Mixing Zone is Invalid", "frmMdlkyn!Text(2)"};
  const Rule_Case cases[] = {
      {"both, 404",
       [](ProjectRecord& r) {
         Give_Site(r, 5);
         r.SiteTop = 151, r.SiteLeft = 151;
       },
       {zone}},
      {"top alone",
       [](ProjectRecord& r) {
         Give_Site(r, 5);
         r.SiteTop = 151;
       },
       {}},
      {"left alone",
       [](ProjectRecord& r) {
         Give_Site(r, 5);
         r.SiteLeft = 151;
       },
       {}},
      {"equal",
       [](ProjectRecord& r) {
         Give_Site(r, 5);
         r.SiteTop = r.SiteLeft = 150;
       },
       {}},
      {"no evaluation",
       [](ProjectRecord& r) {
         Give_Site(r, 1);
         r.SiteTop = r.SiteLeft = 151;
       },
       {}},
      {"both, 103: no vessel can be inside",
       [](ProjectRecord& r) {
         Give_Site(r, 4);
         r.SiteTop = r.SiteLeft = 151;
       },
       {site, kDumping, kDumping}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, The_Vessel_Must_Be_Inside_The_Disposal_Site) {
  const Rule_Case cases[] = {
      {"on the upper left corner",
       [](ProjectRecord& r) {
         Give_Site(r, 2);
         r.XBARGE = r.ZBARGE = 50;
       },
       {}},
      {"on the lower right corner",
       [](ProjectRecord& r) {
         Give_Site(r, 2);
         r.XBARGE = r.ZBARGE = 150;
       },
       {}},
      {"left of it",
       [](ProjectRecord& r) {
         Give_Site(r, 2);
         r.ZBARGE = 49.9;
       },
       {kDumping}},
      {"right of it",
       [](ProjectRecord& r) {
         Give_Site(r, 3);
         r.ZBARGE = 150.1;
       },
       {kDumping}},
      {"above it",
       [](ProjectRecord& r) {
         Give_Site(r, 4);
         r.XBARGE = 49.9;
       },
       {kDumping}},
      {"below it",
       [](ProjectRecord& r) {
         Give_Site(r, 4);
         r.XBARGE = 150.1;
       },
       {kDumping}},
      {"both ways",
       [](ProjectRecord& r) {
         Give_Site(r, 4);
         r.XBARGE = r.ZBARGE = 0;
       },
       {kDumping, kDumping}},
      {"a mixing zone does not ask",
       [](ProjectRecord& r) {
         Give_Site(r, 5);
         r.XBARGE = r.ZBARGE = 0;
       },
       {}},
      {"nor does no evaluation",
       [](ProjectRecord& r) {
         Give_Site(r, 1);
         r.XBARGE = r.ZBARGE = 0;
       },
       {}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, The_Profile_Must_Reach_The_Constant_Depth) {
  const Rule_Case cases[] = {
      {"100 with a profile to 80",
       [](ProjectRecord& r) {
         r.DEPC0 = 100;
         r.DensityDepths[2] = 80;
       },
       {kProfile}},
      {"60 with a profile to 60", [](ProjectRecord& r) { r.DEPC0 = 60; }, {}},
      {"variable depths do not excuse",
       [](ProjectRecord& r) {
         r.DEPC0 = 60.1;
         r.ConstantDepthFlag = 0;
       },
       {kProfile}},
  };
  Check_Cases(Check_Site, cases);
}

TEST(SiteRules, All_Of_Them_Fire_In_Their_Order) {
  ProjectRecord record = Sound_Project();
  record.NMAX0 = 7, record.MMAX0 = 97, record.DZ0 = -1, record.DX0 = -1;
  record.RHDA0 = 1, record.DEPC0 = 0, record.Densities = {};
  record.KEY3 = 2;
  record.DensityDepths[2] = -1;
  Error_List errors;
  Check_Site(record, errors);
  const std::string outside = kSite0.message;
  EXPECT_EQ(Findings_Of(errors),
            (std::vector<Finding>{Grid_Points("7", "Text1(0)"),
                                  Grid_Points("97", "Text1(1)"),
                                  kZSpacing,
                                  kXSpacing,
                                  kRoughness,
                                  kDepth,
                                  No_Density(""),
                                  No_Density("-1"),
                                  kSite0,
                                  {outside, "frmMdlkyn!Text(1)"},
                                  {outside, "frmMdlkyn!Text(2)"},
                                  {outside, "frmMdlkyn!Text(3)"},
                                  {"Disposal Site Is Not Specified", "frmMdlkyn!Text(0)"},
                                  kDumping,
                                  kDumping,
                                  kProfile}));
}

TEST(SiteRules, Values_That_Are_No_Numbers_Crash_Nothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  ProjectRecord record = Sound_Project();
  record.DX0 = record.DZ0 = record.RHDA0 = record.DEPC0 = nan;
  record.SiteTop = record.SiteLeft = record.SiteBottom = record.SiteRight = nan;
  record.DensityDepths.fill(nan);
  record.Densities = {};
  Error_List errors;
  Check_Site(record, errors);
  EXPECT_EQ(Findings_Of(errors), (std::vector<Finding>{No_Density("nan"), No_Density("nan")}));
}

}  // namespace
}  // namespace barvon::testing
