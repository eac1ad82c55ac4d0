#pragma once

#include <memory>
#include <string>

#include "core/project_record.h"
#include "platform/ask/message_box.h"

namespace barvon {

/// Takes the place of message boxes for as long as it lives: nobody is asked, and the texts are
/// kept. A question gets the answer of a box that is closed without a choice, unless
/// `answer_questions` says otherwise.
class Box_Collector {
 public:
  Box_Collector();
  ~Box_Collector();
  Box_Collector(const Box_Collector&) = delete;
  Box_Collector& operator=(const Box_Collector&) = delete;

  /// Every question is answered No: a run goes on with what was found.
  void Answer_No() { answer_no_ = true; }
  /// What the boxes said, in one line; questions are not in it.
  const std::string& Texts() const { return texts_; }

 private:
  std::string texts_;
  bool answer_no_ = false;
  Message_Presenter former_;
};

/// The path of a project file on disk: from the root, with the letters' case that it has there.
std::string Project_Path(const std::string& file);

/// Opens a project as the window does, without one. Null when that failed, which standard error
/// has been told under the name `file`; what is odd about a file that loaded is told as a warning.
std::unique_ptr<ProjectRecord> Open_Project(const std::string& file);

/// A new project that has no file yet.
std::unique_ptr<ProjectRecord> Fresh_Project();

/// True when the name's extension is DUI, in any case.
bool Is_Project_Name(const std::string& name);

}  // namespace barvon
