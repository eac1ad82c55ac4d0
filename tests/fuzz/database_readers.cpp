#include <iterator>
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

/// The sample database. Mending leaves copies, which are of no use.
void Lay_Out() {
  for (const char* file : kFiles) Put(file, Content(kSamples + std::string(file)));
}

/// The sample database with this file in the place of its own.
void Put_Into_Database(const char* name, std::string_view bytes) {
  static const bool laid_out = (Lay_Out(), true);
  if (laid_out) Put(name, bytes);
}

/// One of the list: any of them is as good.
int Some_Place(std::string_view bytes) { return static_cast<int>(bytes.size() % kPlaces); }

using Search = bool (*)(const std::string& folder, ProjectRecord& record);

const ProjectRecord& Fresh() {
  static const std::unique_ptr<ProjectRecord> record = Fresh_Record();
  return *record;
}

std::unique_ptr<ProjectRecord> That_Looks_For(int place, int month) {
  auto record = std::make_unique<ProjectRecord>(Fresh());
  record->SelectedSiteCode = record->SelectedMaterialCode = record->SelectedVesselCode =
      Code_Of_Place(place);
  record->SelectedMonth = month;
  return record;
}

void Look_For(Search search, int place, bool by_month) {
  for (int month = 1; month <= (by_month ? kMonths : 1); month += kMonths - 1) {
    search(Work_Folder(), *That_Looks_For(place, month));
  }
}

/// A record that is not found leaves the project.
void Hold_Search(Search search, int place) {
  const auto before = That_Looks_For(place, kMonths);
  const auto record = std::make_unique<ProjectRecord>(*before);
  if (search(Work_Folder(), *record)) return;
  Demand(testing::Differing_Fields(*record, *before).empty(),
         "a record that is not found leaves the project");
}

template <int File>
std::vector<std::string> Samples() {
  return {Content(kSamples + std::string(kFiles[File]))};
}

constexpr Search kSearches[] = {Find_Site, Find_Velocity, Find_Material, Find_Vessel};

template <int File>
void Read(std::string_view bytes) {
  Put_Into_Database(kFiles[File], bytes);
  Site_Names(Work_Folder());
  Material_Names(Work_Folder());
  Vessel_Names(Work_Folder());
  if constexpr (File < std::size(kSearches))
    Look_For(kSearches[File], Some_Place(bytes), File == 1);
  Check_Database(Work_Folder());
}

void Hold_Mending() {
  const Database_Report report = Check_Database(Work_Folder());
  if (report.mends.empty()) return;
  for (const Database_Mend& mend : report.mends) Put(mend.file, mend.bytes);
  const Database_Report again = Check_Database(Work_Folder());
  Demand(again.mends.empty(), "what was mended needs no more mending");
  Demand(again.Faults() <= report.Faults(), "mending makes nothing worse");
  Lay_Out();
}

void Hold_Saving_A_Site() {
  const std::string before = Content(Work_Folder() + "/" + kSiteFile);
  const auto names = Site_Names(Work_Folder());
  const Site_Saved saved =
      Save_Site(Work_Folder(), static_cast<int>(names->size()), "One more", Fresh());
  Demand(saved.error == 0, "a site is saved");
  const std::string after = Content(Work_Folder() + "/" + kSiteFile);
  const auto now = Site_Names(Work_Folder());
  Lay_Out();
  Demand(saved.out_of_step ? after == before : after.starts_with(before),
         "a site is appended to the others");
  Demand(saved.out_of_step || (now->size() == names->size() + 1 && now->back() == "One more"),
         "a site's name stands at its place");
}

template <int File>
void Hold(std::string_view bytes) {
  Put_Into_Database(kFiles[File], bytes);
  if constexpr (File < std::size(kSearches)) Hold_Search(kSearches[File], Some_Place(bytes));
  Hold_Mending();
  if (File != 0 && kFiles[File] != std::string_view(kSiteList)) return;
  Put_Into_Database(kFiles[File], bytes);
  Hold_Saving_A_Site();
}

constexpr Reader kReaders[] = {
    {kSiteFile, 4, Samples<0>, Read<0>, Hold<0>, nullptr},
    {kVelocityFile, 3, Samples<1>, Read<1>, Hold<1>, nullptr},
    {kMaterialFile, 4, Samples<2>, Read<2>, Hold<2>, nullptr},
    {kVesselFile, 3, Samples<3>, Read<3>, Hold<3>, nullptr},
    {kSiteList, 1, Samples<4>, Read<4>, Hold<4>, nullptr},
    {kMaterialList, 1, Samples<5>, Read<5>, Hold<5>, nullptr},
    {kVesselList, 1, Samples<6>, Read<6>, Hold<6>, nullptr},
};

}  // namespace

std::span<const Reader> Database_Readers() { return kReaders; }

}  // namespace barvon::fuzz
