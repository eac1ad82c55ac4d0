#pragma once

#include <QCheckBox>
#include <array>

#include "pictures/velocity_arrows.h"
#include "platform/qt/fields/control_array.h"
#include "site/grid_csv_buttons.h"
#include "site/velocity_panel.h"

namespace barvon {

/// X and Z velocity at every point of the grid.
class Field_Panel : public Velocity_Panel {
 public:
  explicit Field_Panel(ProjectRecord& record);

  void Read(Velocity_Entry& entry) const override;
  std::vector<QWidget*> Order() const override;

 protected:
  void Fill(const Velocity_Entry& entry) override;

 private:
  QLayout* Constant_Rows();
  QWidget* Build_Table(int direction);
  void Enable_Constant(int direction, bool enabled);
  double Constant(int direction) const;
  void Check3D2_Click(int direction);
  void Text2_Change(int direction);
  void Draw();
  void Show_Drawn();

  ControlArray<QCheckBox> Check3D2{this, "Check3D2", kDirections};
  ControlArray<QLineEdit> Text2{this, "Text2", kDirections};
  ControlArray<F1Book> F1Book2;
  std::vector<Grid_Csv_Buttons> csv_;  // one for each direction
  Velocity_Arrows* arrows_;
  Velocity_Grid drawn_;  // what the arrows show of both tables
  std::array<Filled_Field, kDirections> filled_;
};

}  // namespace barvon
