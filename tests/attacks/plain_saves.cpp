#include <filesystem>
#include <fstream>
#include <sstream>

#include "attacks/attacked_saves.h"
#include "batch/batch_commands.h"
#include "core/desk/load_record.h"
#include "core/desk/recent_files.h"
#include "core/desk/save_file.h"
#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "database/database_check.h"
#include "database/database_data.h"
#include "database/index_files.h"
#include "database/save_site.h"
#include "dilution/dilution_file.h"
#include "dilution/dilution_report.h"
#include "dilution/dilution_rules.h"
#include "material/material_library.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/files/app_folder.h"
#include "platform/files/lock_file.h"
#include "platform/files/safe_file.h"
#include "run/run_driver.h"
#include "site/grid_csv_file.h"

namespace barvon::testing {
namespace {

constexpr char kSettings[] = "app/BARVON.INI";
constexpr char kSettingsText[] =
    "[Recent "
    "Files]\r\nRecentFile1=/none/1.DUI\r\nRecentFile2=/none/2.DUI\r\nRecentFile3=/none/3.DUI\r\n"
    "[Material Properties Hopper]\r\nListsize=2\r\n"
    "Fraction1=Sand 2.70 .100 .020 .7000 .0150 N Y\r\n"
    "Fraction2=Silt 2.65 .050 .010 .8000 .0100 Y N\r\n[Options]\r\nShow Tips at Startup=1\r\n";

void Put_Settings(const Attack_Bench& bench) { Put_File(bench.In(kSettings), kSettingsText); }

void Open_Sample(Attack_Bench& bench) {
  bench.record = Changed_Sample(bench);
  GetRecentFiles();
}

Attacked_Save Project_Save() {
  return {
      "project",
      {"bay/a.DUI", "bay/a.DUE", kSettings},
      [](const Attack_Bench& bench) {
        Put_Settings(bench);
        Put_File(bench.In("bay/a.DUI"), Sample_Bytes("Section_404_Zid.DUI"));
        Put_File(bench.In("bay/a.DUE"), "the model input of an earlier save\r\n");
      },
      Open_Sample,
      [](Attack_Bench& bench) { Save_File(bench.In("bay/a.DUI"), kProjectKind, *bench.record); }};
}

Attacked_Save Export_Save() {
  return {
      "export",
      {"bay/a.DUE", kSettings},
      [](const Attack_Bench& bench) {
        Put_Settings(bench);
        Put_File(bench.In("bay/a.DUE"), "the model input of an earlier save\r\n");
      },
      [](Attack_Bench& bench) {
        Open_Sample(bench);
        for (char& mark : bench.record->SectionStatus) mark = '+';
      },
      [](Attack_Bench& bench) { Save_File(bench.In("bay/a.DUE"), kExportKind, *bench.record); }};
}

void Set_Dilutions(ProjectRecord& record) {
  record.DiluteRowCount = 40;
  record.DiluteSolidsConc = 50;
  for (std::size_t i = 1; i <= 40; ++i) {
    record.DiluteParameterNames[i] = "Parameter " + std::to_string(i);
    record.DiluteBulk[i] = 1000;
    record.DiluteElutriate[i] = 26;
    record.DiluteCriteria[i] = 10;
    record.DiluteBackground[i] = 2;
  }
}

Attacked_Save Dilution_Save() {
  return {
      "dilution file",
      {"bay/a.DUD", kSettings},
      [](const Attack_Bench& bench) {
        Put_Settings(bench);
        Put_File(bench.In("bay/a.DUD"), "a list of an earlier save\r\n");
      },
      [](Attack_Bench& bench) {
        Register_Dilution_File();
        Open_Sample(bench);
        Set_Dilutions(*bench.record);
      },
      [](Attack_Bench& bench) { Save_File(bench.In("bay/a.DUD"), kDilutionKind, *bench.record); }};
}

Attacked_Save Dilution_Report_Save() {
  return {"DILUTE.OUT",
          {"bay/DILUTE.OUT"},
          [](const Attack_Bench& bench) { Put_File(bench.In("bay/DILUTE.OUT"), "earlier\r\n"); },
          [](Attack_Bench& bench) {
            Open_Sample(bench);
            Set_Dilutions(*bench.record);
          },
          [](Attack_Bench& bench) { Write_Dilute_Report(*bench.record); }};
}

Attacked_Save Text_Save() {
  return {"text",
          {"bay/a.TXT"},
          [](const Attack_Bench& bench) { Put_File(bench.In("bay/a.TXT"), "earlier\r\n"); },
          [](Attack_Bench& bench) {
            Open_Sample(bench);
            Port().text.active = [] { return std::string(150000, 't'); };
          },
          [](Attack_Bench& bench) { Save_File(bench.In("bay/a.TXT"), kTextKind, *bench.record); }};
}

Attacked_Save Settings_Save() {
  Attacked_Save save{"settings", {kSettings}, Put_Settings, Open_Sample, [](Attack_Bench&) {
                       const Settings_Of_Command settings;
                       Write_Setting(kOptionsSection, kTipsAtStartKey, "0");
                       Write_Setting(kHelpStatusSection, kHelpOnKey, "Off  ");
                     }};
  save.keeps_settings = false;
  return save;
}

Attacked_Save Library_Save() {
  return {"material library",
          {kSettings},
          Put_Settings,
          [](Attack_Bench& bench) {
            Open_Sample(bench);
            bench.record->NumSolids = 1;
            bench.record->SolidNames[1] = "Gravel";
          },
          [](Attack_Bench& bench) {
            Material_Library library = Read_Material_List(kHopperLibrary);
            const auto lines = Show_Material_List(library, {});
            Save_New_Materials(*bench.record, lines, library);
          }};
}

void Put_Sites(const Attack_Bench& bench) {
  Put_File(bench.In("app/dspsites.dat"), "100\r\nNorth\r\n\r\n");
  Put_File(bench.In("app/dispdb.dat"), "what stood there\r\n\r\n");
}

Attacked_Save Site_Save() {
  Attacked_Save save{"site of the database",
                     {"app/dspsites.dat", "app/dispdb.dat"},
                     Put_Sites,
                     [](Attack_Bench& bench) {
                       Open_Sample(bench);
                       bench.record->ActiveDatabaseList = kSites;
                     },
                     [](Attack_Bench& bench) { Update_Database("South", *bench.record); }};
  save.makes_new = false;  // without a list it refuses
  return save;
}

Attacked_Save Mending() {
  const auto lay = [](const Attack_Bench& bench) {
    Put_File(bench.In("app/dspsites.dat"), Site_List_Lines(100, "North"));
    Put_File(bench.In("app/dispdb.dat"), Site_Data_Lines(100, *Changed_Sample(bench)));
  };
  Attacked_Save save{"mended database",
                     {"app/dispdb.dat", "app/dispdb.dat.bak"},
                     lay,
                     Open_Sample,
                     [](Attack_Bench& bench) {
                       const Database_Report found = Check_Database(bench.In("app"));
                       for (const auto& finding : found.findings)
                         bench.told.push_back(finding.file + " " + finding.text);
                       const Database_Mended mended = Mend_Database(bench.In("app"), found);
                       if (mended.error != 0) bench.told.push_back("can't mend " + mended.failed);
                     }};
  save.makes_new = false;
  return save;
}

Attacked_Save Table_Save() {
  return {"table as CSV",
          {"bay/a.csv"},
          [](const Attack_Bench& bench) { Put_File(bench.In("bay/a.csv"), "1,2,3\r\n"); },
          Open_Sample,
          [](Attack_Bench&) {
            Export_Grid_Csv("Export", "", Grid_Rows(60, std::vector<double>(60, 12.5)));
          }};
}

Attacked_Save Batch_Save(const std::string& name, Batch_Command command, const std::string& file) {
  Attacked_Save save{name,
                     {file},
                     [file](const Attack_Bench& bench) {
                       Put_File(bench.In("bay/a.DUI"), Sample_Bytes("Section_404_Zid.DUI"));
                       Put_File(bench.In(file), "an earlier one\r\n");
                     },
                     Open_Sample,
                     [command](Attack_Bench& bench) {
                       Batch_Options options;
                       options.command = command;
                       options.force = true;
                       options.files = {command == Batch_Command::New ? "b.DUI" : "a.DUI"};
                       if (Do_Batch_Command(options) == kNotDone) bench.told.push_back("exit code");
                     }};
  // A lock that could not be removed is gone once somebody works with the project again.
  save.start = [](const Attack_Bench& bench) {
    Lock_File().Take(bench.In("bay/.b.DUI.barvon-lock"));
  };
  return save;
}

Attacked_Save Run_Save() {
  Attacked_Save save{
      "outputs of a run",
      {"bay/a.duo", "bay/a.dup", "bay/a.dut", "bay/a.duc", kSettings},
      [](const Attack_Bench& bench) {
        Put_Settings(bench);
        Put_File(bench.In("app/Tmpfile.log"), "what a solver printed\n");
        Put_File(bench.In("bay/a.DUI"), Sample_Bytes("Section_404_Zid.DUI"));
        for (const char* name : {"bay/a.duo", "bay/a.dup", "bay/a.dut", "bay/a.duc"}) {
          Put_File(bench.In(name), "of an earlier run\r\n");
        }
        const std::string solver = bench.In("app/merak32");
        Put_File(solver,
                 "#!/bin/sh\n"
                 "for e in duo dup dut duc; do sed -n 2p Tmpfile.Due > tmpfile.$e; done\n");
        std::filesystem::permissions(solver, std::filesystem::perms::owner_all);
      },
      [](Attack_Bench& bench) {
        Open_Sample(bench);
        bench.record->DataSaved = kTrue;
        bench.record->AlwaysSaveBeforeRun = kFalse;
      },
      [](Attack_Bench& bench) { Run_Model(*bench.record); }};
  for (const std::string extension : {".duo", ".dup", ".dut", ".duc"}) {
    save.copies["bay/a" + extension] = "app/tmpfile" + extension;
  }
  return save;
}

}  // namespace

std::vector<Attacked_Save> Plain_Saves() {
  return {Project_Save(),
          Export_Save(),
          Settings_Save(),
          Library_Save(),
          Site_Save(),
          Mending(),
          Dilution_Save(),
          Dilution_Report_Save(),
          Text_Save(),
          Table_Save(),
          Batch_Save("barvon-run export", Batch_Command::Export, "bay/a.DUE"),
          Batch_Save("barvon-run report", Batch_Command::Report, "bay/a.html"),
          Batch_Save("barvon-run new", Batch_Command::New, "bay/b.DUI"),
          Run_Save()};
}

void Set_Up_Bench(Attack_Bench& bench, const std::string& chosen) {
  Set_Application_Folder(bench.In("app"));
  Set_Save_Notes_Folder(bench.In("app"));
  Change_Current_Folder(bench.In("bay"));
  Reset_Port();
  Port().board.show_note = [&bench](const Status_Note& note) { bench.told.push_back(note.text); };
  Set_Message_Presenter([&bench](const Message& message) {
    bench.told.push_back(message.text);
    return message.buttons == Buttons::Ok || message.buttons == Buttons::OkCancel ? Answer::Ok
                                                                                  : Answer::Yes;
  });
  File_Dialog_Presenter dialogs;
  dialogs.open = dialogs.save = [chosen](const File_Request&) { return chosen; };
  Set_File_Dialog_Presenter(dialogs);
}

void Put_File(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Sample_Bytes(const std::string& name) {
  std::ostringstream bytes;
  bytes << std::ifstream(BARVON_SAMPLES "/" + name, std::ios::binary).rdbuf();
  return bytes.str();
}

std::unique_ptr<ProjectRecord> Changed_Sample(const Attack_Bench& bench) {
  static const Loaded_Record loaded = Load_Record(BARVON_SAMPLES "/Section_404_Zid.DUI");
  auto record = std::make_unique<ProjectRecord>(*loaded.record);
  record->ProjectTitle = "Changed since it was saved";
  record->ProjectFileName = bench.In("bay/a.DUI");
  record->BaseFileName = bench.In("bay/a");
  return record;
}

}  // namespace barvon::testing
