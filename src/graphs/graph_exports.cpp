#include "graphs/graph_exports.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <memory>

#include "graphs/export_files.h"
#include "graphs/picture_page.h"
#include "pictures/picture.h"
#include "platform/ask/busy_cursor.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/files/paths.h"
#include "platform/qt/printed_file.h"
#include "platform/qt/session_printer.h"
#include "platform/table/delimited_text.h"
#include "platform/table/tab_text.h"

namespace barvon {
namespace {

Picture_Page Shown_On_Paper(Graph_Page& page, const Results& own) {
  const auto map = page.Map_Shown();
  return Page_Of(*page.Shown_Picture(), page.Picture_Name(), map && map->of ? *map->of : own);
}

QByteArray Picture_For(const std::string& path, Graph_Page& page, const Results& results) {
  if (Has_Ending(path, ".svg")) return page.Shown_Picture()->As_Svg();
  if (Has_Ending(path, ".pdf")) return Picture_Pdf(Shown_On_Paper(page, results));
  return page.Shown_Picture()->As_Png();
}

/// The numbers as a spreadsheet takes them from the clipboard.
std::string As_Cells(const std::string& csv) {
  return Write_Tab_Text(Read_Delimited_Text(csv, ',', Quote_Rule::Whole_Cell));
}

}  // namespace

std::string Save_Picture_As(Graph_Page& page, const Results_Held& results) {
  const auto path = Ask_Export_File("Save Picture As",
                                    {{"PNG Pictures (*.png)", "*.png"},
                                     {"SVG Pictures (*.svg)", "*.svg"},
                                     {"PDF Documents (*.pdf)", "*.pdf"}},
                                    page.Picture_Name(), *results);
  if (!path) return {};
  const Busy_Cursor waiting;
  return Write_Export(*path, Picture_For(*path, page, *results).toStdString());
}

std::string Save_Numbers_As(const Graph_Page& page, const Results_Held& results) {
  const auto path =
      Ask_Export_File("Save Numbers As", {{"Comma Separated Values (*.csv)", "*.csv"}},
                      page.Picture_Name(), *results);
  if (!path) return {};
  const Busy_Cursor waiting;
  return Write_Export(*path, page.Numbers());
}

std::string Copy_Picture(Graph_Page& page) {
  const Busy_Cursor waiting;
  auto content = std::make_unique<QMimeData>();
  const QImage image = QImage::fromData(page.Shown_Picture()->As_Png(), "PNG");
  if (image.isNull()) {
    Show_Critical("The picture could not be copied.");
    return {};
  }
  content->setImageData(image);
  content->setData(QStringLiteral("image/svg+xml"), page.Shown_Picture()->As_Svg());
  content->setText(QString::fromStdString(As_Cells(page.Numbers())));
  QGuiApplication::clipboard()->setMimeData(content.release());
  return "Picture and numbers copied";
}

std::string Copy_Numbers(const Graph_Page& page) {
  const Busy_Cursor waiting;
  QGuiApplication::clipboard()->setText(QString::fromStdString(As_Cells(page.Numbers())));
  return "Numbers copied";
}

std::string Print_Picture(Graph_Page& page, const Results_Held& results) {
  const std::string name =
      Name_Of(Base_Name(results->path)) + ", " + page.Picture_Name().toStdString();
  QPrinter& printer = Session_Printer();
  printer.setPageOrientation(QPageLayout::Landscape);
  printer.setDocName(QString::fromStdString(name));
  Offer_Print_File(Join_Path(Folder_Of(Absolute_Path(results->path)),
                             As_File_Name(QString::fromStdString(name)) + ".pdf"));
  if (!Ask_Printer("Print Picture", 1)) return {};
  const Busy_Cursor waiting;
  Printed_File file(printer);
  if (!Paint_Picture_Page(Shown_On_Paper(page, *results), printer) || file.Keep() != 0) {
    Show_Critical("The picture could not be printed.");
    return {};
  }
  return "Picture printed";
}

}  // namespace barvon
