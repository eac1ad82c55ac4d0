#pragma once

#include <QWidget>

namespace barvon {

/// Remembers from now on in which order windows have had the keyboard. Once is enough.
void Follow_Windows_In_Front();

/// The window that a box or dialog belongs to: the one in front. While none has the keyboard, as
/// just behind a dialog, it is the one that had it last of those that are still to be seen.
QWidget* Window_In_Front();

}  // namespace barvon
