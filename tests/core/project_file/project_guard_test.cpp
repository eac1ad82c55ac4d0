#include "core/project_file/project_guard.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

TEST(ProjectGuard, A_Project_Is_Known_Behind_Its_Other_Names) {
  Scratch_Folder folder;
  const std::string project = folder / "site.DUI";
  Write_Text(project, "x");
  std::filesystem::create_symlink("site.DUI", folder / "near.pdf");
  std::filesystem::create_symlink(folder / "near.pdf", folder / "far.pdf");
  std::filesystem::create_symlink("new.dui", folder / "new.pdf");
  std::filesystem::create_hard_link(project, folder / "hard.pdf");
  Write_Text(folder / "other.pdf", "x");
  const auto leads = [&](const std::string& name) {
    return Leads_To_A_Project(folder / name, {project});
  };
  EXPECT_TRUE(leads("site.DUI"));
  EXPECT_TRUE(leads("SITE.dui"));
  EXPECT_TRUE(leads("near.pdf"));
  EXPECT_TRUE(leads("far.pdf"));
  EXPECT_TRUE(leads("new.pdf")) << "a link to a project that is not there yet";
  EXPECT_TRUE(leads("hard.pdf"));
  EXPECT_FALSE(leads("other.pdf"));
  EXPECT_FALSE(leads("none.pdf"));
  EXPECT_FALSE(Leads_To_A_Project(folder / "none.pdf", {""}));
}

TEST(ProjectGuard, Links_In_A_Circle_End) {
  Scratch_Folder folder;
  std::filesystem::create_symlink("b.pdf", folder / "a.pdf");
  std::filesystem::create_symlink("a.pdf", folder / "b.pdf");
  EXPECT_FALSE(Leads_To_A_Project(folder / "a.pdf", {}));
}

}  // namespace
}  // namespace barvon::testing
