#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QTableWidget>
#include <array>
#include <vector>

#include "graphs/graph_page.h"
#include "graphs/picture_button.h"
#include "pictures/bar_picture.h"
#include "results/telling_time.h"

namespace barvon {

/// What a run came to, on one page: whose results they are and what they are worth, verdicts, where
/// each species is, its largest values, and the other views in small, each a button that opens it.
class Overview_Page : public Graph_Page {
  Q_OBJECT

 public:
  explicit Overview_Page(QWidget* parent = nullptr);

  void Show(const Shown_Results& shown) override;
  Picture* Shown_Picture() override;
  bool Has_Content() const override;
  std::string Numbers() const override;
  QString Picture_Name() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// What is said of one of the runs, in a column of its own.
  struct Column {
    QWidget* box;
    QLabel *title, *made, *warning, *verdicts, *deposit;
  };

  Column Add_Column(const char* suffix);
  QWidget* Left_Half();
  QWidget* Right_Half();
  void Show_Words();
  void Fill_Times();
  void Show_Balance();
  void Show_Table();
  void Fit_To_Letters();
  void Fit_Table();
  void Place_Halves();
  void Show_Small_Pictures();
  std::optional<double> Balance_Time() const;

  Shown_Results shown_;
  QBoxLayout* halves_;
  QHBoxLayout* columns_;
  Column own_{}, other_{};
  QComboBox* balance_time_;
  Bar_Picture* balance_;
  QTableWidget* table_;
  std::array<Picture_Button*, 3> small_{};  // of the views 1, 2 and 3
};

}  // namespace barvon
