#include <gtest/gtest.h>

#include "database/database_check.h"
#include "database/index_files.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

const std::string kFolder = std::string(BARVON_SAMPLES) + "/database";

TEST(SampleDatabase, Has_Its_Seven_Files_And_Enough_In_Them) {
  EXPECT_EQ(Names_In(kFolder),
            (std::vector<std::string>{"dispdb.dat", "dspsites.dat", "matdb.dat", "sites.dat",
                                      "veldb.dat", "vesdb.dat", "vessels.dat"}));
  EXPECT_GE(Site_Names(kFolder)->size(), 6U);
  EXPECT_EQ(Material_Names(kFolder)->size(), 8U);
  EXPECT_EQ(Vessel_Names(kFolder)->size(), 5U);
}

TEST(SampleDatabase, The_Walk_Finds_Every_Record) {
  const Database_Report report = Check_Database(kFolder);
  for (const Database_Finding& finding : report.findings) {
    EXPECT_TRUE(finding.remark && finding.file == "vesdb.dat") << Finding_Text(finding);
  }
  EXPECT_TRUE(report.mends.empty());
}

}  // namespace
}  // namespace barvon::testing
