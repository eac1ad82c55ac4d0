#pragma once

namespace barvon::testing {

/// What becomes of a file call that is due.
enum class Fault {
  Error,  // fails with the plan's errno value, nothing is done; a close is done all the same
  Short,  // a write takes a half of its bytes, any other call is done
  Fill,   // the first write takes a half of its bytes, every later one fails with the errno value
  Kill,   // SIGKILL, before the call; of a write a half is done
  Kill_After
};

/// Which calls are due, from the first on that is.
enum class Span { Once, From_Then_On, Writes_Only };

struct Call_Plan {
  const char* folder = "";  // calls about files in or under it count; a path without links
  int first = 0;            // the first call that is due, from 1; 0: none
  Fault fault = Fault::Error;
  int error = 0;
  Span span = Span::Once;
};

inline constexpr int kMostCalls = 4096;  // whose names are kept

}  // namespace barvon::testing

// The shared library that is loaded before all others has these.
extern "C" {

/// From here on calls are counted and come to what the plan says.
void Begin_File_Calls(const barvon::testing::Call_Plan* plan);
/// Ends that. How many calls there were.
int End_File_Calls();
/// The name of a call that was counted, from 1.
const char* File_Call_Name(int number);
/// How many calls were due and met their fault.
int File_Calls_Failed();
/// Whether a fault may cost the bytes of the file or folder that has this path: it did not get to
/// the disk and never did later, or the first close after its last write failed.
bool Is_Unsynced(const char* path);
}
