#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "material/density_data.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/input_screen.h"

namespace barvon {

/// The density of the water at the dredging site, typed or computed from salinity and temperature.
class frmDensity : public Input_Screen {
 public:
  explicit frmDensity(QWidget* workspace);

 protected:
  void Opening() override;
  void Activated() override;
  void Command1_Click(int index) override;

 private:
  void Check3D3_Click();
  void Command2_Click();
  Density_Entry Entry() const;
  void Show_Density(const Density_Entry& entry);

  ProjectRecord& record_;
  QCheckBox* Check3D3;
  ControlArray<QLineEdit> Text3;  // salinity, temperature, density
  std::array<QLabel*, 3> Label4;
  QPushButton* Command2;
  Density_Copy copy_;  // for Cancel
};

}  // namespace barvon
