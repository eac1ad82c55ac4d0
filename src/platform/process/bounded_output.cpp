#include "platform/process/bounded_output.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace barvon {
namespace {

constexpr std::size_t kSmallestLimit = 1024;
constexpr std::size_t kLargestTail = 64 * 1024;
constexpr std::size_t kNoteRoom = 64;  // the line that says how much was left out
constexpr std::size_t kLastLines = 4096;

/// Adds bytes to a text that only keeps its end. Returns how many fell off its front.
std::size_t Add_To_End(std::string& text, std::string_view bytes, std::size_t limit,
                       std::size_t slack) {
  text.append(bytes);
  if (text.size() <= limit + slack) return 0;
  const std::size_t dropped = text.size() - limit;
  text.erase(0, dropped);
  return dropped;
}

}  // namespace

Bounded_Output::~Bounded_Output() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void Bounded_Output::Begin(std::string path, std::size_t limit) {
  path_ = std::move(path);
  ::unlink(path_.c_str());
  limit = std::max(limit, kSmallestLimit);
  tail_limit_ = std::min(kLargestTail, limit / 4);
  head_left_ = limit - tail_limit_ - kNoteRoom;
}

void Bounded_Output::Add(std::string_view bytes) {
  last_is_cut_ |= Add_To_End(last_, bytes, kLastLines, kLastLines) > 0;
  const std::string_view head = bytes.substr(0, head_left_);
  head_left_ -= head.size();
  Write(head);
  left_out_ += Add_To_End(tail_, bytes.substr(head.size()), tail_limit_, tail_limit_);
}

void Bounded_Output::Finish() {
  left_out_ += Add_To_End(tail_, {}, tail_limit_, 0);
  if (left_out_ > 0) {
    Write("\r\n[" + std::to_string(left_out_) + " bytes left out]\r\n");
  }
  Write(tail_);
  tail_.clear();
  if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
}

void Bounded_Output::Write(std::string_view bytes) {
  if (bytes.empty()) return;
  if (!std::exchange(made_, true)) {
    descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
  }
  while (descriptor_ >= 0 && !bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      ::close(std::exchange(descriptor_, -1));
    }
  }
}

std::string Bounded_Output::Last_Lines() const {
  if (last_.size() <= kLastLines && !last_is_cut_) return last_;
  std::string lines = last_.substr(last_.size() - std::min(last_.size(), kLastLines));
  const auto line_end = lines.find('\n');
  if (line_end != std::string::npos && line_end + 1 < lines.size()) lines.erase(0, line_end + 1);
  return lines;
}

}  // namespace barvon
