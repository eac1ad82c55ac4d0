#include "platform/qt/qt_services.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <optional>
#include <utility>

#include "platform/qt/ask/qt_file_dialog.h"
#include "platform/qt/ask/qt_message_box.h"
#include "platform/qt/ask/window_in_front.h"
#include "platform/qt/help/qt_help_viewer.h"
#include "platform/qt/qt_document_opener.h"
#include "platform/qt/spoken_roles.h"

namespace barvon {
namespace {

void Show_Wait_Cursor(bool waiting) {
  if (waiting) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void Watch_By_Timer(std::function<bool()> goes_on) {
  auto* timer = new QTimer(qApp);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, goes_on = std::move(goes_on)] {
    if (goes_on()) {
      timer->start(kWatchEvery);
    } else {
      timer->deleteLater();
    }
  });
  timer->start(kWatchEvery);
}

void Watch_By_Descriptor(int descriptor, std::function<bool()> goes_on) {
  if (descriptor < 0) {
    Watch_By_Timer(std::move(goes_on));
    return;
  }
  auto* readable = new QSocketNotifier(descriptor, QSocketNotifier::Read, qApp);
  QObject::connect(readable, &QSocketNotifier::activated, readable,
                   [readable, goes_on = std::move(goes_on)] {
                     // Off first: a box that opens in here would hear of it without end.
                     readable->setEnabled(false);
                     if (goes_on()) {
                       readable->setEnabled(true);
                     } else {
                       readable->deleteLater();
                     }
                   });
}

}  // namespace

void Pump_Qt_Events(std::chrono::milliseconds longest, int descriptor) {
  if (longest.count() <= 0) {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    return;
  }
  // The timer's event ends the sleep when nothing else does.
  QTimer wake;
  wake.setSingleShot(true);
  wake.start(longest);
  std::optional<QSocketNotifier> readable;
  if (descriptor >= 0) {
    readable.emplace(descriptor, QSocketNotifier::Read);
    // Told once: a box that is open here would hear of it without end.
    QObject::connect(&*readable, &QSocketNotifier::activated, &*readable,
                     [&readable] { readable->setEnabled(false); });
  }
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

Qt_Services::Qt_Services() {
  Follow_Windows_In_Front();
  Mend_Spoken_Controls();
  messages_ = Set_Message_Presenter(Show_Qt_Message);
  file_dialogs_ = Set_File_Dialog_Presenter(
      {Ask_Qt_Open_File, Ask_Qt_Save_File, Show_Qt_Printer_Setup, Ask_Qt_Printer});
  progress_displays_ = Set_Progress_Presenter({
      [this](const std::string& caption) {
        delete progress_;
        progress_ = new frmProgress_Bar(Window_In_Front());
        progress_->Open(caption);
      },
      [this](double share) {
        if (progress_) progress_->Move(share);
      },
      [this] { delete progress_; },
  });
  cursor_ = Set_Cursor_Presenter(Show_Wait_Cursor);
  pump_ = Set_Event_Pump(Pump_Qt_Events);
  watcher_ = Set_Program_Watcher(Watch_By_Descriptor);
  help_ = Set_Help_Presenter(Show_Qt_Help);
  documents_ = Set_Document_Opener(Open_Qt_Document);
}

Qt_Services::~Qt_Services() {
  // The help window must not outlive the application.
  Show_Qt_Help({Help_Command::Quit, 0, {}});
  Set_Message_Presenter(std::move(messages_));
  Set_File_Dialog_Presenter(std::move(file_dialogs_));
  Set_Progress_Presenter(std::move(progress_displays_));
  Set_Cursor_Presenter(std::move(cursor_));
  Set_Event_Pump(std::move(pump_));
  Set_Program_Watcher(std::move(watcher_));
  Set_Help_Presenter(std::move(help_));
  Set_Document_Opener(std::move(documents_));
}

}  // namespace barvon
