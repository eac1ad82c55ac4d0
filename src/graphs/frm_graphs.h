#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <array>
#include <optional>
#include <string>

#include "graphs/graph_pages.h"
#include "graphs/notice_page.h"
#include "graphs/watched_outputs.h"
#include "platform/qt/elided_label.h"

namespace barvon {

/// The window of the graphics program: four views of what a run has left, alone or beside that of
/// another project. Outputs that are written anew meanwhile are shown once they are whole. Menus
/// are given to it by Build_Graph_Menus.
class frmGraphs : public QMainWindow {
  Q_OBJECT

 public:
  explicit frmGraphs(QWidget* parent = nullptr);
  ~frmGraphs() override;

  /// Shows the results of a project or output, or says why there are none. A comparison ends.
  void Show_Results_Of(const std::string& path, int view);
  /// Asks for it. Nothing changes when that is called off.
  void Open();
  void Compare();
  /// Tells in a box when these can't be compared with.
  void Compare_With(const std::string& path);
  void End_Comparison();
  /// Looks whether outputs have been written since. A timer calls it.
  void Look_Again();

  /// The view in front; null while there are no pictures.
  Graph_Page* Page_In_Front() const;
  void Show_View(int view);
  /// Texts of the whole program become larger or smaller by so many steps; 0: as at first.
  void Change_Text_Size(int steps);

  /// A line of the window's own for the status bar.
  void Say(const std::string& state);

  const Shown_Results& shown() const { return shown_; }
  QTabWidget& tabs() { return *tabs_; }
  Notice_Page& notice() { return *notice_; }

 signals:
  /// Whether there are pictures, which of them is in front, or whether two are compared.
  void Things_Changed();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Build_Body();
  void Build_Status();
  std::optional<std::string> Ask_Results(const std::string& title) const;
  void Take(Results_Or_Problem read);
  void Show_Pages();
  void Fill_Page_In_Front();
  void Show_Notice(const Graph_Notice& notice);
  void Show_Titles();
  void Show_State(const std::string& state);
  void Fit_State();
  void Fit_Tab_Names();
  void Look_At_Own();
  void Look_At_Other();
  /// What is to be told of the two outputs; empty: nothing.
  void Say_Of_Outputs(const std::string& own, const std::string& other);

  std::optional<Watched_Outputs> own_, other_;
  Shown_Results shown_;
  QStackedWidget* body_;
  QLabel* whole_state_;  // what the status bar would have to cut
  Notice_Page* notice_;
  QWidget* pictures_;  // titles and tabs
  Elided_Label *own_title_, *other_title_;
  QLabel* common_times_;
  QPushButton* end_comparison_;
  QTabWidget* tabs_;
  std::array<Graph_Page*, kGraphViews> pages_{};
  std::array<bool, kGraphViews> behind_{};  // has not got shown_ yet
  Elided_Label *told_ = nullptr, *state_ = nullptr;
  std::string own_word_, other_word_;  // of the outputs, as the status bar tells them
  QTimer look_;
  int text_steps_ = 0;
  double usual_text_ = 0;  // points
};

}  // namespace barvon
