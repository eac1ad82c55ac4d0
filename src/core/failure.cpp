#include "core/failure.h"

#include <cerrno>

namespace barvon {

Failure Failure_Of_Errno(int error) {
  switch (error) {
    case 0:
      return Failure::None;
    case ENAMETOOLONG:
    case EINVAL:
      return Failure::Bad_File_Name;
    case ENOENT:
      return Failure::File_Not_Found;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Failure::Disk_Full;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
      return Failure::Permission_Denied;
    case EISDIR:
    case ENOTDIR:
    case ELOOP:
    case EEXIST:
      return Failure::Path_Fault;
    default:
      return Failure::Device_Fault;
  }
}

const char* Failure_Name(Failure failure) {
  switch (failure) {
    case Failure::None:
      return "No failure";
    case Failure::Overflow:
      return "Overflow";
    case Failure::Subscript:
      return "Subscript out of range";
    case Failure::Division_By_Zero:
      return "Division by zero";
    case Failure::Type_Mismatch:
      return "Not a number";
    case Failure::Bad_File_Name:
      return "Bad file name";
    case Failure::File_Not_Found:
      return "File not found";
    case Failure::Device_Fault:
      return "Device fault";
    case Failure::Disk_Full:
      return "Disk full";
    case Failure::Input_Past_End:
      return "Input past end of file";
    case Failure::Permission_Denied:
      return "Permission denied";
    case Failure::Path_Fault:
      return "Path not usable";
    case Failure::Cancel:
      return "Cancelled";
  }
  return "Unknown failure";
}

}  // namespace barvon
