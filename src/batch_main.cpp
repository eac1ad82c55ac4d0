// barvon-run: checks, exports and runs projects without a window.

#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>

#include "batch/batch_commands.h"
#include "batch/batch_options.h"
#include "batch/batch_output.h"
#include "batch/interrupts.h"
#include "platform/process/search_path.h"

namespace {

int Do_Command_Line(int argc, char** argv) {
  int code = barvon::kDone;
  try {
    if (const auto options = barvon::Parse_Command_Line(argc, argv, code)) {
      code = barvon::Do_Batch_Command(*options);
    }
  } catch (const std::exception& problem) {
    barvon::Say_Problem("", problem.what());
    code = barvon::kNotDone;
  }
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  barvon::Keep_Lasting_Search_Path();
  barvon::Watch_Interrupts();
  const int code = Do_Command_Line(argc, argv);
  const int error = barvon::Finish_Output();
  if (barvon::Interrupt_Seen() != 0) barvon::End_By_Signal(barvon::Interrupt_Seen());
  // A reader that has seen enough is no failure to talk about.
  if (error == EPIPE) barvon::End_By_Signal(SIGPIPE);
  if (error != 0) {
    barvon::Say_Problem("", std::string("standard output: ") + std::strerror(error));
    return barvon::kNotDone;
  }
  return code;
}
