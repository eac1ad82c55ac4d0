#include "core/failure.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

namespace barvon {
namespace {

TEST(Failure, Of_The_System_Has_The_Number_And_The_Name_That_Messages_Show) {
  struct Told {
    int number;
    const char* name;
    std::vector<int> errors;
  };
  for (const auto& [number, name, errors] :
       std::vector<Told>{{0, "No failure", {0}},
                         {52, "Bad file name", {ENAMETOOLONG, EINVAL}},
                         {53, "File not found", {ENOENT}},
                         {57, "Device fault", {EIO, EMFILE, ENOTSUP}},
                         {61, "Disk full", {ENOSPC, EDQUOT, EFBIG}},
                         {70, "Permission denied", {EACCES, EPERM, EROFS, EBUSY, ETXTBSY}},
                         {75, "Path not usable", {EISDIR, ENOTDIR, ELOOP, EEXIST}}}) {
    for (const int error : errors) {
      EXPECT_EQ(static_cast<int>(Failure_Of_Errno(error)), number) << error;
      EXPECT_STREQ(Failure_Name(Failure_Of_Errno(error)), name) << error;
    }
  }
}

TEST(Failure, Of_A_Calculation_Or_A_File_Has_Its_Number_And_Name) {
  for (const auto& [number, name] :
       std::vector<std::pair<int, std::string>>{{6, "Overflow"},
                                                {9, "Subscript out of range"},
                                                {11, "Division by zero"},
                                                {13, "Not a number"},
                                                {62, "Input past end of file"},
                                                {32755, "Cancelled"}}) {
    EXPECT_EQ(Failure_Name(static_cast<Failure>(number)), name) << number;
  }
}

}  // namespace
}  // namespace barvon
