#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>

#include "core/project_record.h"

namespace barvon {

/// An entry of one of the record's arrays. Made by Element.
template <class T>
struct Record_Element {
  T& (*entry)(ProjectRecord&) = nullptr;
  const T& (*shown)(const ProjectRecord&) = nullptr;

  T& operator()(ProjectRecord& record) const { return entry(record); }
  const T& operator()(const ProjectRecord& record) const { return shown(record); }
};

/// Where a value of the record is: `&ProjectRecord::DZ0`, or `Element<&ProjectRecord::OutputDepths,
/// 2>()`. Empty for what is no value of the record.
using Record_Member = std::variant<std::monostate, double ProjectRecord::*, float ProjectRecord::*,
                                   std::int16_t ProjectRecord::*, std::string ProjectRecord::*,
                                   Record_Element<double>, Record_Element<float>,
                                   Record_Element<std::int16_t>, Record_Element<std::string>>;

/// The entry of that subscript, from 1, which the array must have.
template <auto Array, int index>
constexpr auto Element() {
  using Entries = std::remove_reference_t<decltype(std::declval<ProjectRecord&>().*Array)>;
  static_assert(index >= 1 && index < static_cast<int>(std::tuple_size_v<Entries>));
  using T = typename Entries::value_type;
  return Record_Element<T>{
      [](ProjectRecord& record) -> T& { return (record.*Array)[index]; },
      [](const ProjectRecord& record) -> const T& { return (record.*Array)[index]; }};
}

/// Calls `visit` with the value, a reference to it in the record; not at all for an empty member.
template <class Record, class Visit>
void With_Member(const Record_Member& member, Record& record, Visit&& visit) {
  std::visit(
      [&](const auto& where) {
        if constexpr (!std::is_same_v<std::decay_t<decltype(where)>, std::monostate>) {
          visit(std::invoke(where, record));
        }
      },
      member);
}

}  // namespace barvon
