#include "platform/qt/printed_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "platform/files/safe_file.h"

namespace barvon {
namespace {

constexpr char kEndOfPdf[] = "%%EOF\n";

std::string Path_Of(int descriptor) { return "/proc/self/fd/" + std::to_string(descriptor); }

}  // namespace

Printed_File::Printed_File(QPrinter& printer)
    : printer_(printer), target_(printer.outputFileName()) {
  if (target_.isEmpty()) return;
  memory_ = ::memfd_create("print", MFD_CLOEXEC);
  // Without memory the painting does not even begin: this path can't be opened then.
  printer_.setOutputFileName(QString::fromStdString(Path_Of(memory_)));
}

Printed_File::~Printed_File() {
  if (target_.isEmpty()) return;
  printer_.setOutputFileName(target_);
  if (memory_ >= 0) ::close(memory_);
}

int Printed_File::Keep() {
  if (target_.isEmpty()) return 0;
  std::string bytes;
  if (const int error = Read_Whole_File(Path_Of(memory_), bytes); error != 0) return error;
  if (!bytes.ends_with(kEndOfPdf)) return ENOMEM;
  return Write_Whole_File(target_.toStdString(), bytes);
}

}  // namespace barvon
