#pragma once

#include <QLabel>
#include <QListWidget>
#include <QTableWidget>
#include <vector>

#include "platform/qt/input_screen.h"
#include "recovery/recovery_data.h"

namespace barvon {

/// "Restore Unsaved Changes": the copies that ended windows left, with what differs from the file
/// of the one that is chosen.
class frmRecovery : public Input_Screen {
 public:
  /// There is at least one row.
  frmRecovery(QWidget* workspace, std::vector<Recovery_Row> rows, Recovery_Keeper& keeper,
              ProjectRecord& record);

  bool Has_Restored() const { return restored_; }
  bool Holds_Unsaved_Input() override { return false; }

 protected:
  void Opening() override;
  void Command1_Click(int index) override;

 private:
  enum Command { kRestore, kLater, kThrowAway };

  void Build();
  void Show_Rows();
  void Show_Chosen();
  int Chosen() const;

  std::vector<Recovery_Row> rows_;
  Recovery_Keeper& keeper_;
  ProjectRecord& record_;
  bool restored_ = false;
  QLabel* Label1;
  QListWidget* List1;
  QLabel* Label2;
  QTableWidget* Table1;
};

/// Offers what ended windows left, when there is something. True when a project was restored: it is
/// the one that is open.
bool Offer_Recovery(QWidget* workspace, Recovery_Keeper& keeper);

}  // namespace barvon
