#include "platform/process/aside_work.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <system_error>

namespace barvon {

Aside_Work::Aside_Work(const std::function<void()>& work)
    : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  try {
    thread_ = std::thread([this, work] { Do(work); });
  } catch (const std::system_error&) {
    Do(work);
  }
}

Aside_Work::~Aside_Work() {
  Wait();
  if (descriptor_ >= 0) ::close(descriptor_);
}

void Aside_Work::Wait() {
  if (thread_.joinable()) thread_.join();
}

void Aside_Work::Do(const std::function<void()>& work) {
  work();
  done_ = true;
  if (descriptor_ >= 0) ::eventfd_write(descriptor_, 1);
}

}  // namespace barvon
