#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/project_record.h"
#include "core/record_fields.h"

namespace barvon {

/// The fields that count, with their names, each number bit for bit: for a program of this system,
/// not for keeping.
std::string Record_Bytes(const ProjectRecord& record,
                         const std::function<bool(const Record_Field&)>& counts);

/// Puts fields of these bytes into the record; names that it does not know are passed over. False,
/// and the record as it was, when the bytes are not whole or a number can't be its field's.
bool Set_Record_Bytes(std::string_view bytes, ProjectRecord& record);

/// What a person enters: neither state of the program, nor what a calculation or the file keeps
/// for itself, nor dilutions.
bool Is_Project_Data(const Record_Field& field);
/// What the list of dilutions is made of; results follow from it.
bool Is_Dilution_Data(const Record_Field& field);
/// State of the program, not of the project.
bool Is_Program_State(const Record_Field& field);

}  // namespace barvon
