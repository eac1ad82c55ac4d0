#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

namespace barvon {

/// Makes a window known as a screen of the program, under its name: coming back to an input screen
/// from it activates that one. Boxes, dialogs and the help are no screens, whatever they are
/// called.
void Name_Screen(QWidget& window, const char* name);

bool Is_Screen(const QWidget& window);

/// Opens a screen that is made at its first opening, and is there from then on for as long as the
/// workspace that it is constructed from. Fits the register of screens.
template <class Screen>
std::function<void(bool, const std::string&)> Lasting_Screen(QWidget* workspace) {
  // Shared: whoever calls an opener may call a copy of it.
  const auto made = std::make_shared<QPointer<Screen>>();
  return [workspace, made](bool blocking, const std::string&) {
    if (made->isNull()) *made = new Screen(workspace);
    (*made)->Open(blocking);
  };
}

}  // namespace barvon
