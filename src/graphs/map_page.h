#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <vector>

#include "graphs/graph_page.h"
#include "graphs/map_picture.h"
#include "platform/qt/tab_order.h"
#include "results/drawings/map_view.h"

namespace barvon {

/// A view of maps over time: choices beside the map, the time below it. Space plays wherever no
/// control takes it, Home, End, Page Up and Page Down go through the times.
class Map_Page : public Graph_Page {
  Q_OBJECT

 public:
  void Show(const Shown_Results& shown) override;
  void Show_Telling() override;
  Picture* Shown_Picture() override { return picture_; }
  bool Has_Content() const override { return picture_->Drawn().content.nothing.empty(); }
  std::string Numbers() const override;
  QString Picture_Name() const override;
  std::optional<Shown_Map> Map_Shown() const override;
  int Sequence_Length() const override;
  int Sequence_Place() const override { return time_->value(); }
  void Show_In_Sequence(int place) override;

  /// What is shown now.
  const Map_View& View() const { return view_; }

 protected:
  Map_Page(Map_Kind kind, const QString& name, QWidget* parent);
  ~Map_Page() override;

  /// The species, depth and time of a result that tell most, with the looks of now.
  virtual Map_View First_View(const Results& results) const = 0;
  /// The picture shows something else.
  virtual void Picture_Changed() {}

  const Shown_Results& shown() const { return shown_; }
  const Map_Picture& picture() const { return *picture_; }
  /// Puts controls of a page of its own below the choices, above what the line is for.
  QVBoxLayout* own_part() { return own_part_; }
  /// Tab comes to a control of that part between the choices and what the line is for.
  void Tab_Goes_To(QWidget* own) { Set_Tab_Order({grid_, own, remove_}); }

  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* Make_Choices();
  QWidget* Make_Time();
  void Connect_Choices();
  Map_View Telling_View() const;
  void Fill_Choices();
  void Fill_Times();
  void Take_Choices();
  void Refresh();
  void Set_Time(int place);
  void Toggle_Play();
  void Stop();
  void Step();
  std::size_t Time_Count() const { return times_.size(); }

  Map_View view_;
  Shown_Results shown_;
  std::vector<int> species_;
  std::vector<double> depths_, times_;
  bool filling_ = false;

  Map_Picture* picture_;
  QComboBox *side_, *species_box_, *depth_, *colours_, *steps_;
  QLabel *side_label_, *depth_label_, *time_words_;
  QCheckBox *largest_, *lines_, *grid_;
  QPushButton *remove_, *play_;
  QSlider* time_;
  QVBoxLayout* own_part_;
  QTimer playing_;
};

}  // namespace barvon
