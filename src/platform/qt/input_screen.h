#pragma once

#include <QDialog>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace barvon {

/// Base of the input screens. A screen builds its controls in its constructor, fills them in
/// Opening, copies what Cancel restores in Activated, and answers its buttons in Command1_Click;
/// there Unload closes it.
class Input_Screen : public QDialog {
 public:
  enum Command { kOk = 0, kCancel = 1, kHelp = 2 };
  /// Where it opens: at 3 % of the display's width and height from its left and top, or in the
  /// display's middle.
  enum class Placement { Corner, Centre };

  /// `name` is the screen's name and reference, "frmOperation"; it opens over `workspace`.
  Input_Screen(const char* name, QWidget* workspace, Placement placement = Placement::Corner);

  /// Opens at its place and, when blocking, comes back when the screen is closed. The focus goes to
  /// the control of that name, in whichever tab it is, else to the first control. A screen that is
  /// open already comes to the front as it stands.
  void Open(bool blocking, const std::string& control = {});

  /// Escape and the close box are Cancel.
  void reject() override;

  /// What a screen that is opened now belongs to. One that blocks stays over the screen it is
  /// opened from, which can't go before it; any other stands over the workspace.
  static QWidget* Window_Below(bool blocking, QWidget* workspace);

  /// Closes the screen without asking anyone.
  void Unload();
  /// Called while the close box is at work it would do nothing.
  bool close() = delete;

 protected:
  /// Before the screen is shown. FillingForm is set meanwhile.
  virtual void Opening() {}
  /// After Opening, and whenever the user comes back to the screen from another of the program's
  /// screens; not when a message box, a file dialog or the help is closed.
  virtual void Activated() {}
  virtual void Command1_Click(int index) = 0;
  void showEvent(QShowEvent* event) override;

  /// The button row, Command1(0) and on. The first is what Return presses; F1 presses "&Help".
  QHBoxLayout* Make_Command1(const std::vector<QString>& captions = {QStringLiteral("OK"),
                                                                     QStringLiteral("C&ancel"),
                                                                     QStringLiteral("&Help")});
  QPushButton* Command1(int index) const { return Command1_.at(static_cast<std::size_t>(index)); }

  /// Gives the window the size that its contents ask for, as far as the display has room. Runs
  /// when the screen opens; one whose contents change runs it again.
  void Fit_To_Contents();

  /// Whether the screen fills itself: handlers that must rest meanwhile ask it.
  bool FillingForm = false;

 private:
  void Place();
  void Focus(const std::string& control);
  void Window_In_Focus(QWindow* window);
  void Run_Command(int index);

  Placement placement_;
  std::vector<QPushButton*> Command1_;
  bool running_command_ = false;
  bool was_elsewhere_ = false;  // the user is at another screen of the program
};

/// Opens a screen made anew at each use; one that is open already comes to the front. Fits the
/// register of screens: `Register_Screen("frmOperation", Fresh_Screens<frmOperation>(&main))`.
/// `Screen` is constructed from its workspace, which must outlive the opener's last use.
template <class Screen>
std::function<void(bool, const std::string&)> Fresh_Screens(QWidget* workspace) {
  // Shared: whoever calls an opener may call a copy of it.
  const auto open = std::make_shared<QPointer<Screen>>();
  return [workspace, open](bool blocking, const std::string& control) {
    if (open->isNull() || !(*open)->isVisible()) {
      *open = new Screen(Input_Screen::Window_Below(blocking, workspace));
      QObject::connect(open->data(), &QDialog::finished, open->data(), &QObject::deleteLater);
    }
    (*open)->Open(blocking, control);
  };
}

}  // namespace barvon
