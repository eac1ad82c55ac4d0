#pragma once

#include <QLabel>
#include <QLineEdit>

#include "graphs/map_page.h"

namespace barvon {

/// What lies on the bottom: its thickness as maps, with totals.
class Deposit_Page : public Map_Page {
  Q_OBJECT

 public:
  explicit Deposit_Page(QWidget* parent = nullptr);

 protected:
  Map_View First_View(const Results& results) const override;
  void Picture_Changed() override;

 private:
  QLabel *totals_, *limit_label_;
  QLineEdit* limit_;
  QLabel* area_;
};

}  // namespace barvon
