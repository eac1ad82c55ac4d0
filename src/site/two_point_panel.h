#pragma once

#include "pictures/two_point_profile.h"
#include "site/velocity_panel.h"

namespace barvon {

/// X and Z velocity at two depths.
class Two_Point_Panel : public Velocity_Panel {
 public:
  explicit Two_Point_Panel(ProjectRecord& record);

  void Read(Velocity_Entry& entry) const override;
  std::vector<QWidget*> Order() const override;

 protected:
  void Fill(const Velocity_Entry& entry) override;

 private:
  void Draw();

  F1Book* F1Book1;
  Two_Point_Profile* profile_;
};

}  // namespace barvon
