#pragma once

#include <QPrinter>
#include <QString>

namespace barvon {

/// A print to a file, which is whole in the end or stays as it was: the toolkit would empty it
/// first and tell of no byte that does not get there. While this lives the printer prints into
/// memory. Printing to a printer is left alone.
class Printed_File {
 public:
  explicit Printed_File(QPrinter& printer);
  /// What was not kept is forgotten. The printer has its file's name back.
  ~Printed_File();
  Printed_File(const Printed_File&) = delete;
  Printed_File& operator=(const Printed_File&) = delete;

  /// Puts what was printed into the file, after the painting has ended. 0 or an errno value.
  int Keep();

 private:
  QPrinter& printer_;
  QString target_;
  int memory_ = -1;
};

}  // namespace barvon
