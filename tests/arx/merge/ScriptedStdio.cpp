// ScriptedStdio.cpp - wraps the system's operations.
#include "ScriptedStdio.h"

#include <cstdio>
#include <map>
#include <string_view>
#include <utility>

#include "platform/StdioOperations.h"

namespace {

using Moment = ScriptedStdio::Moment;

struct Script {
  std::vector<std::string> operations;
  std::map<std::FILE*, std::string> names;
  std::string failing;
  int failingNumber = 0;
  int interruptedNumber = 0;
  std::function<void(Moment)> interruption;
  std::string announced;
  std::function<void()> announcement;
};

Script* script = nullptr;

std::string NameOf(std::string_view path) {
  return std::string(path.substr(path.find_last_of("/\\") + 1));
}

// One operation under way: recorded, with its faults.
class Operation {
 public:
  explicit Operation(const std::string& text) {
    script->operations.push_back(text);
    number_ = static_cast<int>(script->operations.size());
    if (text == script->announced) {
      script->announced.clear();
      script->announcement();
    }
    fails_ = text == script->failing || number_ == script->failingNumber;
    if (text == script->failing) script->failing.clear();
    At(Moment::BEFORE);
  }
  bool Fails() const { return fails_; }
  bool IsInterrupted() const { return number_ == script->interruptedNumber; }
  void At(Moment moment) const {
    if (IsInterrupted()) script->interruption(moment);
  }
  template <typename Result>
  Result Done(Result result) const {
    At(Moment::AFTER);
    return result;
  }

 private:
  int number_ = 0;
  bool fails_ = false;
};

std::FILE* Open(const char* path, const char* mode) {
  const Operation operation(std::string("open ") + mode + " " + NameOf(path));
  if (operation.Fails()) return nullptr;
  std::FILE* stream = SYSTEM_STDIO.open(path, mode);
  script->names[stream] = NameOf(path);
  return operation.Done(stream);
}

std::ptrdiff_t Read(void* buffer, std::size_t size, std::FILE* stream) {
  const Operation operation("read " + script->names[stream]);
  if (operation.Fails()) return READ_FAILED;
  return operation.Done(SYSTEM_STDIO.read(buffer, size, stream));
}

bool Write(const void* bytes, std::size_t size, std::FILE* stream) {
  const Operation operation("write " + script->names[stream]);
  if (operation.Fails() || operation.IsInterrupted()) SYSTEM_STDIO.write(bytes, size / 2, stream);
  if (operation.Fails()) return false;
  operation.At(Moment::WITHIN);
  return operation.Done(SYSTEM_STDIO.write(bytes, size, stream));
}

bool Close(std::FILE* stream) {
  const Operation operation("close " + script->names[stream]);
  const bool closed = SYSTEM_STDIO.close(stream);
  return operation.Done(closed && !operation.Fails());
}

bool Rename(const char* oldPath, const char* newPath) {
  const Operation operation("rename " + NameOf(oldPath) + " " + NameOf(newPath));
  return !operation.Fails() && operation.Done(SYSTEM_STDIO.rename(oldPath, newPath));
}

bool Remove(const char* path) {
  const Operation operation("remove " + NameOf(path));
  return !operation.Fails() && operation.Done(SYSTEM_STDIO.remove(path));
}

constexpr StdioOperations SCRIPTED{Open, Read, Write, Close, Rename, Remove};

}  // namespace

ScriptedStdio::ScriptedStdio() {
  script = new Script;
  ReplaceStdio(&SCRIPTED);
}

ScriptedStdio::~ScriptedStdio() {
  ReplaceStdio(nullptr);
  delete std::exchange(script, nullptr);
}

void ScriptedStdio::Fail(const std::string& operation) {
  script->failing = operation;
}

void ScriptedStdio::FailNumber(int number) {
  script->failingNumber = number;
}

void ScriptedStdio::Interrupt(int number, std::function<void(Moment)> action) {
  script->interruptedNumber = number;
  script->interruption = std::move(action);
}

void ScriptedStdio::Before(const std::string& operation, std::function<void()> action) {
  script->announced = operation;
  script->announcement = std::move(action);
}

const std::vector<std::string>& ScriptedStdio::Operations() const {
  return script->operations;
}
