#include "batch/batch_products.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <utility>

#include "platform/files/local_files.h"
#include "platform/files/paths.h"
#include "support/disk_calls.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

/// Many projects in one folder; their product is a text that says whose it is.
struct BatchProducts : ::testing::Test {
  void Put_Projects(int count) {
    for (int i = 0; i < count; ++i) {
      options.files.push_back(folder / (Site(i) + ".DUI"));
      Write_Text(options.files.back(), "project");
    }
  }
  static std::string Site(int i) { return "site" + std::to_string(i); }

  int Write(Known_Folders& folders) {
    product.write = [this](const std::string& file, const std::string& target, Known_Folders&,
                           const May_Write& may_write) {
      targets[Name_Of(Base_Name(file))] = Name_Of(target);
      if (before_a_write) before_a_write(Name_Of(Base_Name(file)));
      if (!may_write(target)) return static_cast<int>(kNotDone);
      Write_Text(target, "product");
      return static_cast<int>(kDone);
    };
    return Write_Products(options, product, folders);
  }
  int Write() {
    Known_Folders folders;
    return Write(folders);
  }

  Scratch_Folder folder;
  Batch_Options options;
  Batch_Product product{"product", "DUE", "no", {}};
  std::function<void(const std::string& site)> before_a_write;
  std::map<std::string, std::string> targets;  // by the project
};

TEST_F(BatchProducts, A_Name_That_Becomes_A_Link_While_A_Project_Is_Read_Is_Not_Written) {
  Put_Projects(100);
  before_a_write = [this](const std::string& site) {
    if (site != Site(40) && site != Site(90)) return;
    std::filesystem::create_symlink(folder / (Site(7) + ".DUI"), folder / (site + ".DUE"));
  };
  EXPECT_EQ(Write(), kNotDone);
  EXPECT_EQ(Read_Text(folder / (Site(7) + ".DUI")), "project");
  EXPECT_EQ(Read_Text(folder / (Site(89) + ".DUE")), "product");
}

TEST_F(BatchProducts, A_Link_That_Is_Made_After_The_Last_Question_Is_Replaced) {
  Put_Projects(2);
  const std::string other = folder / (Site(1) + ".DUI");
  const std::string target = folder / (Site(0) + ".DUE");
  Write_Text(target, "older");
  std::string asked;
  const May_Write and_link = [&](const std::string& path) {
    asked = path;
    std::filesystem::remove(target);
    std::filesystem::create_symlink(other, target);
    return true;
  };
  EXPECT_EQ(Write_Product(options.files[0], target, "product", and_link), kDone);
  EXPECT_EQ(asked, target);
  EXPECT_EQ(Read_Text(other), "project");
  EXPECT_EQ(Read_Text(target), "product");
  EXPECT_FALSE(std::filesystem::is_symlink(target));
}

TEST_F(BatchProducts, The_Question_Is_For_What_A_Link_Leads_To) {
  Put_Projects(2);
  const std::string other = folder / (Site(1) + ".DUI");
  const std::string target = folder / (Site(0) + ".DUE");
  std::filesystem::create_symlink(other, target);
  std::string asked;
  const May_Write no = [&](const std::string& path) {
    asked = path;
    return false;
  };
  EXPECT_EQ(Write_Product(options.files[0], target, "product", no), kNotDone);
  EXPECT_EQ(asked, other);
  EXPECT_EQ(Read_Text(other), "project");
  EXPECT_EQ(Names_In(folder.path()).size(), 3U) << "nothing is left of what was not written";
}

TEST_F(BatchProducts, A_Project_Costs_The_Same_However_Many_There_Are) {
  if (!Is_On_Local_Files(folder.path())) GTEST_SKIP() << "each reads the folder here";
  const auto calls_of = [&](int count) {
    options.files.clear();
    Put_Projects(count);
    const Disk_Calls calls;
    EXPECT_EQ(Write(), kDone);
    return std::pair(calls.Readings(), calls.Questions());
  };
  using Calls = std::pair<int, int>;
  const Calls new_100 = calls_of(100);  // none has its product yet
  const Calls new_200 = calls_of(200);  // half of them have
  const Calls new_300 = calls_of(300);
  const Calls old_100 = calls_of(100);
  const Calls old_200 = calls_of(200);
  const Calls old_300 = calls_of(300);
  for (const Calls& calls : {new_100, new_200, new_300, old_100, old_200, old_300}) {
    EXPECT_LE(calls.first, Known_Folders::kReadingsBeforeWatch + 1);
  }
  EXPECT_EQ(old_300.second - old_200.second, old_200.second - old_100.second);
  EXPECT_EQ(new_300.second - new_200.second, old_200.second - old_100.second);
  EXPECT_LE(new_100.second, 25 * 100);
  EXPECT_LE(old_100.second, 25 * 100);
}

TEST_F(BatchProducts, A_Name_That_Comes_Between_Two_Projects_Is_Written_Over) {
  Put_Projects(120);
  before_a_write = [&](const std::string& site) {
    if (site == Site(100)) Write_Text(folder / "SITE101.due", "older");
    if (site == Site(110)) std::filesystem::remove(folder / "Site111.Due");
  };
  Write_Text(folder / "Site111.Due", "older");
  EXPECT_EQ(Write(), kDone);
  EXPECT_EQ(targets[Site(101)], "SITE101.due");
  EXPECT_EQ(Read_Text(folder / "SITE101.due"), "product");
  EXPECT_FALSE(Exists(folder / "site101.DUE"));
  EXPECT_EQ(targets[Site(111)], "site111.DUE");
}

TEST_F(BatchProducts, A_File_That_A_Project_Comes_To_Lead_To_Meanwhile_Is_Left_Alone) {
  Put_Projects(120);
  Write_Text(folder / "site101.DUE", "a project's");
  before_a_write = [&](const std::string& site) {
    if (site != Site(100)) return;
    std::filesystem::remove(folder / "site110.DUI");
    std::filesystem::create_symlink("site101.DUE", folder / "site110.DUI");
    std::filesystem::create_symlink("site111.DUI", folder / "site102.DUE");
    std::filesystem::create_hard_link(folder / "site112.DUI", folder / "site103.DUE");
  };
  EXPECT_EQ(Write(), kNotDone);
  EXPECT_EQ(Read_Text(folder / "site101.DUE"), "a project's");
  EXPECT_EQ(Read_Text(folder / "site111.DUI"), "project");
  EXPECT_EQ(targets.count(Site(101)) + targets.count(Site(102)) + targets.count(Site(103)), 0u);
  EXPECT_EQ(targets.size(), 117u);
}

}  // namespace
}  // namespace barvon::testing
