#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "material/density_data.h"
#include "platform/fields/cancel_copy.h"
#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "platform/qt/input_screen.h"

namespace barvon {

/// The density of the water at the dredging site, typed or computed from salinity and temperature.
class frmDensity : public Input_Screen {
 public:
  explicit frmDensity(QWidget* workspace);

 protected:
  void Opening() override;
  void Activated() override;
  void Discarding() override { copy_.Go_Back_To_Opening(); }
  void Command1_Click(int index) override;

 private:
  void Check3D3_Click();
  void Command2_Click();
  Density_Entry Entry() const;

  ProjectRecord& record_;
  QCheckBox* Check3D3;
  ControlArray<QLineEdit> Text3;  // salinity, temperature, density
  Table_Fields fields_;
  QPushButton* Command2;
  Cancel_Copy<Density_Copy> copy_;
};

}  // namespace barvon
