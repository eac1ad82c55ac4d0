#pragma once

#include <QMessageBox>

#include "platform/ask/message_box.h"

namespace barvon {

/// Shows the message in a QMessageBox: plain text, the first button is the default, closing the
/// box or Escape is Answer_On_Close.
Answer Show_Qt_Message(const Message& message);

}  // namespace barvon
