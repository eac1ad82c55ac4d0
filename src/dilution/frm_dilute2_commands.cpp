#include <algorithm>
#include <string>

#include "core/desk/file_dialogs.h"
#include "core/desk/file_kinds.h"
#include "core/desk/open_file.h"
#include "core/desk/project_hold.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "dilution/dilution_file.h"
#include "dilution/dilution_marks.h"
#include "dilution/dilution_rules.h"
#include "dilution/frm_dilute2.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

enum Button { kCompute = 0, kClose = 1, kRead = 3, kSave, kClear };  // Command1
constexpr char kReadPattern[] = "###.00";
// A name that is a number, such as a registry's, is not one that is counted in.
constexpr Cell_Range kNumberCells{1, kConcentrationColumn, kMaxDilutionRows, kLastColumn};

bool Is_Project_Name(const std::string& path) {
  return Last_Three_Letters(path) == kProjectLetters;
}

/// A save of the project beside the open calculator has taken the name back from the list.
bool Has_Project_Name(const ProjectRecord& record) {
  return !Held_Project().empty() && record.ProjectFileName == Held_Project();
}

}  // namespace

void frmDilute2::Command1_Click(int index) {
  switch (index) {
    case kCompute:
      return Compute();
    case kClose:
      return Close();
    case kRead:
      return Read_File();
    case kSave:
      return Save_File();
    case kClear:
      return Clear_All();
    default:
      return;
  }
}

void frmDilute2::Compute() {
  // Always the first tab: what is typed on the other one is taken when that is left.
  Read_Dilute_Grid(kBulkTab, grids_, record_);
  edited_[kBulkTab] = edited_[kBulkTab] && Holds_Rows_Below_List(grids_(kBulkTab));
  Compute_List();
}

void frmDilute2::Compute_List() {
  const bool computed = Compute_Dilutions(Solids(), record_);
  Solids_Are_Taken();
  if (computed) {
    Keep_Computed(grids_, record_);
    Show_Dilutions(grids_, record_);
  }
  Follow_Rows();
}

void frmDilute2::Clear_All() {
  if (Ask("Clearing All Will Erase ALL Data.  Do You Wish to Continue?", Buttons::YesNo,
          Icon::Warning) != Answer::Yes) {
    return;
  }
  Set_Dilution_Defaults(record_);
  Clear_Screen();
}

void frmDilute2::Clear_Screen() {
  Clear_Dilute_Grids(grids_);
  filled_solids_ = 0;
  shown_solids_.clear();
  Text1->clear();
  grids_.solids = 0;
  edited_ = {};
  Follow_Rows();
}

void frmDilute2::Save_File() {
  if (!Settle_Typed()) return;
  const std::optional<std::string> path = File_SaveAs_Dialog(list_file_, kDilutionKind);
  if (path && Is_Project_Name(*path)) {
    Show_Warning(
        "A Dilution File Can't Have the Extension of a Project, .DUI.  Nothing Was Saved.");
    return;
  }
  project_is_changed_ = true;
  record_.ProjectFileName = path.value_or("");
  if (!path || !barvon::Save_File(*path, kDilutionKind, record_)) return;
  list_file_ = *path;
  setWindowTitle(QString::fromStdString("Dilute - " + *path));
  const std::string note = Lost_Letters_Note(record_);
  if (note.empty()) return;
  Port().board.show_note({note, {}});
  Show_Hint(note);
}

void frmDilute2::Read_File() {
  if (!Settle_Typed()) return;
  const std::optional<std::string> path = Ask_File_To_Open(kDilutionKind, list_file_);
  if (!path) return;
  if (Is_Project_Name(*path)) {
    Show_Warning("That Is a Project, Not a Dilution File.  Nothing Was Read.");
    return;
  }
  if (!Open_File(*path, record_)) return;
  project_is_changed_ = true;
  Show_File(*path);
  Compute_List();
}

void frmDilute2::Show_File(const std::string& path) {
  list_file_ = record_.ProjectFileName = path;
  Port().board.set_caption("BARVON - " + path);
  Show_Solids(record_.DiluteSolidsConc, kReadPattern);
  for (const Dilution_Tab tab : kTabs) {
    const auto numbers = Shared(grids_(tab).SelectedRange(), kNumberCells);
    if (numbers) grids_(tab).NumberFormat(*numbers, kReadPattern);
  }
  Show_Read_List(grids_, record_);
  // A file with an empty list leaves rows that the record's list no longer has.
  edited_.fill(record_.DiluteRowCount == 0);
  setWindowTitle(QString::fromStdString("Dilute - " + path));
  for (const Dilution_Tab tab : kTabs) {
    grids_(tab).Centred(kDiluteCells, true);
    grids_(tab).SetActiveCell(1, 1);
  }
}

// Leaving

void frmDilute2::Close() {
  if (discarding_ || Settle_Typed()) Unload();
}

bool frmDilute2::Leave() {
  for (F1Book* book : F1Book2) book->FinishEdit();
  if (!Settle_Typed()) return false;
  Unload();
  return true;
}

void frmDilute2::Give_Project_Back() {
  if (!project_is_changed_) return;
  const bool is_saved_since = Has_Project_Name(record_);
  Name_Project(record_);
  project_is_changed_ = false;
  if (!is_saved_since) Port().board.set_caption(project_.caption);
}

void frmDilute2::Name_Project(ProjectRecord& record) const {
  if (!project_is_changed_) return;
  if (!Has_Project_Name(record)) record.ProjectFileName = project_.file;
  record.ProjectTitle = project_.title;
}

bool frmDilute2::Holds_Unsaved_Input() {
  for (F1Book* book : F1Book2) book->FinishEdit();
  return Holds_Untaken();
}

bool frmDilute2::Holds_Untaken() const {
  if (Text1->text() != shown_solids_ && Solids() != record_.DiluteSolidsConc) return true;
  return std::ranges::any_of(kTabs, [this](Dilution_Tab tab) { return Is_Untaken(tab); });
}

/// Rows below the end of the list are never taken, whoever has filled them.
bool frmDilute2::Is_Untaken(Dilution_Tab tab) const {
  return Holds_Rows_Below_List(grids_(tab)) ||
         (edited_[tab] && Holds_Untaken_Values(tab, grids_, record_));
}

bool frmDilute2::Settle_Typed() {
  if (!Holds_Untaken()) return true;
  switch (Ask("Values typed since the last Compute are not taken. Take them?", Buttons::YesNoCancel,
              Icon::Question)) {
    case Answer::Yes:
      return Take_Typed();
    case Answer::No:
      return true;
    default:
      return false;
  }
}

/// As a change of tab would. A list that is cut off by an empty name is not taken: the record would
/// lose what is below.
bool frmDilute2::Take_Typed() {
  for (const Dilution_Tab tab : kTabs) {
    if (!Holds_Rows_Below_List(grids_(tab))) continue;
    Show_Warning(kNameMissing);
    return false;
  }
  Read_Both_Grids(Front(), grids_, record_);
  Fill_Dilute_Grids(grids_, record_);
  edited_ = {};
  record_.DiluteSolidsConc = Solids();
  Solids_Are_Taken();
  Follow_Rows();
  return true;
}

}  // namespace barvon
