#pragma once

#include <QMessageBox>

#include "platform/ask/message_box.h"

namespace barvon {

/// Shows the message in a QMessageBox: plain text, the first button is the default, closing the
/// box or Escape is Answer_On_Close.
Answer Show_Qt_Message(const Message& message);

/// Gives the picture beside the words a name for those who do not see it.
void Name_Picture(const QMessageBox& box);

}  // namespace barvon
