#include "report/report_html.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

namespace barvon {
namespace {

Report_Document Small_Report() {
  Report_Document report{"Project Report", "A <b> & C", "a.DUI", "today", {}};
  report.parts.emplace_back(Report_Heading{1, "Site & Water"});
  report.parts.emplace_back(Report_Table{
      Table_Kind::values,
      "",
      {{}, {"", true}, {}},
      {{{"Corners"}, true}, {{"Depth", "60.0", "ft"}, false, true}, {{"Box?", "No"}}}});
  report.parts.emplace_back(
      Report_Table{Table_Kind::plain, "Times", {{}, {"Time\n(sec)", true}}, {{{"Time 1", "900"}}}});
  Shape_List picture{40, 30, "A line", "from here to there", {}};
  picture.shapes.push_back(Line_Shape{{{0, 0}, {40, 30}}, {}});
  report.parts.emplace_back(Report_Picture{picture});
  report.parts.emplace_back(Report_Break{});
  report.parts.emplace_back(Report_Heading{1, "Depths"});
  return report;
}

bool Has(const std::string& html, const std::string& text) {
  return html.find(text) != std::string::npos;
}

TEST(ReportHtml, Texts_Are_Escaped) {
  const std::string html = Report_Html(Small_Report());
  EXPECT_TRUE(Has(html, "A &lt;b&gt; &amp; C"));
  EXPECT_FALSE(Has(html, "A <b>"));
  EXPECT_TRUE(Has(html, "<h2>Site &amp; Water</h2>"));
}

TEST(ReportHtml, A_Row_Of_Words_Has_The_Room_Of_Value_And_Unit) {
  const std::string html = Report_Html(Small_Report());
  EXPECT_TRUE(Has(html, "<tr class=\"group\"><td colspan=\"3\">Corners</td></tr>"));
  EXPECT_TRUE(Has(html,
                  "<tr class=\"inside\"><th scope=\"row\">Depth</th><td class=\"n\">60.0</td>"
                  "<td>ft</td></tr>"));
  EXPECT_TRUE(Has(html, "<tr><th scope=\"row\">Box?</th><td colspan=\"2\">No</td></tr>"));
}

TEST(ReportHtml, A_Table_Has_Its_Headings_In_Lines) {
  const std::string html = Report_Html(Small_Report());
  EXPECT_TRUE(Has(html, "<caption>Times</caption>"));
  EXPECT_TRUE(Has(html, "<th scope=\"col\" class=\"n\">Time<br>(sec)</th>"));
}

TEST(ReportHtml, Pictures_Are_Inside_And_Nothing_Is_Fetched) {
  const std::string html = Report_Html(Small_Report());
  EXPECT_TRUE(Has(html, "<figcaption>A line</figcaption>\n<svg "));
  EXPECT_FALSE(Has(html, "<?xml"));
  EXPECT_FALSE(Has(html, "<script"));
  EXPECT_FALSE(Has(html, "src="));
  EXPECT_FALSE(Has(html, "url("));
  EXPECT_FALSE(Has(html, "href="));
}

TEST(ReportHtml, A_Break_Begins_A_Page_In_Print) {
  EXPECT_TRUE(Has(Report_Html(Small_Report()), "<h2 class=\"page\">Depths</h2>"));
}

TEST(ReportHtml, Every_Element_Is_Closed) {
  const std::string html = Report_Html(Small_Report());
  const std::regex tag("<(/?)([a-z0-9]+)[^>]*?(/?)>");
  std::vector<std::string> open;
  for (std::sregex_iterator at(html.begin(), html.end(), tag), end; at != end; ++at) {
    const std::string name = (*at)[2];
    if ((*at)[3].length() > 0 || name == "br" || name == "meta") continue;
    if ((*at)[1].length() == 0) {
      open.push_back(name);
      continue;
    }
    ASSERT_FALSE(open.empty()) << name;
    EXPECT_EQ(open.back(), name);
    open.pop_back();
  }
  EXPECT_TRUE(open.empty());
}

}  // namespace
}  // namespace barvon
