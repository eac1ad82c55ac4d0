#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "solver/additions.h"
#include "solver/model_input.h"
#include "solver/outcome.h"

/// The sections of the listing, each with its heading.
namespace companion {

std::string Section_Heading(std::string_view title);
/// "  <caption> ..... <value>"
std::string Caption_Line(const std::string& caption, const std::string& value);
/// The text in lines of the listing's width, the first behind a dash.
std::string Paragraph(const std::string& sentence);

std::string Input_Section(const Model_Input& input, const Additions& additions,
                          const Outcome& outcome);
std::string Without_Part_Section(const Model_Input& input);
std::string Assumed_Section();
std::string Phases_Section(const Model_Input& input, const Outcome& outcome);
std::string Balance_Section(const Model_Input& input, const Outcome& outcome);
std::string Maxima_Section(const Model_Input& input, const Outcome& outcome);
std::string Verdict_Section(const Model_Input& input, const Additions& additions,
                            const Outcome& outcome);
/// The verdicts' lines without heading and explanations, each behind two blanks.
std::string Verdict_Text(const Model_Input& input, const Additions& additions,
                         const Outcome& outcome);
std::string Deposit_Section(const Model_Input& input, const Outcome& outcome);
std::string Notes_Section(const Outcome& outcome);
std::string Left_Out_Section();

}  // namespace companion
