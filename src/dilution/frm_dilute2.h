#pragma once

#include <QLabel>
#include <QLineEdit>
#include <optional>
#include <string>

#include "core/project_record.h"
#include "dilution/dilution_grid.h"
#include "pictures/bar_picture.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/tab_pages.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {

/// "Dilute": the calculator of required dilutions. Its list lives in the record beside the project
/// and in a file of its own. While it is open it shares the project's name, title and caption; the
/// project gets them back when it closes.
class frmDilute2 : public Input_Screen {
 public:
  explicit frmDilute2(QWidget* workspace);
  ~frmDilute2() override;

  bool Holds_Unsaved_Input() override;

 protected:
  void Opening() override;
  void Discarding() override { discarding_ = true; }
  void Command1_Click(int index) override;

 private:
  /// What the calculator's files take from the project.
  struct Project_Names {
    std::string file, title, caption;
  };

  QWidget* Page(Dilution_Tab tab);
  void Connect();
  void Connect_Hints();
  void Add_Row_Commands(Dilution_Tab tab);
  void Fill_Port();
  void Leave_Port();

  Dilution_Tab Front() const;
  double Solids() const;
  void Show_Solids(double solids, const char* pattern);
  void Solids_Are_Taken();

  void SSTab1_Click(int left);
  void F1Book2_Edited(Dilution_Tab tab, const Cell_Range& range);
  void Show_Column_Hint(Dilution_Tab tab);
  void Show_Hint(const std::string& text);
  void Follow_Rows();

  void Compute();
  void Compute_List();
  void Clear_All();
  void Clear_Screen();
  void Save_File();
  void Read_File();
  void Show_File(const std::string& path);
  void Close();
  bool Leave();

  bool Holds_Untaken() const;
  bool Is_Untaken(Dilution_Tab tab) const;
  /// Asks about what was typed and not taken. False: the person wants to stay with it.
  bool Settle_Typed();
  bool Take_Typed();
  void Give_Project_Back();
  void Name_Project(ProjectRecord& record) const;

  ProjectRecord& record_;
  QLineEdit* Text1;
  ControlArray<F1Book> F1Book2;
  ControlArray<QLabel> Label2{this, "Label2", kDilutionTabs};
  Tab_Pages* SSTab1;
  Bar_Picture* DilutionBars;
  Dilution_Grids grids_;

  QString shown_solids_;      // Text1 as the screen filled it
  double filled_solids_ = 0;  // g/L, the value behind it
  std::array<bool, kDilutionTabs> edited_{};
  std::string list_file_;  // what the dialogs offer
  Project_Names project_;
  bool project_is_changed_ = false;
  bool discarding_ = false;
  bool port_is_filled_ = false;
};

}  // namespace barvon
