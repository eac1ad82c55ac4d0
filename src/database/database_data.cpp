#include "database/database_data.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "core/desk/accepted_screen.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "core/text_tools.h"
#include "database/data_files.h"
#include "database/save_site.h"
#include "platform/ask/message_box.h"
#include "platform/files/app_folder.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"
#include "platform/text/counted.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("DataBase");
constexpr char kWarning[] = "Warning";

/// The category's line among the states of the main window.
void Show_Supplied(const Screen_Row& screen) {
  Port().board.set_status_line(*screen.status_line, kDataSupplied, Status_Colour::Blue);
}

/// A list of the screen: what it is called where nothing is chosen, where its choice goes, and what
/// the main window says of it.
struct List_Row {
  const char* name;
  double ProjectRecord::*key;
  double step;  // of the key from place to place
  bool (*assign)(ProjectRecord&);
  const char* prefix;
};

constexpr List_Row kLists[kDatabaseLists] = {
    {" Site Data", &ProjectRecord::SelectedSiteCode, kCodeStep, Assign_Site, "Site: "},
    {" Velocity Data", &ProjectRecord::SelectedMonth, 1, Assign_Velocity, "Month: "},
    {" Material Data", &ProjectRecord::SelectedMaterialCode, kCodeStep, Assign_Material,
     "Material Location: "},
    {" Disposal Operations Data", &ProjectRecord::SelectedVesselCode, kCodeStep, Assign_Disposal,
     "Disposal Vessel: "}};

/// What there is to know about the vessel that was looked for.
std::string Vessel_Words(bool found, const ProjectRecord& record) {
  if (!found || record.DisposalMethod != kBarge) return "";
  return " The vessel is a hopper's, the project a barge's.";
}

/// How the walk went past the vessels before the one that was looked for.
std::string Passed_Words(int place, int openings) {
  if (place <= 0) return "";
  return "The vessels before the chosen one were passed by " +
         Counted(static_cast<std::size_t>(std::max(openings, 0)), "opening") + " each.";
}

std::string Listed(const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts) list += (list.empty() ? "" : ", ") + text;
  return list;
}

/// The letters of a name that would become question marks, and "a control letter" for those that
/// might break a line; "" for none.
std::string Letters_That_Files_Lose(const std::string& name) {
  std::vector<std::string> lost;
  for (std::string rest = name; !rest.empty();) {
    const std::string letter = First_Characters(rest, 1);
    rest.erase(0, letter.size());
    const std::string told = Has_Control_Letters(letter) ? "a control letter" : letter;
    const bool kept = told == letter && Fits_File_Encoding(letter);
    if (!kept && std::ranges::find(lost, told) == lost.end()) lost.push_back(told);
  }
  return Listed(lost);
}

/// Whether both files are there and hold the same.
bool Same_Bytes(const std::string& path, const std::string& other) {
  std::string bytes, others;
  return Read_Whole_File(Path_To_Write(path), bytes) == 0 &&
         Read_Whole_File(Path_To_Write(other), others) == 0 && bytes == others;
}

}  // namespace

bool Take_Delivered_Database() {
  std::vector<std::string> lacking;
  bool has_others = false;
  for (const char* name : {kSiteList, kMaterialList, kVesselList, kSiteFile, kVelocityFile,
                           kMaterialFile, kVesselFile}) {
    const std::string own = Join_Path(Application_Folder(), name);
    const std::string delivered = Join_Path(Delivered_Folder(), name);
    if (Find_Path(own)) {
      has_others = has_others || !Same_Bytes(own, delivered);
    } else if (Find_Path(delivered)) {
      lacking.push_back(name);
    }
  }
  if (lacking.empty()) return true;
  if (has_others) {
    std::string names;
    for (const std::string& name : lacking) names += "\n" + name;
    Show_Warning("These files are missing in your copy of the database in " + Application_Folder() +
                 ":" + names +
                 "\n\nThe ones that came with the program are not put beside yours, since lists "
                 "and data of two databases give wrong numbers.  Put yours back, or delete what is "
                 "left of it to get all seven.");
    return false;
  }
  const Copies_Made made = Copy_Together(lacking);
  if (made.error == 0) return true;
  Show_Warning("Can't copy the file of the database " + Join_Path(Delivered_Folder(), made.failed) +
               " to " + Application_Folder() + ": " + std::strerror(made.error));
  return false;
}

Database_Lists Load_Lists(ProjectRecord& record) {
  const bool is_told = !Take_Delivered_Database();
  const std::string& folder = Application_Folder();
  Database_Lists lists = {Load_Site(folder, record), Load_Velocity(record),
                          Load_Material(folder, record), Load_Disposal(folder, record)};
  std::string missing;
  for (const List_Contents& list : lists) {
    if (!list.missing_file.empty()) missing += "\n" + list.missing_file;
  }
  if (!missing.empty() && !is_told) {
    Show_Warning("These files of the database can't be read in the program's folder:" + missing,
                 "BARVON DataBase");
  }
  return lists;
}

bool Assign_Site(ProjectRecord& record) {
  const bool found = Find_Site(Application_Folder(), record);
  if (found) {
    record.SiteFound = kTrue;
    Show_Supplied(Row_Of_Screen("frmDescription"));
  } else {
    Show_Warning("Site Selected Is Not In Database", kWarning);
  }
  return found;
}

bool Assign_Velocity(ProjectRecord& record) {
  const bool found = Find_Velocity(Application_Folder(), record);
  if (found) Show_Supplied(Row_Of_Screen("frmVelocity"));
  return found;
}

bool Assign_Material(ProjectRecord& record) {
  const bool found = Find_Material(Application_Folder(), record);
  if (found) {
    record.MaterialFound = kTrue;
    Show_Supplied(Row_Of_Screen("frmMatHopper"));
  } else {
    Show_Warning("Site for Material Selection Not In Database", kWarning);
  }
  return found;
}

bool Assign_Disposal(ProjectRecord& record) {
  const bool found = Find_Vessel(Application_Folder(), record);
  if (found) {
    record.VesselFound = kTrue;
    Show_Supplied(Row_Of_Screen("frmOperation"));
  } else {
    Show_Warning("Vessel Type Not In Database", kWarning);
  }
  return found;
}

void Accept_Selection(const Database_Choices& choices, ProjectRecord& record) {
  const Board_Port& board = Port().board;
  board.set_database_used();
  std::string message = "No Selection Made For:\n";
  std::string remarks, details;
  bool AllChosen = true, applied = false;
  for (std::size_t i = 0; i < kDatabaseLists; ++i) {
    const List_Row& list = kLists[i];
    if (choices[i].text.empty()) {
      AllChosen = false;
      message += std::string(list.name) + "\n";
      continue;
    }
    const int openings = record.NOPENS;
    record.*list.key = (choices[i].place + 1) * list.step;
    const bool found = list.assign(record);
    applied = applied || found;
    board.set_database_line(static_cast<int>(i), list.prefix + choices[i].text);
    if (i == kVelocities && !found) remarks += " The velocity stays as it was.";
    if (i == kVessels) {
      remarks += Vessel_Words(found, record);
      details += Passed_Words(choices[i].place, openings);
    }
  }
  if (!AllChosen) Show_Critical(message, "BARVON DataBase");
  if (applied) {
    record.DataSaved = kFalse;
    Accept_Screen(kScreen, record);
  }
  const int findings = board.count_findings();
  board.show_note({"The project has " +
                       (findings == 0 ? "no findings"
                                      : Counted(static_cast<std::size_t>(findings), "finding")) +
                       "." + remarks,
                   details});
}

bool Update_Database(const std::string& name, ProjectRecord& record) {
  const Answer answer = Show_Message(
      {"Selecting OK Will Automatically Update DataBase With Data That Has Been Provided in the "
       "Main Form.  Do you Want to Continue?",
       kMessageTitle, Buttons::YesNo, Icon::Critical, Answer::No, Answer::No});
  if (answer != Answer::Yes || record.ActiveDatabaseList != kSites) return false;
  const std::string& folder = Application_Folder();
  const std::string wanted = Trimmed(name);
  const std::optional<std::vector<std::string>> names = Site_Names(folder);
  const auto is_wanted = [&](const std::string& taken) {
    return Equal_Ignoring_Case(Trimmed(taken), wanted);
  };
  if (wanted.empty()) {
    Show_Warning("Please type the name of the new site into \"Site Data\" first.");
    return false;
  }
  if (const std::string foreign = Letters_That_Files_Lose(wanted); !foreign.empty()) {
    Show_Warning("The name has letters that the files can't keep: " + foreign +
                 ". Please type another one.");
    return false;
  }
  // Without the list's names the new one would take the code of a site that has one.
  if (!names) {
    Show_Critical(
        "The site was not added: the list dspsites.dat can't be read, so the site's code "
        "is not known.");
    return false;
  }
  if (std::ranges::any_of(*names, is_wanted)) {
    Show_Warning("There is a site of this name in the database already. Please type another one.");
    return false;
  }
  if (names->size() >= kMostEntries) {
    Show_Warning("The database holds 99 sites, and there is no code for another one.");
    return false;
  }
  const int place = static_cast<int>(names->size());
  if (const std::string holder = Holds_Site_Already(folder, place); !holder.empty()) {
    const std::string code = Plain_Number(Code_Of_Place(place)) + ".";
    Show_Critical(
        holder == kSiteFile
            ? "The site was not added: dispdb.dat holds a site without a name already, of code " +
                  code
            : "The site was not added: veldb.dat holds currents of a site without a name, of "
              "code " +
                  code);
    return false;
  }
  const Site_Saved saved = Save_Site(folder, place, wanted, record);
  if (saved.out_of_step) {
    Show_Critical("The site was not added: the list dspsites.dat does not end with a whole entry.");
    return false;
  }
  if (saved.error != 0) {
    Show_Critical(
        "The site was not added: can't write the file " + saved.file + ". " +
        std::strerror(saved.error) +
        (saved.named ? std::string(". ") + "Its name could not be taken out of dspsites.dat again."
                     : ""));
    return false;
  }
  Port().board.set_database_line(kSites, kLists[kSites].prefix + wanted);
  Port().board.show_note(
      {"The site was added in a free layout, in which it is not found again.",
       "\"Check Database Files...\" under Tools puts it into the columns; then it is found."});
  return true;
}

bool Mend_Database_Files(const Database_Report& report) {
  if (Show_Message({"Put these files into the columns of the walk? Copies of them are kept beside "
                    "them, with .bak behind their names, or .bak2 and so on where there is one.",
                    kMessageTitle, Buttons::YesNo, Icon::Question, Answer::No, Answer::No}) !=
      Answer::Yes) {
    return false;
  }
  // What is written must be what was shown, and must not undo what was typed into a file since.
  if (Check_Database(Application_Folder()).mends != report.mends) {
    Show_Warning("The files have changed since they were checked. Please look at the list again.");
    return true;
  }
  const Database_Mended mended = Mend_Database(Application_Folder(), report);
  if (mended.error != 0) {
    Show_Critical("Can't mend the file " + mended.failed + ". " + std::strerror(mended.error));
  }
  if (mended.files.empty()) return false;
  Port().board.show_note({"Mended: " + Listed(mended.files) + ". " +
                              (mended.files.size() == 1 ? "The file as it was is kept as "
                                                        : "The files as they were are kept as ") +
                              Listed(mended.copies) + ".",
                          {}});
  return true;
}

}  // namespace barvon
