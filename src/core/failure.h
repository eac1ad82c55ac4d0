#pragma once

namespace barvon {

/// Run-time failures, by the numbers that messages show.
enum class Failure : int {
  None = 0,
  Overflow = 6,
  Subscript = 9,
  Division_By_Zero = 11,
  Type_Mismatch = 13,  // not a number where one must be
  Bad_File_Name = 52,
  File_Not_Found = 53,
  Device_Fault = 57,
  Disk_Full = 61,
  Input_Past_End = 62,
  Permission_Denied = 70,
  Path_Fault = 75,
  Cancel = 32755,
};

/// The failure that an errno value stands for; None for 0.
Failure Failure_Of_Errno(int error);

/// What the failure is called in the status area: "Disk full".
const char* Failure_Name(Failure failure);

/// Carries a failure out of nested steps. It is caught inside the unit that throws it; no public
/// face lets it pass.
struct Run_Time_Failure {
  Failure failure = Failure::None;
};

}  // namespace barvon
