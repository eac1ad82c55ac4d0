#pragma once

#include <string>

#include "platform/ask/message_box.h"

namespace barvon {

/// Takes the place of message boxes for as long as it lives: nobody is asked, and the texts are
/// kept. A question gets the answer of a box that is closed without a choice, unless
/// `Answer_No` was called.
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

}  // namespace barvon
