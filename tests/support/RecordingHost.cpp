// RecordingHost.cpp - records the calls through the host function table.
#include "tests/support/RecordingHost.h"

#include <algorithm>
#include <iterator>

namespace recording_host {

namespace {

using brevanta::HostFunction;
using node_list::NodeList;

struct Log {
  brevanta::HostFunctionTable table{};
  std::vector<std::string> calls;
  std::vector<NodeList> entities;
  std::int32_t answer = 0;
  bool onlyZeroReserved = true;
};

Log& TheLog() {
  static Log log;
  return log;
}

std::int32_t MakeEntity(brevanta::ValueNode* list, std::int32_t reserved) {
  Log& log = TheLog();
  log.entities.push_back(node_list::Copy(list));
  log.calls.push_back(node_list::TextOf(log.entities.back(), 0));
  if (reserved != 0) log.onlyZeroReserved = false;
  return log.answer;
}

void BeginBatch() {
  TheLog().calls.emplace_back("begin");
}

void EndBatch(std::int32_t keep) {
  TheLog().calls.push_back("end " + std::to_string(keep));
}

std::vector<NodeList> OfType(const std::string& type) {
  std::vector<NodeList> found;
  const auto& all = TheLog().entities;
  std::copy_if(all.begin(), all.end(), std::back_inserter(found),
               [&type](const NodeList& list) { return node_list::TextOf(list, 0) == type; });
  return found;
}

}  // namespace

void Reset() {
  TheLog() = Log();
  auto& entries = TheLog().table.entries;
  entries[15] = reinterpret_cast<HostFunction>(MakeEntity);
  entries[17] = reinterpret_cast<HostFunction>(BeginBatch);
  entries[19] = reinterpret_cast<HostFunction>(EndBatch);
}

brevanta::HostFunctionTable* Table() {
  return &TheLog().table;
}

const std::vector<std::string>& Calls() {
  return TheLog().calls;
}

const std::vector<NodeList>& Entities() {
  return TheLog().entities;
}

std::vector<NodeList> Faces() {
  return OfType("3DFACE");
}

std::vector<NodeList> Lines() {
  return OfType("LINE");
}

void AnswerMakeEntity(std::int32_t answer) {
  TheLog().answer = answer;
}

bool OnlyZeroReserved() {
  return TheLog().onlyZeroReserved;
}

}  // namespace recording_host
