#include "platform/qt/session_printer.h"

#include <QCoreApplication>
#include <QMarginsF>
#include <QPageLayout>
#include <memory>

namespace barvon {
namespace {

constexpr double kMargin = 54;  // points

std::unique_ptr<QPrinter>& The_Printer() {
  static std::unique_ptr<QPrinter> printer;
  return printer;
}

}  // namespace

QPrinter& Session_Printer() {
  std::unique_ptr<QPrinter>& printer = The_Printer();
  if (printer == nullptr) {
    printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout({QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                            QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Point});
    // A printer must not outlive the application.
    qAddPostRoutine(Forget_Session_Printer);
  }
  return *printer;
}

void Offer_Print_File(const std::string& path) {
  QPrinter& printer = Session_Printer();
  if (printer.outputFormat() != QPrinter::PdfFormat) return;
  printer.setOutputFileName(QString::fromStdString(path));
}

void Forget_Session_Printer() { The_Printer().reset(); }

}  // namespace barvon
