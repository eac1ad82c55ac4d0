#include "graphs/deposit_page.h"

#include "results/drawings/deposit_words.h"
#include "results/plain_numbers.h"
#include "results/telling_time.h"

namespace barvon {

Deposit_Page::Deposit_Page(QWidget* parent)
    : Map_Page(Map_Kind::thickness, QStringLiteral("Map of the deposit"), parent),
      totals_(new QLabel(this)),
      limit_label_(new QLabel(this)),
      limit_(new QLineEdit(QString::fromStdString(Shortest_Number(kNotableThickness)), this)),
      area_(new QLabel(this)) {
  totals_->setObjectName(QStringLiteral("Volume"));
  area_->setObjectName(QStringLiteral("Area"));
  limit_->setObjectName(QStringLiteral("txtThickness"));
  limit_->setAccessibleName(QStringLiteral("Thickness, ft"));
  for (QLabel* label : {totals_, area_}) label->setWordWrap(true);
  limit_label_->setBuddy(limit_);
  own_part()->addWidget(new QLabel(QStringLiteral("Volume on the grid:"), this));
  own_part()->addWidget(totals_);
  own_part()->addWidget(limit_label_);
  own_part()->addWidget(limit_);
  own_part()->addWidget(area_);
  Tab_Goes_To(limit_);
  connect(limit_, &QLineEdit::textChanged, this, &Deposit_Page::Picture_Changed);
  Picture_Changed();
}

Map_View Deposit_Page::First_View(const Results& results) const {
  Map_View view = View();
  view.species = 0;
  view.time = Telling_Moment_Of(results).bed_time;
  return view;
}

void Deposit_Page::Picture_Changed() {
  const Map_Content& content = picture().Drawn().content;
  const bool any = content.nothing.empty();
  totals_->setText(
      any ? QString::fromStdString(Volume_Words(content.cells, content.scale.two_sides))
          : QString());
  limit_label_->setText(content.scale.two_sides ? QStringLiteral("Area thic&ker by (ft):")
                                                : QStringLiteral("Area thic&ker than (ft):"));
  limit_->setEnabled(any);
  area_->setText(
      any ? QString::fromStdString(Area_Words(content.cells, limit_->text().toStdString()))
          : QString());
}

}  // namespace barvon
