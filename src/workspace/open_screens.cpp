#include "workspace/open_screens.h"

#include <QApplication>
#include <QPointer>
#include <functional>
#include <string>
#include <vector>

#include "platform/ask/message_box.h"
#include "platform/qt/input_screen.h"

namespace barvon {
namespace {

using Screens = std::vector<QPointer<Input_Screen>>;

Screens Open_Screens(const std::function<bool(const Input_Screen&)>& counts) {
  Screens open;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* screen = dynamic_cast<Input_Screen*>(window);
    if (screen != nullptr && screen->isVisible() && counts(*screen)) open.emplace_back(screen);
  }
  return open;
}

std::string Titles_With_Input(const Screens& screens) {
  std::string titles;
  for (const auto& screen : screens) {
    if (!screen->Holds_Unsaved_Input()) continue;
    titles += (titles.empty() ? "" : " and ") + screen->windowTitle().toStdString();
  }
  return titles;
}

bool Close(const Screens& screens) {
  const std::string titles = Titles_With_Input(screens);
  // Return must not discard anything.
  if (!titles.empty() &&
      Show_Message({"Discard what was typed in " + titles + "?", kMessageTitle, Buttons::YesNo,
                    Icon::Question, Answer::No}) != Answer::Yes) {
    return false;
  }
  for (const auto& screen : screens) {
    if (screen) screen->Call_Off();
  }
  return true;
}

}  // namespace

bool Close_Input_Screens() {
  if (!Close(Open_Screens([](const Input_Screen&) { return true; }))) return false;
  const QLatin1String error_list(Row_Of_Screen("frmErrorList").name);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == error_list) window->close();
  }
  return true;
}

bool Close_Screens_That_Follow(unsigned choices) {
  return Close(Open_Screens([choices](const Input_Screen& screen) {
    const Screen_Row* row = Find_Screen(screen.objectName().toStdString());
    return row != nullptr && (row->follows & choices) != 0;
  }));
}

}  // namespace barvon
