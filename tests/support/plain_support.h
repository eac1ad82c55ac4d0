#pragma once

#include <string>
#include <vector>

#include "platform/ask/message_box.h"

namespace barvon::testing {

/// A folder of the test's own, removed with everything in it when the test is over. The current
/// directory is put back as well.
class Scratch_Folder {
 public:
  Scratch_Folder();
  ~Scratch_Folder();
  Scratch_Folder(const Scratch_Folder&) = delete;
  Scratch_Folder& operator=(const Scratch_Folder&) = delete;

  const std::string& path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
  std::string former_current_;
};

/// Answers message boxes from a list and keeps what was asked. A box beyond the list fails the
/// test and is closed without a choice.
class Scripted_Messages {
 public:
  explicit Scripted_Messages(std::vector<Answer> answers = {});
  ~Scripted_Messages();
  Scripted_Messages(const Scripted_Messages&) = delete;
  Scripted_Messages& operator=(const Scripted_Messages&) = delete;

  std::vector<Message> shown;

 private:
  std::vector<Answer> answers_;
  Message_Presenter former_;
};

std::string Read_Text(const std::string& path);
void Write_Text(const std::string& path, const std::string& bytes);
bool Exists(const std::string& path);
/// Names of everything in a folder, sorted.
std::vector<std::string> Names_In(const std::string& folder);

}  // namespace barvon::testing
