#include "workspace/note_pads.h"

#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <algorithm>

#include "core/desk/file_dialogs.h"
#include "core/desk/open_file.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/project_file/project_guard.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/qt/qt_document_opener.h"
#include "platform/qt/session_printer.h"
#include "workspace/frm_note_pad.h"
#include "workspace/text_documents.h"

namespace barvon {
namespace {

constexpr int kStep = 28;  // from window to window
constexpr int kFrame = 8;  // both sides of a window's, about
constexpr int kSteps = 8;  // then the next one is at the first one's place again

Window_Place Place_Of(const QRect& rect) {
  return {rect.left(), rect.top(), rect.width(), rect.height()};
}

frmNotePad* Window_Of(int index) { return dynamic_cast<frmNotePad*>(Documents().Document(index)); }

void Place_Beside(frmNotePad& text, const QWidget& main) {
  const Window_Place room = Room_For_Texts(main);
  const int step = kStep * ((text.index() - 1) % kSteps);
  text.resize(text.size().boundedTo({room.width - kStep, room.height - kStep}));
  text.move(room.left + std::min(step, room.width - text.width() - kFrame),
            room.top + std::min(step, room.height - text.height() - kStep));
}

frmNotePad* New_Text(const QWidget& main) {
  auto* text = new frmNotePad(Project());
  const auto* font = main.findChild<QMenu*>(QLatin1String(kFontMenu));
  const auto* window = main.findChild<QMenu*>(QStringLiteral("mnuWindow"));
  if (font != nullptr && window != nullptr) text->Share_Menus(*font, *window);
  Place_Beside(*text, main);
  return text;
}

/// Print, of the text that a person looks at. False when there is none.
bool Print_Text_In_Front() {
  const frmNotePad* text = Window_Of(Documents().Active());
  if (text == nullptr) return false;
  QPrinter& printer = Session_Printer();
  printer.setDocName(QString::fromStdString(Name_Of(text->Caption())));
  Offer_Print_File(With_Extension(text->Caption(), "pdf"));
  if (!Ask_Printer("Print Text", 0)) return true;
  const std::string target = printer.outputFileName().toStdString();
  if (!target.empty() && Leads_To_A_Project(target, {Project().ProjectFileName})) {
    Show_Critical("The Text Could Not Be Printed.");
    return true;
  }
  if (!Print_Active_Text(printer)) Show_Critical("The Text Could Not Be Printed.");
  return true;
}

/// The output of the project when there is one, otherwise its folder.
std::string Offered() {
  const std::string& project = Project().ProjectFileName;
  if (project.empty()) return "";
  return Find_Path(Base_Name(project) + ".duo").value_or(Folder_Of(project));
}

}  // namespace

void Register_frmNotePad(QWidget* main) {
  Register_Screen(Row_Of_Screen("frmNotePad"),
                  [main](bool, const std::string&) { New_Text(*main)->Come_To_Front(); });
  Register_Screen(Row_Of_Screen("Open_Text_File"), [main](bool, const std::string&) {
    const std::optional<std::string> path = Ask_Text_To_Open(Offered());
    if (path && !Open_Text(*path, *main)) Tell_Not_Opened(*path);
  });
  Port().text.print = Print_Text_In_Front;
  Set_Own_Text_Window([alive = QPointer<QWidget>(main)](const std::string& path) {
    return alive && Open_Text(path, *alive);
  });
}

bool Open_Text(const std::string& path, const QWidget& main) {
  const std::string file = Absolute_Path(path);
  if (frmNotePad* open = Window_Of(Documents().Find(file))) {
    open->Come_To_Front();
    open->Read_Again();
    return true;
  }
  frmNotePad* text = New_Text(main);
  if (!text->Load(file)) {
    delete text;
    return false;
  }
  text->Come_To_Front();
  return true;
}

Window_Place Room_For_Texts(const QWidget& main) {
  return Room_Beside(Place_Of(main.frameGeometry()), Place_Of(main.screen()->availableGeometry()));
}

std::vector<frmNotePad*> Open_Texts() {
  std::vector<frmNotePad*> open;
  for (const int i : Documents().Open_Ones()) {
    if (frmNotePad* text = Window_Of(i)) open.push_back(text);
  }
  return open;
}

void Discard_Texts() {
  for (frmNotePad* text : Open_Texts()) delete text;
}

std::optional<Looked_At_Text> Active_Text() {
  frmNotePad* text = Window_Of(Documents().Active());
  if (text == nullptr) return std::nullopt;
  return Looked_At_Text{text->Caption(), text->Text()};
}

bool Print_Active_Text(QPrinter& printer) {
  frmNotePad* text = Window_Of(Documents().Active());
  return text != nullptr && text->Print(printer);
}

}  // namespace barvon
