#pragma once

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <optional>

#include "graphs/graph_page.h"
#include "graphs/maxima_plot.h"

namespace barvon {

/// The largest concentrations against time: of a species at a depth or over all of them, inside
/// and outside the site and outside the ZID, held against the limits and a typed value.
class Maxima_Page : public Graph_Page {
  Q_OBJECT

 public:
  explicit Maxima_Page(QWidget* parent = nullptr);

  void Show(const Shown_Results& shown) override;
  void Show_Telling() override;
  Picture* Shown_Picture() override;
  bool Has_Content() const override;
  std::string Numbers() const override;
  QString Picture_Name() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* Choices();
  QCheckBox* Add_Check(const char* caption, const char* name);
  void Place_Choices();
  void Fit_Reading();
  void Fill_Species();
  void Fill_Depths();
  void Choose_Telling();
  void Draw();
  Maxima_Choice Chosen() const;

  Shown_Results shown_;
  QBoxLayout *what_, *curves_;  // rows of two parts each
  QComboBox *species_, *depth_;
  QCheckBox *logarithmic_, *inside_, *outside_, *outside_zid_, *limits_;
  QLabel* held_label_;
  QLineEdit* held_;
  Maxima_Plot* plot_;
  QLabel* reading_;
};

}  // namespace barvon
