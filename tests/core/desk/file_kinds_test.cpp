#include "core/desk/file_kinds.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

TEST(FileKinds, Nobody_Reads_An_Extension_That_Nobody_Registered) {
  EXPECT_EQ(Find_File_Kind("XYZ"), nullptr);
}

TEST(FileKinds, A_Registered_Kind_Is_Found_By_Its_Extension) {
  Register_File_Kind("ZZ1", {{}, [](const ProjectRecord&) { return std::string("bytes"); }});
  const File_Kind* kind = Find_File_Kind("ZZ1");
  ASSERT_NE(kind, nullptr);
  EXPECT_EQ(kind->write(ProjectRecord()), "bytes");
}

TEST(FileKinds, A_File_Is_Told_By_Its_Last_Three_Characters_In_Any_Case) {
  EXPECT_EQ(Last_Three_Letters("/data/site.dui"), "DUI");
  EXPECT_EQ(Last_Three_Letters("/data/site.Dui"), "DUI");
  EXPECT_EQ(Last_Three_Letters("xdud"), "DUD");
  EXPECT_EQ(Last_Three_Letters("a"), "A");
  EXPECT_EQ(Last_Three_Letters(""), "");
}

}  // namespace
}  // namespace barvon
