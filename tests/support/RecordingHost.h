// RecordingHost.h - a host function table that writes down what it is called with.
#pragma once

#include <string>
#include <vector>

#include "inc/HostFunctionTable.h"
#include "tests/support/NodeList.h"

// One a test program. Entities are deep copies, made while the list is alive.
namespace recording_host {

// Forgets everything and gives the table all entries that a window needs; the others are null.
void Reset();

// The table; a test may take entries out of it until the next Reset.
brevanta::HostFunctionTable* Table();

// "begin", "3DFACE", "LINE" and "end 1", in the order of the calls.
const std::vector<std::string>& Calls();

const std::vector<node_list::NodeList>& Entities();

// The entities of one type, in order.
std::vector<node_list::NodeList> Faces();
std::vector<node_list::NodeList> Lines();

// What MakeEntity answers from now on.
void AnswerMakeEntity(std::int32_t answer);

// The second arguments that MakeEntity was called with, when any was not 0.
bool OnlyZeroReserved();

}  // namespace recording_host
