#pragma once

#include <QMainWindow>
#include <functional>
#include <string>

#include "core/desk/workspace_port.h"
#include "workspace/main_controls.h"

namespace barvon {

/// The main window: a frame of fixed size around the two boards. Constructing it is the program's
/// start-up; closing it ends the process.
class Main : public QMainWindow {
 public:
  /// `application_folder` is where the settings are and solvers run. `end_process` ends the
  /// process at once, however deep the calls are nested.
  explicit Main(const std::string& application_folder,
                std::function<void()> end_process = End_Process_Now);
  ~Main() override;

  Main_Controls& controls() { return controls_; }

  /// Leaves the process without going back through its callers.
  static void End_Process_Now();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fill_Port();
  void Fill_Board_Port(Board_Port& board);
  void Start_Up(const std::string& application_folder);
  void Lock_Size();
  void Set_Caption(const std::string& caption);

  Main_Controls controls_;
  std::function<void()> end_process_;
  std::string caption_;
  bool opening_ = true;
  bool asking_to_close_ = false;
};

}  // namespace barvon
