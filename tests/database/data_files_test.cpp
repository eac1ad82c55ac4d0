#include "database/data_files.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "core/project_defaults.h"
#include "core/velocity_types.h"
#include "database/database_files.h"
#include "support/plain_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

/// A line whose columns from 1 hold these texts; every other column up to the end holds a 9.
std::string Nines(std::initializer_list<std::pair<std::size_t, const char*>> texts) {
  std::string line(60, '9');
  for (const auto& [column, text] : texts) {
    line.replace(column - 1, std::string_view(text).size(), text);
  }
  return line + "\r\n";
}

class DataFiles : public ::testing::Test {
 protected:
  DataFiles() { Set_Project_Defaults(*record); }

  void Write(const char* file, const std::string& text) { Write_Text(folder / file, text); }
  bool Site(double code) { return Find(Find_Site, &ProjectRecord::SelectedSiteCode, code); }
  bool Material(double code) {
    return Find(Find_Material, &ProjectRecord::SelectedMaterialCode, code);
  }
  bool Vessel(double code) { return Find(Find_Vessel, &ProjectRecord::SelectedVesselCode, code); }
  bool Velocity(double code, int month) {
    record->SelectedMonth = month;
    return Find(Find_Velocity, &ProjectRecord::SelectedSiteCode, code);
  }
  Fields Changed() const { return Differing_Fields(*before, *record); }

  Scratch_Folder folder;
  std::unique_ptr<ProjectRecord> record = std::make_unique<ProjectRecord>();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();

 private:
  template <class Finder>
  bool Find(Finder find, double ProjectRecord::*code, double value) {
    *record.*code = value;
    *before = *record;
    return find(folder.path(), *record);
  }
};

TEST_F(DataFiles, Every_Column_Of_A_Site) {
  Write("dispdb.dat", Nines({{1, "1200"}, {6, "2"}}) + Nines({{1, "034"}, {4, "056"}}) +
                          Nines({{1, "123.45"}, {7, "678.91"}}) + Nines({{1, "234.56"}}) +
                          Nines({{1, ".01234"}}) + Nines({}) + Nines({{1, "1.23"}, {6, "4.56"}}) +
                          Nines({}) + Nines({{1, "1.2345"}, {7, "1.0234"}}) +
                          Nines({{1, "6.7891"}, {7, "1.0345"}}) + Nines({{1, "345.67"}}) + "\r\n");
  ASSERT_TRUE(Site(1200));
  EXPECT_EQ(record->NROA0, 2);
  EXPECT_EQ(record->NMAX0, 34);
  EXPECT_EQ(record->MMAX0, 56);
  EXPECT_EQ(record->DZ0, 123.45);
  EXPECT_EQ(record->DX0, 678.91);
  EXPECT_EQ(record->DEPC0, 234.56);
  EXPECT_EQ(record->RHDA0, 0.01234);
  EXPECT_EQ(record->SLOPEX0, 1.23);
  EXPECT_EQ(record->SLOPEZ0, 4.56);
  EXPECT_EQ(record->DensityDepths[1], 1.2345);
  EXPECT_EQ(record->Densities[1], 1.0234);
  EXPECT_EQ(record->DensityDepths[2], 6.7891);
  EXPECT_EQ(record->Densities[2], 1.0345);
  EXPECT_EQ(record->DEPTHI, 345.67);
  EXPECT_EQ(Changed(), (Fields{"MMAX0", "NMAX0", "DX0", "DZ0", "DEPC0", "DEPTHI", "RHDA0",
                               "SLOPEX0", "SLOPEZ0", "DensityDepths", "Densities"}))
      << "two points are the default";
}

TEST_F(DataFiles, Every_Column_Of_A_Month) {
  Write("veldb.dat",
        Nines({{1, "1200"}}) + Nines({{1, "001"}}) +
            Nines({{1, "123.4567"}, {9, "1.234567"}, {24, "23.4567"}, {32, "2.34567"}}) +
            Nines({{1, "345.6789"}, {9, "-3.45678"}, {24, "45.6789"}, {32, "-4.5678"}}) + "\r\n");
  record->ConstVelocityX = record->ConstVelocityZ = 3;
  ASSERT_TRUE(Velocity(1200, 1));
  EXPECT_EQ(record->VelXDepth1, 123.4567);
  EXPECT_EQ(record->VelX1, 1.234567);
  EXPECT_EQ(record->VelZDepth1, 23.4567);
  EXPECT_EQ(record->VelZ1, 2.34567);
  EXPECT_EQ(record->VelXDepth2, 345.6789);
  EXPECT_EQ(record->VelX2, -3.45678);
  EXPECT_EQ(record->VelZDepth2, 45.6789);
  EXPECT_EQ(record->VelZ2, -4.5678);
  EXPECT_EQ(record->VelocityProfileType, kTwoPointVelocity);
  EXPECT_EQ(Changed(), (Fields{"VelocityProfileType", "VelXDepth1", "VelXDepth2", "VelX1", "VelX2",
                               "VelZDepth1", "VelZDepth2", "VelZ1", "VelZ2", "ConstVelocityX",
                               "ConstVelocityZ"}));
}

TEST_F(DataFiles, Every_Column_Of_A_Material) {
  const auto solid = [](const char* name, const char* gravity, const char* cohesive,
                        const char* stripped) {
    return Nines({{4, name},
                  {19, gravity},
                  {25, ".12345"},
                  {32, "2.3456"},
                  {39, "3.4567"},
                  {46, "4.5678"},
                  {53, cohesive},
                  {55, stripped}});
  };
  Write("matdb.dat", Nines({{1, "1200"}, {41, "02"}}) + Nines({{1, "1234.5678"}}) +
                         solid("MedSands", "2.71", "y", "N") + solid("Silt    ", "2.65", "N", "Y") +
                         Nines({{1, "1"}, {4, "1.23456"}}) + Nines({{1, "1"}, {4, "1.0123"}}) +
                         "\r\n");
  record->BulkDensity = 1.5;
  ASSERT_TRUE(Material(1200));
  EXPECT_EQ(record->NumSolids, 2);
  EXPECT_EQ(record->TotalVolume, 1234.5678);
  EXPECT_EQ(record->SolidNames[1], "MedSands");
  EXPECT_EQ(record->SolidNames[2], "Silt");
  EXPECT_EQ(record->SolidSG[1], 2.71);
  EXPECT_EQ(record->SolidSG[2], 2.65);
  for (const std::size_t i : {1U, 2U}) {
    EXPECT_EQ(record->SolidVolFraction[i], 0.12345);
    EXPECT_EQ(record->SolidFallVelocity[i], 2.3456);
    EXPECT_EQ(record->SolidVoidRatio[i], 3.4567);
    EXPECT_EQ(record->SolidCriticalShear[i], 4.5678);
  }
  EXPECT_EQ(record->SolidCohesiveText[1], "y");
  EXPECT_EQ(record->SolidStrippedText[1], "N");
  EXPECT_EQ(record->SolidCohesive[1], 1);
  EXPECT_EQ(record->SolidStripped[1], 0);
  EXPECT_EQ(record->SolidCohesive[2], 0);
  EXPECT_EQ(record->SolidStripped[2], 1);
  EXPECT_EQ(record->JBFCFlag, 1);
  EXPECT_EQ(record->MoistureContent, 1.23456);
  EXPECT_EQ(record->SiteDensity, 1.0123);
  EXPECT_EQ(record->BulkDensity, 0) << "or the next load would compute the water from it";
}

TEST_F(DataFiles, Every_Column_Of_A_Vessel) {
  std::string text = Nines({{1, "1200"}});
  for (const char* value : {"123.45", "234.56", "345.67", "456.78", "567.89", "678.91", "000004"}) {
    text += Nines({{1, value}});
  }
  text += Nines({{1, "000002"}}) + Nines({{1, "1.2345"}, {7, "2.345678"}}) +
          Nines({{1, "-3.456"}, {7, "-4.56789"}}) + Nines({}) + Nines({{1, "12.345"}}) +
          Nines({{1, "23.456"}}) + Nines({{1, "34.567"}}) + "\r\n";
  Write("vesdb.dat", text);
  ASSERT_TRUE(Vessel(1200));
  EXPECT_EQ(record->BINL, 123.45);
  EXPECT_EQ(record->BINW, 234.56);
  EXPECT_EQ(record->DBINS, 345.67);
  EXPECT_EQ(record->DREL1, 456.78);
  EXPECT_EQ(record->DREL2, 567.89);
  EXPECT_EQ(record->TDIS, 678.91);
  EXPECT_EQ(record->NBINS, 4);
  EXPECT_EQ(record->NOPENS, 2);
  EXPECT_EQ(record->LayerVelX[1], 1.2345);
  EXPECT_EQ(record->LayerVelZ[1], 2.345678);
  EXPECT_EQ(record->LayerVelX[2], -3.456);
  EXPECT_EQ(record->LayerVelZ[2], -4.56789);
  EXPECT_EQ(record->DHOLE, 12.345);
  EXPECT_EQ(record->ZHOLE, 23.456);
  EXPECT_EQ(record->XHOLE, 34.567);
}

TEST_F(DataFiles, A_Record_Behind_Others_Is_Found_By_Their_Counts_Of_Lines) {
  Write("dispdb.dat", Site_Record(" 100", "    10") + Site_Record(" 200", "    20") + "\r\n");
  ASSERT_TRUE(Site(200));
  EXPECT_EQ(record->DEPC0, 20);
  Write("veldb.dat", Velocity_Block(" 100") + Velocity_Block(" 200") + "\r\n");
  ASSERT_TRUE(Velocity(200, 7));
  EXPECT_EQ(record->VelX1, 7.2);
  EXPECT_EQ(record->VelX2, 0.5);
  Write("matdb.dat", Material_Record(" 100", "Sand") + Material_Record(" 200", "Silt") + "\r\n");
  ASSERT_TRUE(Material(200));
  EXPECT_EQ(record->SolidNames[1], "Silt");
  Write("vesdb.dat", Vessel_Record(" 100", "10", 1) + Vessel_Record(" 200", "20", 1) + "\r\n");
  ASSERT_TRUE(Vessel(200));
  EXPECT_EQ(record->BINL, 20);
  EXPECT_EQ(record->LayerVelX[1], 1.5);
  EXPECT_EQ(record->DHOLE, 7);
}

TEST_F(DataFiles, The_Last_Line_Of_A_File_Does_Not_Count_As_Read) {
  const std::string site = Site_Record(" 100", "    10");
  Write("dispdb.dat", site);
  EXPECT_FALSE(Site(100));
  Write("dispdb.dat", site.substr(0, site.size() - 2));
  EXPECT_FALSE(Site(100));
  Write("dispdb.dat", site + "\r\n");
  EXPECT_TRUE(Site(100));
  Write("dispdb.dat", site + "x");
  EXPECT_TRUE(Site(100));
  Write("matdb.dat", Material_Record(" 100", "Sand"));
  EXPECT_FALSE(Material(100));
  Write("vesdb.dat", Vessel_Record(" 100", "10", 1));
  EXPECT_FALSE(Vessel(100));
  Write("veldb.dat", Velocity_Block(" 100"));
  EXPECT_FALSE(Velocity(100, 12));
  EXPECT_TRUE(Velocity(100, 11));
}

TEST_F(DataFiles, What_Is_Not_Found_Leaves_The_Project_As_It_Is) {
  Write("dispdb.dat", Site_Record(" 100", "    10") + "\r\n");
  Write("matdb.dat", Material_Record(" 100", "Sand") + "\r\n");
  record->NROA0 = 4;
  record->NumSolids = 3;
  EXPECT_FALSE(Site(200));
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_FALSE(Material(200));
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_FALSE(Vessel(100)) << "no file";
  EXPECT_FALSE(Velocity(100, 1)) << "no file";
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(DataFiles, A_Block_Of_35_Lines_Loses_Step_For_All_Later_Sites) {
  std::string shorter = Velocity_Block(" 100");
  for (int i = 0; i < 2; ++i) shorter.erase(shorter.rfind("\r\n", shorter.size() - 3) + 2);
  Write("veldb.dat", shorter + Velocity_Block(" 200") + Velocity_Block(" 300") + "\r\n");
  EXPECT_TRUE(Velocity(100, 11));
  EXPECT_FALSE(Velocity(200, 1));
  EXPECT_FALSE(Velocity(300, 1));
}

TEST_F(DataFiles, A_Month_That_A_Block_Does_Not_Have_Is_Not_Found) {
  std::string block = Velocity_Block(" 100");
  block.replace(block.find("\r\n7\r\n") + 2, 1, "8");
  Write("veldb.dat", block + Velocity_Block(" 200") + "\r\n");
  EXPECT_FALSE(Velocity(100, 7));
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_TRUE(Velocity(100, 8));
  EXPECT_EQ(record->VelX1, 7.1) << "the first of two";
  EXPECT_FALSE(Velocity(100, 0));
}

TEST_F(DataFiles, The_Walk_To_A_Vessel_Passes_Others_By_The_Projects_Own_Openings) {
  Write("vesdb.dat", Vessel_Record(" 100", "10", 1) + Vessel_Record(" 200", "20", 3) +
                         Vessel_Record(" 300", "30", 1) + "\r\n");
  record->NOPENS = 1;
  EXPECT_TRUE(Vessel(100));
  EXPECT_TRUE(Vessel(200));
  EXPECT_EQ(record->NOPENS, 3) << "of the record that was read";
  record->NOPENS = 1;
  EXPECT_FALSE(Vessel(300)) << "the record before it has 3";
  record->NOPENS = 3;
  EXPECT_TRUE(Vessel(100)) << "the first one is always found";
  record->NOPENS = 3;
  EXPECT_FALSE(Vessel(200)) << "the record before it has 1";
}

TEST_F(DataFiles, The_Second_Vessel_Has_Code_200_Whatever_The_List_Says) {
  Write("vessels.dat", "700\r\nAuk\r\n100\r\nBittern\r\n");
  Write("vesdb.dat", Vessel_Record(" 100", "10", 1) + Vessel_Record(" 200", "20", 1) + "\r\n");
  const auto names = *Vessel_Names(folder.path());
  ASSERT_EQ(names.at(1), "Bittern");
  EXPECT_TRUE(Vessel(Code_Of_Place(1)));
  EXPECT_EQ(record->BINL, 20);
}

TEST_F(DataFiles, Counts_Beyond_The_Arrays_Are_Not_Found_Before_Anything_Is_Stored) {
  std::string site = Site_Record(" 100", "    10");
  site[5] = '6';
  Write("dispdb.dat", site + std::string(60, '\n'));
  EXPECT_FALSE(Site(100));
  EXPECT_EQ(Changed(), Fields{});
  site = Site_Record(" 100", "    10");
  site.replace(site.find(" 32 36"), 6, " 32 97");
  Write("dispdb.dat", site + "\r\n");
  EXPECT_FALSE(Site(100));
  EXPECT_EQ(Changed(), Fields{});
  std::string material = Material_Record(" 100", "Sand");
  for (const char solids : {'5', '6'}) {
    material[41] = solids;
    Write("matdb.dat", material + std::string(60, '\n'));
    EXPECT_FALSE(Material(100)) << solids;
    EXPECT_EQ(Changed(), Fields{}) << solids;
  }
  Write("vesdb.dat", Vessel_Record(" 100", "10", 7) + "\r\n");
  EXPECT_FALSE(Vessel(100));
  EXPECT_EQ(Changed(), Fields{});
  Write("vesdb.dat", Vessel_Record(" 100", "10", 6) + "\r\n");
  EXPECT_TRUE(Vessel(100));
}

TEST_F(DataFiles, Columns_Without_A_Number_Read_As_0) {
  Write("dispdb.dat", " 100 0\n\n\nabc\n\n\n\n\n\n\n");
  ASSERT_TRUE(Site(100));
  EXPECT_EQ(record->NMAX0, 0);
  EXPECT_EQ(record->DEPC0, 0);
  EXPECT_EQ(record->NROA0, 0);
}

TEST_F(DataFiles, Moisture_And_Water_Density_Are_Read_Only_Where_They_Are_Told_To_Be) {
  std::string material = Material_Record(" 100", "Sand");
  material.replace(material.size() - 6, 6, "2  1.5\r\n0  1.02\r\n");
  Write("matdb.dat", material + "\r\n");
  record->MoistureContent = 0.25;
  record->SiteDensity = 1.01;
  record->BulkDensity = 1.5;
  ASSERT_TRUE(Material(100));
  EXPECT_EQ(record->JBFCFlag, 2);
  EXPECT_EQ(record->MoistureContent, 0.25);
  EXPECT_EQ(record->SiteDensity, 1.01);
  EXPECT_EQ(record->BulkDensity, 1.5);
}

TEST_F(DataFiles, A_Stored_Density_Profile_Is_No_Computed_One) {
  Write("dispdb.dat", Site_Record(" 100", "    10") + "\r\n");
  record->DensityComputeFlag = kTrue;
  record->DensitySalinities[1] = 30;
  record->DensityTemperatures[1] = 15;
  ASSERT_TRUE(Site(100));
  EXPECT_EQ(record->DensityComputeFlag, kFalse);
  EXPECT_EQ(record->DensitySalinities[1], 0);
  EXPECT_EQ(record->DensityTemperatures[1], 0);
}

TEST_F(DataFiles, A_Line_Ends_As_Any_System_Ends_It) {
  for (const char* end : {"\n", "\r", "\r\n"}) {
    std::string text = Site_Record(" 100", "    10") + "\r\n";
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos; ++at) {
      text.replace(at, 2, end);
    }
    Write("dispdb.dat", text);
    record->DEPC0 = 0;
    EXPECT_TRUE(Site(100));
    EXPECT_EQ(record->DEPC0, 10);
  }
}

}  // namespace
}  // namespace barvon::testing
