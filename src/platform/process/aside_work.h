#pragma once

#include <atomic>
#include <functional>
#include <thread>

namespace barvon {

/// Work that waits for the disk, in a thread of its own beside the interface. It may use nothing
/// that the interface uses meanwhile, and starts no programs.
class Aside_Work {
 public:
  /// Begins at once. Where the system gives no thread, the work is done when this returns.
  explicit Aside_Work(const std::function<void()>& work);
  /// Waits for the end.
  ~Aside_Work();
  Aside_Work(const Aside_Work&) = delete;
  Aside_Work& operator=(const Aside_Work&) = delete;

  bool Is_Done() const { return done_; }
  void Wait();
  /// A descriptor that can be read as soon as the work is done; -1 when the system has none to
  /// give.
  int End_Descriptor() const { return descriptor_; }

 private:
  void Do(const std::function<void()>& work);

  std::atomic<bool> done_ = false;
  int descriptor_ = -1;
  std::thread thread_;
};

}  // namespace barvon
