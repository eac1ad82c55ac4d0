#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "core/keys.h"
#include "material/frm_mat_barge.h"
#include "material/frm_mat_hopper.h"
#include "material/material_screen.h"
#include "platform/ask/file_dialog.h"
#include "run/create_process.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

/// From a sample project over a material screen to the file and a run of the input echo.
template <class Screen_Class>
class Material_Journey : public Material_Screen<Screen_Class> {
 protected:
  Material_Journey(const char* screen, const char* sample) : Material_Screen<Screen_Class>(screen) {
    const auto choose = [this](const File_Request&) { return chosen; };
    dialogs_ = Set_File_Dialog_Presenter({choose, choose, [] {}});
    fs::copy_file(BARVON_ECHO_SOLVER, this->bench.folder / "merak32");
    fs::copy_file(std::string(BARVON_SAMPLES) + "/" + sample, this->bench.folder / "site.DUI");
    Load("site.DUI");
  }
  ~Material_Journey() override { Set_File_Dialog_Presenter(dialogs_); }

  void Load(const std::string& name) {
    chosen = this->bench.folder / name;
    this->bench.Action("mnuFileItem(1)")->trigger();
    ASSERT_EQ(this->record.ProjectFileName, *chosen);
    this->record.ShowMode = 0;
  }

  /// The project has no material yet.
  void Empty_Material() {
    this->record.NumSolids = 1;
    this->record.SolidNames = {};
    this->record.SolidSG = {};
    this->record.SolidVolFraction = {};
    this->record.LayerVolume = {};
    this->record.LayerSolidFraction = {};
    this->record.LAYERS = 1;
    this->record.SeparationFlag = this->record.JBFCFlag = 0;
    this->record.TotalVolume = 0;
    this->record.BulkDensity = 0;
  }

  /// Saves what OK has left, begins anew and loads: of the material all must be as it was.
  void Save_And_Load(const Fields& material) {
    const auto kept = std::make_unique<ProjectRecord>(this->record);
    chosen = this->bench.folder / "kept.DUI";
    this->bench.Action("mnuFileItem(5)")->trigger();
    this->bench.Action("mnuFileItem(0)")->trigger();
    ASSERT_EQ(this->record.SolidNames[1], "");
    Load("kept.DUI");
    for (const std::string& field : Differing_Fields(*kept, this->record)) {
      EXPECT_EQ(std::ranges::count(material, field), 0) << field;
    }
  }

  void Run() {
    QTest::mouseClick(this->bench.controls().SSPanel3(1), Qt::LeftButton);
    ASSERT_FALSE(Run_Is_Under_Way());
    EXPECT_NE(Read_Text(this->bench.folder / "kept.duo").find("simulates nothing"),
              std::string::npos);
  }

  std::optional<std::string> chosen;

 private:
  File_Dialog_Presenter dialogs_;
};

const Fields kMaterial = {"NumSolids",
                          "SolidNames",
                          "SolidSG",
                          "SolidVolFraction",
                          "SolidFallVelocity",
                          "SolidVoidRatio",
                          "SolidCriticalShear",
                          "SolidCohesive",
                          "SolidStripped",
                          "TotalVolume",
                          "MoistureContent",
                          "JBFCFlag",
                          "LAYERS",
                          "SeparationFlag",
                          "LayerVolume",
                          "LayerVelX",
                          "LayerVelZ",
                          "LayerMoisture",
                          "LayerSolidFraction"};

class HopperJourney : public Material_Journey<frmMatHopper> {
 protected:
  HopperJourney() : Material_Journey("frmMatHopper", "Hopper_Six_Openings.DUI") {}
};

class BargeJourney : public Material_Journey<frmMatBarge> {
 protected:
  BargeJourney() : Material_Journey("frmMatBarge", "Barge_Four_Layers.DUI") {}
};

TEST_F(HopperJourney, A_Sample_That_Is_Accepted_Untouched_Keeps_Its_Material) {
  Open();
  Accept();
  ASSERT_FALSE(Is_Open());
  for (const std::string& field : Changed()) {
    EXPECT_EQ(std::ranges::count(kMaterial, field), 0) << field;
  }
}

TEST_F(BargeJourney, A_Sample_That_Is_Accepted_Untouched_Keeps_Its_Material) {
  Open();
  Accept();
  ASSERT_FALSE(Is_Open());
  for (const std::string& field : Changed()) {
    EXPECT_EQ(std::ranges::count(kMaterial, field), 0) << field;
  }
}

TEST_F(HopperJourney, Four_Fractions_Entered_From_Nothing_Are_Saved_Loaded_And_Run) {
  Empty_Material();
  Open();
  Enter("Text2(0)", "4000");
  Go_To(1);
  Type_Row("F1Book1", 9, {"Shells", "2.7", "0.01", "1", "0.5", "99", "N", "N"});
  Type_Row("F1Book1", 10, {"Sand", "2.7", "0.2", "0.02", "0.7", "0.015", "N", "Y"});
  Type_Row("F1Book1", 11, {"Mud", "2.65", "0.03", "0.01", "4", "0.008", "Y", "Y"});
  Type_Row("F1Book1", 12, {"Loam", "2.65", "0.01", "0.002", "7", "0.0006", "Y", "Y"});
  Accept();
  ASSERT_FALSE(Is_Open());
  EXPECT_EQ(record.SolidCriticalShear[4], 0.0006);
  Save_And_Load(kMaterial);
  Run();
}

TEST_F(BargeJourney, Six_Layers_With_Separation_Entered_From_Nothing_Are_Saved_Loaded_And_Run) {
  Empty_Material();
  Open();
  Enter("Text1(0)", "6");
  for (int row = 1; row <= 6; ++row) Type_Row("F1Book1(0)", row, {"500", "1", "0.25"});
  Go_To(1);
  Box("SSCheck1(0)")->click();
  Box("SSCheck1(1)")->click();
  Type_Row("F1Book1(2)", 9, {"Sand", "2.7", "0.02", "0.7", "0.015", "N", "Y"});
  Type_Row("F1Book1(2)", 10, {"Loam", "2.65", "0.002", "7", "0.002", "Y", "Y"});
  Go_To(2);
  Type_Row("F1Book1(1)", 1, {"0.1", "0.12", "0.14", "0.16", "0.18", "0.2"});
  Type_Row("F1Book1(1)", 2, {"0.06", "0.05", "0.04", "0.03", "0.02", "0.01"});
  Type_Row("F1Book1(1)", 3, {"2", "1.9", "1.8", "1.7", "1.6", "1.5"});
  Accept();
  ASSERT_FALSE(Is_Open());
  EXPECT_EQ(record.LayerSolidFraction[2][6], 0.01);
  EXPECT_EQ(record.LayerMoisture[6], 1.5);
  Save_And_Load(kMaterial);
  Run();
}

}  // namespace
}  // namespace barvon::testing
