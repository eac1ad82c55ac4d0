#include <memory>

#include "core/desk/load_record.h"
#include "database/data_files.h"
#include "database/database_check.h"
#include "database/index_files.h"
#include "database/save_site.h"
#include "fuzz/readers.h"
#include "support/record_differences.h"

namespace barvon::fuzz {
namespace {

constexpr const char* kFiles[] = {kSiteFile, kVelocityFile, kMaterialFile, kVesselFile,
                                  kSiteList, kMaterialList, kVesselList};
constexpr int kPlaces = 4;  // of a list, that are looked for
constexpr const char kSamples[] = BARVON_SAMPLES "/database/";

/// The sample database, with the file as it is now. Mending leaves copies, which are of no use.
void Lay_Out(std::string_view name, std::string_view bytes) {
  for (const char* file : kFiles) {
    Put(file, file == name ? bytes : Content(kSamples + std::string(file)));
  }
}

using Search = bool (*)(const std::string& folder, ProjectRecord& record);

/// A record that is found or not; one that is not leaves the project.
void Look_For(Search search, int place, int month) {
  static const std::unique_ptr<ProjectRecord> fresh = Fresh_Record();
  auto record = std::make_unique<ProjectRecord>(*fresh);
  record->SelectedSiteCode = record->SelectedMaterialCode = record->SelectedVesselCode =
      Code_Of_Place(place);
  record->SelectedMonth = month;
  if (search(Work_Folder(), *record)) return;
  record->SelectedSiteCode = fresh->SelectedSiteCode;
  record->SelectedMaterialCode = fresh->SelectedMaterialCode;
  record->SelectedVesselCode = fresh->SelectedVesselCode;
  record->SelectedMonth = fresh->SelectedMonth;
  Demand(testing::Differing_Fields(*record, *fresh).empty(),
         "a record that is not found leaves the project");
}

void Look_For_All(Search search, bool by_month) {
  for (int place = 0; place < kPlaces; ++place) {
    for (int month = 1; month <= (by_month ? kMonths : 1); month += kMonths - 1) {
      Look_For(search, place, month);
    }
  }
}

template <int File>
std::vector<std::string> Samples() {
  return {Content(kSamples + std::string(kFiles[File]))};
}

template <int File>
void Read(std::string_view bytes) {
  Lay_Out(kFiles[File], bytes);
  Site_Names(Work_Folder());
  Material_Names(Work_Folder());
  Vessel_Names(Work_Folder());
  constexpr Search kSearches[] = {Find_Site, Find_Velocity, Find_Material, Find_Vessel};
  if constexpr (File <= 3) Look_For_All(kSearches[File], File == 1);
  Check_Database(Work_Folder());
}

template <int File>
void Hold(std::string_view bytes) {
  Lay_Out(kFiles[File], bytes);
  Database_Report report = Check_Database(Work_Folder());
  for (const Database_Mend& mend : report.mends) Put(mend.file, mend.bytes);
  if (!report.mends.empty()) {
    const int faults = report.Faults();
    report = Check_Database(Work_Folder());
    Demand(report.mends.empty(), "what was mended needs no more mending");
    Demand(report.Faults() <= faults, "mending makes nothing worse");
  }
  if (kFiles[File] != std::string_view(kSiteFile) && kFiles[File] != std::string_view(kSiteList)) {
    return;
  }
  static const std::unique_ptr<ProjectRecord> record = Fresh_Record();
  Lay_Out(kFiles[File], bytes);
  const std::string before = Content(Work_Folder() + "/" + kSiteFile);
  const auto names = Site_Names(Work_Folder());
  const Site_Saved saved =
      Save_Site(Work_Folder(), static_cast<int>(names->size()), "One more", *record);
  Demand(saved.error == 0, "a site is saved");
  const std::string after = Content(Work_Folder() + "/" + kSiteFile);
  Demand(saved.out_of_step ? after == before : after.starts_with(before),
         "a site is appended to the others");
  if (saved.out_of_step) return;
  const auto now = Site_Names(Work_Folder());
  Demand(now->size() == names->size() + 1 && now->back() == "One more",
         "a site's name stands at its place");
}

constexpr Reader kReaders[] = {
    {kSiteFile, 10, Samples<0>, Read<0>, Hold<0>, nullptr},
    {kVelocityFile, 8, Samples<1>, Read<1>, Hold<1>, nullptr},
    {kMaterialFile, 10, Samples<2>, Read<2>, Hold<2>, nullptr},
    {kVesselFile, 8, Samples<3>, Read<3>, Hold<3>, nullptr},
    {kSiteList, 4, Samples<4>, Read<4>, Hold<4>, nullptr},
    {kMaterialList, 4, Samples<5>, Read<5>, Hold<5>, nullptr},
    {kVesselList, 4, Samples<6>, Read<6>, Hold<6>, nullptr},
};

}  // namespace

std::span<const Reader> Database_Readers() { return kReaders; }

}  // namespace barvon::fuzz
