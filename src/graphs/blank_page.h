#pragma once

#include "graphs/graph_page.h"

namespace barvon {

/// Stands where a view is not made yet.
class Blank_Page : public Graph_Page {
 public:
  explicit Blank_Page(QWidget* parent) : Graph_Page(parent) {}
  void Show(const Shown_Results&) override {}
  Picture* Shown_Picture() override { return nullptr; }
  std::string Numbers() const override { return {}; }
  QString Picture_Name() const override { return {}; }
};

}  // namespace barvon
