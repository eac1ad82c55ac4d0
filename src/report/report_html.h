#pragma once

#include <string>

#include "report/report_document.h"

namespace barvon {

/// The report as one page of the web, UTF-8, with its pictures inside: it needs no other file and
/// no network, and prints well. Texts are escaped; what such a page can't hold is left out.
std::string Report_Html(const Report_Document& report);

}  // namespace barvon
