#include "checks/material_rules.h"

#include <gtest/gtest.h>

#include "checks/sound_project.h"

namespace barvon::testing {
namespace {

Finding Hopper_Zero(const std::string& name) {
  return {"Volumetric Fraction for " + name + " is Zero", "frmMatHopper!F1Book1", 2490};
}
Finding Barge_Zero(const std::string& name) {
  return {"Volumetric Fraction for " + name + " is Zero", "frmMatBarge!F1Book1", 2550};
}

/// Two solids in three layers, every fraction given.
void Separate(ProjectRecord& r) {
  r.DisposalMethod = 3;
  r.SeparationFlag = 1;
  r.LAYERS = 3;
  r.NumSolids = 2;
  r.SolidNames[2] = "Clay";
  r.LayerSolidFraction[1] = {0, 0.1, 0.1, 0.1};
  r.LayerSolidFraction[2] = {0, 0.2, 0.2, 0.2};
}

TEST(MaterialRules, Every_Solid_Of_A_Mixed_Load_Needs_Its_Fraction) {
  const Rule_Case cases[] = {
      {"hopper", [](ProjectRecord& r) { r.SolidVolFraction[1] = 0; }, {Hopper_Zero("Sand")}},
      {"barge",
       [](ProjectRecord& r) {
         r.DisposalMethod = 3;
         r.SolidVolFraction[1] = 0;
       },
       {Barge_Zero("Sand")}},
      {"second of two, nameless", [](ProjectRecord& r) { r.NumSolids = 2; }, {Hopper_Zero("")}},
      {"beyond the solids of the project", [](ProjectRecord& r) { r.SolidVolFraction[2] = 0; }, {}},
      {"next to nothing is enough", [](ProjectRecord& r) { r.SolidVolFraction[1] = 1e-300; }, {}},
      {"so is a negative one", [](ProjectRecord& r) { r.SolidVolFraction[1] = -1; }, {}},
      {"no solids", [](ProjectRecord& r) { r.NumSolids = 0; }, {}},
      {"a negative count", [](ProjectRecord& r) { r.NumSolids = -5; }, {}},
  };
  Check_Cases(Check_Material, cases);
}

TEST(MaterialRules, A_Continuous_Discharge_Has_No_Reference_And_No_Topic) {
  const Rule_Case cases[] = {
      {"continuous",
       [](ProjectRecord& r) {
         r.DisposalMethod = 2;
         r.SolidVolFraction[1] = 0;
       },
       {{"Volumetric Fraction for Sand is Zero", ""}}},
      {"a method that no screen sets",
       [](ProjectRecord& r) {
         r.DisposalMethod = 4;
         r.SolidVolFraction[1] = 0;
       },
       {{"Volumetric Fraction for Sand is Zero", ""}}},
  };
  Check_Cases(Check_Material, cases);
}

TEST(MaterialRules, Every_Solid_Needs_Its_Fraction_In_Every_Layer) {
  const Rule_Case cases[] = {
      {"all given", Separate, {}},
      {"one missing",
       [](ProjectRecord& r) {
         Separate(r);
         r.LayerSolidFraction[1][3] = 0;
       },
       {Barge_Zero("Sand")}},
      {"solid by solid",
       [](ProjectRecord& r) {
         Separate(r);
         r.LayerSolidFraction[1][2] = 0;
         r.LayerSolidFraction[2] = {};
       },
       {Barge_Zero("Sand"), Barge_Zero("Clay"), Barge_Zero("Clay"), Barge_Zero("Clay")}},
      {"the mixed fractions do not count",
       [](ProjectRecord& r) {
         Separate(r);
         r.SolidVolFraction = {};
       },
       {}},
      {"a hopper's finding leads to the barge screen",
       [](ProjectRecord& r) {
         Separate(r);
         r.DisposalMethod = 1;
         r.LayerSolidFraction[1][3] = 0;
       },
       {Barge_Zero("Sand")}},
      {"two layers are enough to be checked",
       [](ProjectRecord& r) {
         Separate(r);
         r.LAYERS = 2;
         r.LayerSolidFraction[1] = {0, 0.1};
       },
       {Barge_Zero("Sand")}},
  };
  Check_Cases(Check_Material, cases);
}

TEST(MaterialRules, Separation_In_One_Layer_Is_Not_Checked_At_All) {
  const Rule_Case cases[] = {
      {"one layer",
       [](ProjectRecord& r) {
         Separate(r);
         r.LAYERS = 1;
         r.SolidVolFraction = {};
         r.LayerSolidFraction = {};
       },
       {}},
      {"a flag that is neither 0 nor 1",
       [](ProjectRecord& r) {
         Separate(r);
         r.SeparationFlag = -1;
         r.SolidVolFraction = {};
         r.LayerSolidFraction = {};
       },
       {}},
  };
  Check_Cases(Check_Material, cases);
}

TEST(MaterialRules, Counts_Beyond_The_Record_Are_Held_To_It) {
  ProjectRecord record = Sound_Project();
  record.NumSolids = 32767;
  record.SolidVolFraction = {};
  Error_List mixed;
  Check_Material(record, mixed);
  EXPECT_EQ(mixed.entries.size(), 5U);
  record.SeparationFlag = 1;
  record.LAYERS = 32767;
  Error_List separated;
  Check_Material(record, separated);
  EXPECT_EQ(separated.entries.size(), 4U * 6U);
}

}  // namespace
}  // namespace barvon::testing
