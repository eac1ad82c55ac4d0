#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/desk/settings_keys.h"
#include "core/project_defaults.h"
#include "platform/ask/file_dialog.h"
#include "platform/files/profile_settings.h"
#include "run/child_support.h"
#include "run/run_driver.h"

namespace barvon::testing {

inline constexpr char kWritesAll[] =
    "write:tmpfile.duo=o\nwrite:tmpfile.dup=p\nwrite:tmpfile.dut=t\nwrite:tmpfile.duc=c\n";

/// A project on disk whose data has no faults, the barge of a constant-depth site.
inline void Set_Sound_Data(ProjectRecord& record) {
  Set_Project_Defaults(record);
  record.FileKind = 2;
  record.ShowMode = 0;
  record.DataSaved = kTrue;
  record.AlwaysSaveBeforeRun = kFalse;
  record.DisposalMethod = 3;
  record.MMAX0 = record.NMAX0 = 20;
  record.DX0 = record.DZ0 = 100;
  record.RHDA0 = 0.005;
  record.DEPC0 = 50;
  record.ConstantDepthFlag = 1;
  record.NROA0 = 2;
  record.DensityDepths[1] = 0;
  record.DensityDepths[2] = 50;
  record.Densities[1] = 1.02;
  record.Densities[2] = 1.022;
  record.SiteTop = record.SiteLeft = 500;
  record.SiteBottom = record.SiteRight = 1500;
  record.XBARGE = record.ZBARGE = 1000;
  record.BargeLength = 200;
  record.BargeWidth = 50;
  record.SimulationDuration = 3600;
  record.LongTermTimeStep = 600;
  record.NumSolids = 1;
  record.SolidNames[1] = "SAND";
  record.SolidSG[1] = 2.65;
  record.SolidVolFraction[1] = 0.2;
  record.LAYERS = 1;
  record.LayerVolume[1] = 1000;
}

struct RunDriver : ::testing::Test {
  RunDriver() {
    std::filesystem::create_directory(bench.folder / "bay");
    Set_Sound_Data(record);
    record.ProjectFileName = base + ".DUI";
    record.BaseFileName = base;
    Write_Text(base + ".DUI", "as saved");
    former_dialogs_ = Set_File_Dialog_Presenter({nullptr,
                                                 [this](const File_Request& request) {
                                                   requests.push_back(request);
                                                   return chosen;
                                                 },
                                                 nullptr});
  }
  ~RunDriver() override { Set_File_Dialog_Presenter(std::move(former_dialogs_)); }

  void Install(const std::string& steps) { bench.Install("merak32", steps); }
  Run_Report Run(std::vector<Answer> answers = {}) {
    Scripted_Messages messages(std::move(answers));
    Run_Report report = Run_Model(record);
    shown = messages.shown;
    return report;
  }
  std::string Kept(const std::string& extension) { return Read_Text(base + extension); }
  std::string Graph_File() {
    return Read_Profile_String(bench / "BARVON.INI", kGraphFileSection, kGraphFileKey, "none");
  }
  void Expect_One_Box(const char* text, const char* title, Icon icon) {
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, title);
    EXPECT_EQ(shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(shown[0].icon, icon);
  }
  void Expect_Nothing_Written() {
    EXPECT_FALSE(Exists(bench / "Tmpfile.Due"));
    EXPECT_FALSE(Exists(bench / "KOLBREE.TMP"));
    EXPECT_FALSE(Exists(bench / "BARVON.INI"));
    EXPECT_TRUE(bench.states.empty());
  }
  std::string Note() { return bench.notes.empty() ? "no note" : bench.notes.back().text; }

  Solver_Bench bench;
  const std::unique_ptr<ProjectRecord> owner = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner;
  const std::string base = bench.folder / "bay/site";
  std::vector<Message> shown;
  std::optional<std::string> chosen;
  std::vector<File_Request> requests;

 private:
  File_Dialog_Presenter former_dialogs_;
};

}  // namespace barvon::testing
