#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "core/project_record.h"
#include "database/database_data.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/input_screen.h"

namespace barvon {

/// "BARVON - DataBase": fills the project from the stored sites, velocities, materials and vessels,
/// and adds its site to them.
class DataBase : public Input_Screen {
 public:
  explicit DataBase(QWidget* workspace);

 protected:
  void Opening() override;
  void Command1_Click(int index) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum Panel { kAccept, kClose, kHelpPanel, kUpdate, kPanels };

  void Fill(int list, const List_Contents& contents);
  void Combo1_Click(int index);
  void Combo1_Change(int index);
  void Blacken_Labels();
  List_Choice Choice_Of(int list) const;
  void Update();

  ProjectRecord& record_;
  ControlArray<QLabel> Label1{this, "Label1", kDatabaseLists};
  ControlArray<QComboBox> Combo1{this, "Combo1", kDatabaseLists};
  ControlArray<QPushButton> SSPanel1{this, "SSPanel1", kPanels};
};

/// Registers the screen. Before it opens, the screens of the project close as their Cancel does: it
/// changes what they show.
void Register_DataBase(QWidget* workspace);

}  // namespace barvon
