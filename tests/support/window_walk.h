#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace barvon::testing {

/// What a user would find wrong with a window that is in view, one line each; none when all is
/// well.
using Complaints = std::vector<std::string>;

/// Texts without the room that they ask for, controls that reach out of what they stand in or lie
/// on each other, and commands that a bar hides for want of room.
Complaints Cut_Off_Texts(const QWidget& window);

/// Lines that are shown shortened.
Complaints Shortened_Texts(const QWidget& window);

/// Letters and keys that two commands in view claim. A menu's own items are looked at by
/// themselves.
Complaints Clashing_Keys(const QWidget& window);

/// Controls that Tab does not reach, going round once. Of a group of options one is reached.
Complaints Unreached_Controls(QWidget& window);

/// Controls that take the focus and have no name to be read out.
Complaints Unnamed_Controls(const QWidget& window);

/// Controls that take the focus and are told as a part without a meaning, texts that are told as
/// others than are seen, and fields of one window that are told alike.
Complaints Misread_Controls(const QWidget& window);

/// All of them, one under the other.
std::string Listed(const Complaints& complaints);

}  // namespace barvon::testing
