#include "core/project_file/project_guard.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "platform/files/local_files.h"
#include "support/disk_calls.h"
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

/// More projects than are asked one by one, beside the files that are written of them.
struct ManyProjects : ::testing::Test {
  ManyProjects() {
    for (int i = 0; i < 40; ++i) {
      const std::string site = folder / ("site" + std::to_string(i));
      Write_Text(site + ".DUI", "x");
      Write_Text(site + ".DUE", "x");
      projects.push_back(site + ".DUI");
    }
  }
  bool Leads(const std::string& name) const { return guard->Leads_To_A_Project(folder / name); }
  void Make_Guard() { guard.emplace(projects, folders); }

  Scratch_Folder folder;
  std::vector<std::string> projects;
  Known_Folders folders;
  std::optional<Project_Guard> guard;
};

TEST_F(ManyProjects, Each_Is_Known_Behind_Its_Other_Names) {
  std::filesystem::create_symlink("site7.DUI", folder / "near.DUE");
  std::filesystem::create_symlink(folder / "near.DUE", folder / "far.DUE");
  std::filesystem::create_hard_link(folder / "site8.DUI", folder / "hard.DUE");
  std::filesystem::rename(folder / "site9.DUI", folder / "nine.DUE");
  std::filesystem::create_symlink("nine.DUE", folder / "site9.DUI");
  Write_Text(folder / "odd.DUE", "x");
  projects.push_back(folder / "odd.DUE");
  Make_Guard();
  EXPECT_TRUE(Leads("site0.DUI"));
  EXPECT_TRUE(Leads("near.DUE"));
  EXPECT_TRUE(Leads("far.DUE"));
  EXPECT_TRUE(Leads("hard.DUE"));
  EXPECT_TRUE(Leads("nine.DUE")) << "the project is a link to it";
  EXPECT_TRUE(Leads("odd.DUE")) << "no project's name, yet given as one";
  EXPECT_FALSE(Leads("site0.DUE"));
  EXPECT_FALSE(Leads("none.DUE"));
}

TEST_F(ManyProjects, One_That_Becomes_A_Link_Meanwhile_Is_Known) {
  Make_Guard();
  for (int i = 0; i < 2 * Known_Folders::kReadingsBeforeWatch; ++i) {
    ASSERT_FALSE(Leads("site3.DUE"));
  }
  std::filesystem::remove(folder / "site9.DUI");
  EXPECT_FALSE(Leads("site3.DUE"));
  std::filesystem::create_symlink("site3.DUE", folder / "site9.DUI");
  EXPECT_TRUE(Leads("site3.DUE"));
  EXPECT_FALSE(Leads("site4.DUE"));
  std::filesystem::remove(folder / "site9.DUI");
  EXPECT_FALSE(Leads("site3.DUE"));
  std::filesystem::create_hard_link(folder / "site3.DUE", folder / "site9.DUI");
  EXPECT_TRUE(Leads("site3.DUE"));
}

TEST_F(ManyProjects, In_A_Folder_That_Can_Not_Be_Read_Each_Is_Asked) {
  std::filesystem::create_directory(folder / "out");
  std::filesystem::rename(folder / "site9.DUI", folder / "out/nine.DUE");
  std::filesystem::create_symlink("out/nine.DUE", folder / "site9.DUI");
  Write_Text(folder / "out/ten.DUE", "x");
  Make_Guard();
  EXPECT_TRUE(Leads("out/nine.DUE"));
  std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_exec);
  EXPECT_TRUE(Leads("out/nine.DUE"));
  EXPECT_FALSE(Leads("out/ten.DUE"));
  std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
}

TEST_F(ManyProjects, Not_All_Are_Asked_For_Each_File) {
  if (!Is_On_Local_Files(folder.path())) GTEST_SKIP() << "names of a file are not counted here";
  Make_Guard();
  const Disk_Calls calls;
  EXPECT_FALSE(Leads("site3.DUE"));
  EXPECT_EQ(calls.Questions(), 2);  // whether it is a link, and what it is
  EXPECT_EQ(calls.Readings(), 1);
}

}  // namespace
}  // namespace barvon::testing
