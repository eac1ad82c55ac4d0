#include "help_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "help/help_text.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

using Keywords = std::vector<Help_Keyword>;

TEST(HelpIndex, The_Caption_Of_A_Page_Leads_To_It_And_Bears_Its_Topic) {
  EXPECT_EQ(Keywords_Of_Page("a.html",
                             "<h1 data-topic=\"3030\"\ndata-index=\"AMDEN |\nSea water\">"
                             "Water\ndensity</h1>"),
            (Keywords{{"Water density", "a.html", "3030"},
                      {"AMDEN", "a.html", ""},
                      {"Sea water", "a.html", ""}}));
}

TEST(HelpIndex, Captions_Of_Fields_And_Messages_Are_Keywords_As_They_Are_Read) {
  EXPECT_EQ(
      Keywords_Of_Page("a.html",
                       "<p class=\"field\"><a name=\"depth\">Depth &amp; <i>width</i>\n(ft)</a>"
                       "<p class=\"message\"><a name=\"large\" data-index=\"Large\">Too large."
                       "  Please\n correct.</a>"),
      (Keywords{{"Depth & width (ft)", "a.html#depth", ""},
                {"Too large.  Please  correct.", "a.html#large", ""},
                {"Large", "a.html#large", ""}}));
}

TEST(HelpIndex, Another_Place_Is_A_Keyword_Only_Where_It_Says_So) {
  EXPECT_EQ(Keywords_Of_Page("a.html",
                             "<h2><a name=\"messages\">Messages</a></h2>"
                             "<h2><a name=\"tide\" data-index=\"\">Tide</a></h2>"),
            (Keywords{{"Tide", "a.html#tide", ""}}));
}

TEST(HelpIndex, The_Section_Is_In_The_Order_Of_The_Alphabet_Without_Twins) {
  EXPECT_EQ(Keywords_Section({{"b", "b.html", ""},
                              {"A \"<\"", "a.html", "9"},
                              {"b", "b.html", ""},
                              {"B", "c.html", ""}}),
            "    <keywords>\n"
            "      <keyword name=\"A &quot;&lt;&quot;\" id=\"9\" ref=\"a.html\"/>\n"
            "      <keyword name=\"B\" ref=\"c.html\"/>\n"
            "      <keyword name=\"b\" ref=\"b.html\"/>\n"
            "    </keywords>\n");
}

// A word by hand that repeats its caption would stay behind when the caption is renamed.
TEST(HelpIndex, No_Page_Says_By_Hand_What_Its_Captions_Say) {
  int words = 0;
  for (const std::string& page : Help_Pages()) {
    Keywords keywords = Keywords_Of_Page(page, Read_Text(Help_Folder() + page));
    for (const Help_Keyword& keyword : keywords) {
      EXPECT_EQ(std::count_if(keywords.begin(), keywords.end(),
                              [&](const Help_Keyword& other) {
                                return other.name == keyword.name && other.target == keyword.target;
                              }),
                1)
          << page << ": " << keyword.name;
      ++words;
    }
  }
  EXPECT_GE(words, 690);
}

}  // namespace
}  // namespace barvon
