#pragma once

#include <QCheckBox>
#include <array>

#include "platform/qt/fields/control_array.h"
#include "platform/qt/fields/table_fields.h"
#include "site/velocity_panel.h"

namespace barvon {

/// One velocity for the whole depth, or one that a logarithmic profile is drawn through.
class Average_Panel : public Velocity_Panel {
 public:
  explicit Average_Panel(ProjectRecord& record);

  void Left() override;
  void Read(Velocity_Entry& entry) const override;
  std::vector<QWidget*> Order() const override;

 protected:
  void Fill(const Velocity_Entry& entry) override;

 private:
  ControlArray<QLineEdit> Text1{this, "Text1", 3};
  QCheckBox* Check3D1;
  std::array<Filled_Field, 3> filled_;
  Table_Fields fields_;
};

}  // namespace barvon
