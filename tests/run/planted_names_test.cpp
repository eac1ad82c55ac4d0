// The fixed names that are no run's: the report of the calculator, the lock of a project, the files
// of the database, the copies of unsaved work.

#include <ctime>
#include <filesystem>

#include "core/desk/project_hold.h"
#include "core/desk/save_file.h"
#include "core/keys.h"
#include "database/data_files.h"
#include "database/index_files.h"
#include "database/save_site.h"
#include "dilution/dilution_report.h"
#include "platform/files/app_folder.h"
#include "recovery/recovery_folder.h"
#include "run/planted_files.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

/// The user's own links are left out where a file is his: they are written through, as he wants.
constexpr std::array kNoLinks = {Plant::Second_Name, Plant::Pipe, Plant::Folder};
constexpr std::array kLinks = {Plant::Link, Plant::Dangling_Link};

void Put_A_Parameter(ProjectRecord& record) {
  record.DiluteRowCount = 1;
  record.DiluteParameterNames[1] = "Copper";
  record.DiluteBulk[1] = 1000;
  record.DiluteElutriate[1] = 26;
  record.DiluteCriteria[1] = 10;
  record.DiluteSolidsConc = 50;
}

TEST_F(PlantedFiles, Under_The_Report_Of_The_Calculator_They_Are_Replaced_Or_Told) {
  Put_A_Parameter(record);
  fs::current_path(bench.folder / "bay");
  const std::string path = bench.folder / "bay/DILUTE.OUT";
  for (const Plant plant : kNoLinks) {
    Put(plant, path);
    const Scripted_Messages messages({Answer::Yes, Answer::Ok});
    Write_Dilute_Report(record);
    Expect_No_Harm(plant, path);
    EXPECT_EQ(messages.shown.size(), plant == Plant::Second_Name ? 1u : 2u);
  }
}

TEST_F(StrangersFiles, Links_Under_The_Report_Of_The_Calculator_Are_Told) {
  Put_A_Parameter(record);
  fs::current_path(bench.folder / "bay");
  Open_To_All(bench.folder / "bay", kSticky);
  const std::string path = bench.folder / "bay/DILUTE.OUT";
  for (const Plant plant : kLinks) {
    Put(plant, path);
    Give_Away(path);
    const Scripted_Messages messages({Answer::Yes, Answer::Ok});
    Write_Dilute_Report(record);
    Expect_No_Harm(plant, path);
    EXPECT_EQ(messages.shown.back().icon, Icon::Critical);
    EXPECT_TRUE(fs::is_symlink(path));
  }
}

TEST_F(PlantedFiles, Under_The_Lock_Of_A_Project_They_Keep_Nobody_From_Saving_It) {
  const std::string path = Lock_Path_Of(base + ".DUI");
  for (const Plant plant : kPlants) {
    Put(plant, path);
    const Scripted_Messages messages({Answer::Yes});
    EXPECT_TRUE(Save_File(base + ".DUI", kProjectKind, record));
    Expect_No_Harm(plant, path);
    Release_Project();
    Expect_No_Harm(plant, path);
    // Only what could be a lock is asked about.
    EXPECT_EQ(messages.shown.size(), plant == Plant::Second_Name ? 1u : 0u);
    EXPECT_EQ(fs::exists(fs::symlink_status(path)), plant != Plant::Second_Name);
  }
}

TEST_F(PlantedFiles, Under_The_Names_Of_The_Database_They_Are_Replaced_Or_Refused) {
  for (const char* name : {kSiteList, kSiteFile}) {
    for (const Plant plant : kNoLinks) {
      Put(plant, bench / name);
      const bool is_appended = plant == Plant::Second_Name && name == std::string(kSiteFile);
      const Site_Saved saved = Save_Site(bench.app(), 0, "North", record);
      Expect_No_Harm(plant, bench / name);
      EXPECT_EQ(saved.error == 0 && !saved.out_of_step, is_appended) << name;
      fs::remove_all(bench / kSiteList);
      fs::remove_all(bench / kSiteFile);
    }
  }
  for (const char* name : {kSiteList, kMaterialList, kVesselList}) {
    Put(Plant::Pipe, bench / name);
  }
  EXPECT_FALSE(Site_Names(bench.app()) || Material_Names(bench.app()) || Vessel_Names(bench.app()));
}

TEST_F(PlantedFiles, Under_The_Names_Of_The_Database_Nothing_Is_Copied_Over_Them) {
  fs::create_directory(bench.folder / "delivered");
  Write_Text(bench.folder / "delivered/sites.dat", "100\r\nDelivered\r\n\r\n");
  Set_Delivered_Folder(bench.folder / "delivered");
  for (const Plant plant : kPlants) {
    Put(plant, bench / kMaterialList);
    Copy_Together({kMaterialList});
    Expect_No_Harm(plant, bench / kMaterialList);
    fs::remove_all(bench / kMaterialList);
  }
  Set_Delivered_Folder({});
}

TEST_F(StrangersFiles, Links_Under_The_Names_Of_The_Database_Are_Refused) {
  Open_To_All(bench.app(), kSticky);
  for (const char* name : {kSiteList, kSiteFile}) {
    for (const Plant plant : kLinks) {
      Put(plant, bench / name);
      Give_Away(bench / name);
      const Site_Saved saved = Save_Site(bench.app(), 0, "North", record);
      EXPECT_TRUE(saved.error != 0 || saved.out_of_step);
      Expect_No_Harm(plant, bench / name);
      fs::remove(bench / kSiteList);
      fs::remove(bench / kSiteFile);
    }
  }
}

TEST_F(PlantedFiles, Under_The_Folder_Of_The_Copies_They_Lead_Nowhere) {
  const std::string data = bench.folder / "data";
  const Changed_Variable changed("XDG_DATA_HOME", data);
  fs::create_directories(data + "/barvon");
  fs::create_directory(bench.folder / "elsewhere");
  const std::string folder = data + "/barvon/recovery";
  for (const Plant plant : kPlants) {
    Put(plant, folder);
    Own_Copy copy;
    EXPECT_EQ(copy.Write("copy") == 0, plant == Plant::Folder);
    Take_Left_Copies();
    Expect_No_Harm(plant, folder);
  }
  fs::remove_all(folder);
  fs::create_directory_symlink(bench.folder / "elsewhere", folder);
  EXPECT_NE(Own_Copy().Write("copy"), 0);
  EXPECT_TRUE(fs::is_empty(bench.folder / "elsewhere"));
}

TEST_F(PlantedFiles, Under_The_Names_Of_A_Copy_They_Lead_Nowhere) {
  const Changed_Variable changed("XDG_DATA_HOME", bench.folder / "data");
  const std::string folder = bench.folder / "data/barvon/recovery";
  fs::create_directories(folder);
  constexpr int kSeconds = 5;  // a name tells when it was made
  for (const char* ending : {".barvon-copy", ".barvon-part", ".barvon-lock"}) {
    for (const Plant plant : kPlants) {
      std::vector<std::string> paths;
      for (int later = 0; later < kSeconds; ++later) {
        paths.push_back(folder + "/" + std::to_string(::getpid()) + "-" +
                        std::to_string(std::time(nullptr) + later) + "-0" + ending);
        Put(plant, paths.back());
      }
      {
        Own_Copy copy;
        copy.Write("copy");
        Take_Left_Copies();
        copy.Remove();
      }
      EXPECT_EQ(Read_Text(victim), "precious");
      EXPECT_FALSE(Exists(made));
      for (const std::string& path : paths) fs::remove_all(path);
    }
  }
}

TEST_F(StrangersFiles, A_Folder_For_Copies_That_Is_A_Strangers_Gets_None) {
  const std::string data = bench.folder / "data";
  const Changed_Variable changed("XDG_DATA_HOME", data);
  fs::create_directories(data + "/barvon/recovery");
  Give_Away(data + "/barvon/recovery");
  EXPECT_NE(Own_Copy().Write("copy"), 0);
  fs::remove(data + "/barvon/recovery");
  Give_Away(data + "/barvon");
  EXPECT_EQ(Own_Copy().Write("copy"), 0) << "the owner of the folder that it is in let him in";
  Open_To_All(data, kSticky);
  EXPECT_NE(Own_Copy().Write("copy"), 0);
}

}  // namespace
}  // namespace barvon
