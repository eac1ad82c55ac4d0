#pragma once

#include <QVBoxLayout>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "graphs/graph_page.h"
#include "pictures/bar_picture.h"
#include "platform/ask/file_dialog.h"

namespace barvon::testing {

/// Answers the save dialog with paths in turn, none as Cancel, and keeps what was asked. A print
/// goes on, or is called off.
class Scripted_Files {
 public:
  explicit Scripted_Files(std::vector<std::optional<std::string>> paths, bool prints = false)
      : paths_(std::move(paths)) {
    former_ =
        Set_File_Dialog_Presenter({{},
                                   [this](const File_Request& request) {
                                     asked.push_back(request);
                                     const std::size_t turn = asked.size() - 1;
                                     return turn < paths_.size() ? paths_[turn] : std::nullopt;
                                   },
                                   {},
                                   [prints](const std::string&, int) { return prints; }});
  }
  ~Scripted_Files() { Set_File_Dialog_Presenter(std::move(former_)); }

  std::vector<File_Request> asked;

 private:
  std::vector<std::optional<std::string>> paths_;
  File_Dialog_Presenter former_;
};

/// A page with a bar as long as the time is late.
class Bar_Page : public Graph_Page {
 public:
  Bar_Page() : picture_(new Bar_Picture(QStringLiteral("Bars of a test"), QStringLiteral("bars"))) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(picture_);
    resize(500, 300);
    Show_In_Sequence(0);
  }

  void Show(const Shown_Results&) override {}
  bool Has_Content() const override { return true; }
  Picture* Shown_Picture() override { return picture_; }
  std::string Numbers() const override { return "Time (s),\"Sand, fine (mg/l)\"\r\n600,1.5\r\n"; }
  QString Picture_Name() const override { return QStringLiteral("Sand/silt at 20 ft"); }
  std::optional<Shown_Map> Map_Shown() const override { return map; }
  int Sequence_Length() const override { return length; }
  int Sequence_Place() const override { return place_; }
  void Show_In_Sequence(int place) override {
    place_ = place;
    shown.push_back(place);
    Bar_Chart chart;
    chart.title = "Bars";
    chart.value_label = "Sand (mg/l)";
    chart.bars.push_back(Plain_Bar("Now", place + 1, {200, 30, 30}));
    picture_->Show(chart);
    if (on_show) on_show();
  }

  std::optional<Shown_Map> map;
  int length = 0;
  std::vector<int> shown;
  std::function<void()> on_show;

 private:
  Bar_Picture* picture_;
  int place_ = 0;
};

inline Results_Held Results_At(const std::string& path) {
  auto results = std::make_shared<Results>();
  results->path = path;
  results->title = "Harbour study";
  results->label = "COMPANION SOLVER 1.0 - not a validated code for permits.";
  results->made = 1700000000;
  results->grid = {2, 3, 100, 100};
  return results;
}

}  // namespace barvon::testing
