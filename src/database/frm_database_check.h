#pragma once

#include <QLabel>
#include <QListWidget>

#include "database/database_check.h"
#include "platform/qt/input_screen.h"

namespace barvon {

/// "Database Files": every line of the database in the program's folder that falls out of step,
/// and a button that puts records into the columns of the walk.
class frmDatabaseCheck : public Input_Screen {
 public:
  explicit frmDatabaseCheck(QWidget* workspace);

 protected:
  void Opening() override;
  void Command1_Click(int index) override;

 private:
  enum Command { kMend, kClose };

  Database_Report report_;
  QLabel* Label1;
  QListWidget* List1;
};

}  // namespace barvon
