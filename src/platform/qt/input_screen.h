#pragma once

#include <QDialog>
#include <QHBoxLayout>
#include <QPoint>
#include <QPointer>
#include <QPushButton>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace barvon {

/// What a screen has of its own. The usual one has OK, Cancel and Help as its commands 0 to 2.
struct Screen_Setup {
  int topic = 0;                // the help's page that Help opens; 0: the screen answers itself
  int on_return = 0;            // the command that Return gives in a field
  int cancel = 1;               // the command that Escape and the close box give
  std::optional<int> help = 2;  // the command that F1 gives
  /// Where it opens: at 3 % of the display's width and height from its left and top, in the
  /// display's middle, or at that point of the display, in pixels.
  enum class Placement { Corner, Centre } placement = Placement::Corner;
  std::optional<QPoint> place = {};
};

/// Base of the input screens. A screen builds its controls in its constructor, fills them in
/// Opening, copies what Cancel restores in Activated, and answers its buttons in Command1_Click;
/// there Unload closes it.
class Input_Screen : public QDialog {
 public:
  enum Command { kOk = 0, kCancel = 1, kHelp = 2 };  // of the usual screen

  /// `name` is the screen's name and reference, "frmOperation"; it opens over `workspace`.
  Input_Screen(const char* name, QWidget* workspace, const Screen_Setup& setup = {});

  /// Opens at its place and, when blocking, comes back when the screen is closed. The focus goes to
  /// the control of that name, in whichever tab it is, else to the first control. A screen that is
  /// open already comes to the front as it stands.
  void Open(bool blocking, const std::string& control = {});

  /// Escape and the close box give the command that calls off.
  void reject() override;

  /// Whether anything was typed or chosen that no OK has stored. A cell that is being typed in is
  /// finished first. A screen whose tables can hold what no command takes tells it by itself.
  virtual bool Holds_Unsaved_Input();
  /// Gives the command that calls off, for everything since the screen opened.
  void Call_Off();

  /// What a screen that is opened now belongs to. One that blocks stays over the screen it is
  /// opened from, which can't go before it; any other is over the workspace.
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
  /// It was opened while it is open: it comes to the front as it stands.
  virtual void Opened_Again() {}
  /// The command that calls off is to follow, and what it restores is to be as it was when the
  /// screen opened, not when the user last came back to it.
  virtual void Discarding() {}
  /// A command was given, by its button or its key. Help does not come here when it has a page.
  virtual void Command1_Click(int index) = 0;
  void showEvent(QShowEvent* event) override;

  /// A row of buttons, Command1(0) and on, which are the screen's commands.
  QHBoxLayout* Make_Command1(const std::vector<QString>& captions = {QStringLiteral("OK"),
                                                                     QStringLiteral("C&ancel"),
                                                                     QStringLiteral("&Help")});
  /// Buttons that the screen made and named itself become its commands, 0 and on.
  void Take_Commands(const std::vector<QPushButton*>& buttons);
  QPushButton* Command1(int index) const { return commands_.at(static_cast<std::size_t>(index)); }

  /// Tab goes through these controls, then the commands.
  void Tab_Through(std::vector<QWidget*> order);

  /// What the controls show now is the record's. Said when the screen has opened; one that stays
  /// open behind a save says it again.
  void Controls_Are_Stored() { stored_ = Controls_Show(); }

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
  std::vector<QString> Controls_Show() const;

  Screen_Setup setup_;
  std::vector<QPushButton*> commands_;
  std::vector<QString> stored_;  // what the controls showed when it was the record's
  bool running_command_ = false;
  bool was_elsewhere_ = false;  // the user is at another screen of the program
};

/// Opens a screen made anew at each use; one that is open already comes to the front. Fits the
/// register of screens: `Register_Screen(kScreen, Fresh_Screens<frmOperation>(&main))`.
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
