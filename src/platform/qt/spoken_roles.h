#pragma once

#include <QAccessible>
#include <QWidget>

namespace barvon {

/// What the control is to assistive tools, where the toolkit takes it for something else: a widget
/// of our own for a part without a meaning, a button that pops out again for a check box. A
/// control that is told to be a button is pressed by them.
void Speak_As(QWidget* control, QAccessible::Role role);

/// Whether a window that is to be answered first keeps the control from being worked. What comes
/// from the accessibility bus would pass that window by.
bool Waits_For_A_Box(const QWidget* control);

/// From now on, for every control: a frame is told by its own caption, where the toolkit gives one
/// that stands in another frame the caption of that one; a button, an option or a box that
/// assistive tools work is clicked, where the toolkit turns the choice over and the screen hears
/// nothing, and not while another window is to be answered first; pages with tabs are no stop of
/// the keyboard beside their tabs. Once a process is enough.
void Mend_Spoken_Controls();

}  // namespace barvon
