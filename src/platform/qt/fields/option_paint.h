#pragma once

#include <QColor>
#include <QRadioButton>
#include <QWidget>

#include "platform/qt/fields/control_array.h"

namespace barvon {

/// The two colours of the system's texts.
inline constexpr QColor kBlue{0, 0, 255};
inline constexpr QColor kBlack{0, 0, 0};

/// Writes the control's text in the colour.
void Paint_Text(QWidget* control, const QColor& colour);

/// The option that is set in blue, the others of its group in black.
void Paint_Options(const ControlArray<QRadioButton>& options);

/// Sets the option of that index and clears the others; an index outside the group clears all.
/// No signal leaves the group: who shows a state runs the click action by itself.
void Show_Option(const ControlArray<QRadioButton>& options, int index);

/// The index of the option that is set, or one below the first.
int Chosen_Option(const ControlArray<QRadioButton>& options);

}  // namespace barvon
