#pragma once

#include <QPointer>

#include "platform/ask/busy_cursor.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "platform/ask/progress_display.h"
#include "platform/process/document_opener.h"
#include "platform/process/event_pump.h"
#include "platform/process/program_watch.h"
#include "platform/qt/ask/frm_progress_bar.h"

namespace barvon {

/// Binds every face of the platform to the toolkit for as long as it lives, and puts back what
/// was bound before.
class Qt_Services {
 public:
  Qt_Services();
  ~Qt_Services();
  Qt_Services(const Qt_Services&) = delete;
  Qt_Services& operator=(const Qt_Services&) = delete;

 private:
  QPointer<frmProgress_Bar> progress_;  // the window that it is on may go first
  Message_Presenter messages_;
  File_Dialog_Presenter file_dialogs_;
  Progress_Presenter progress_displays_;
  Cursor_Presenter cursor_;
  Event_Pump pump_;
  Program_Watcher watcher_;
  Help_Presenter help_;
  Document_Opener documents_;
};

/// Lets the toolkit process its events, asleep until one comes, the descriptor can be read or the
/// time is up. -1 is no descriptor.
void Pump_Qt_Events(std::chrono::milliseconds longest, int descriptor);

}  // namespace barvon
