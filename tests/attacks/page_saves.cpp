#include <QWidget>

#include "attacks/attacked_saves.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/file_dialog.h"
#include "platform/qt/save_picture.h"
#include "platform/qt/session_printer.h"
#include "report/report_commands.h"
#include "workspace/note_pads.h"

namespace barvon::testing {

void Choose_In_Dialogs(const std::string& path) {
  File_Dialog_Presenter dialogs;
  dialogs.save = [path](const File_Request&) { return path; };
  dialogs.printer = [path](const std::string&, int) {
    Session_Printer().setOutputFileName(QString::fromStdString(path));
    return true;
  };
  Set_File_Dialog_Presenter(dialogs);
}

namespace {

Attacked_Save Page_Save(const std::string& name, const std::string& file,
                        std::function<void(Attack_Bench&)> save) {
  return {name,
          {file},
          [file](const Attack_Bench& bench) {
            Put_File(bench.In("bay/a.DUI"), Sample_Bytes("Section_404_Zid.DUI"));
            Put_File(bench.In("bay/long.txt"), std::string(6000, 'w') + "\n");
            Put_File(bench.In(file), "an earlier one\r\n");
          },
          [file](Attack_Bench& bench) {
            bench.record = Changed_Sample(bench);
            Choose_In_Dialogs(bench.In(file));
          },
          std::move(save)};
}

void Save_Report(Attack_Bench& bench) { Save_Project_Report(*bench.record); }

Attacked_Save Text_Print() {
  Attacked_Save save =
      Page_Save("printed text", "bay/text.pdf", [](Attack_Bench&) { Port().text.print(); });
  save.prepare = [prepare = save.prepare](Attack_Bench& bench) {
    prepare(bench);
    static QWidget main;
    Register_frmNotePad(&main);
    Open_Text(bench.In("bay/long.txt"), main);
  };
  return save;
}

}  // namespace

std::vector<Attacked_Save> Page_Saves() {
  return {Page_Save("report as a page", "bay/report.html", Save_Report),
          Page_Save("report as PDF", "bay/report.pdf", Save_Report),
          Page_Save("report by barvon-run --pdf", "bay/a.pdf",
                    [](Attack_Bench& bench) {
                      if (Write_Report_Pdf("a.DUI", "a.pdf") != 0) {
                        bench.told.push_back("exit code");
                      }
                    }),
          Page_Save("printed report", "bay/print.pdf",
                    [](Attack_Bench& bench) { Print_Project_Report(*bench.record); }),
          Text_Print(),
          Page_Save("picture", "bay/plan.png", [](Attack_Bench&) {
            Save_Picture("plan", "PNG", [] { return std::string(100000, 'p'); });
          })};
}

}  // namespace barvon::testing
