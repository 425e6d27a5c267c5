// ScriptedStdio.h - the catalogue's file operations, recorded, with a fault at one of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

// In place of the system's operations as long as it lives; one at a time. An operation is recorded as what it
// does and the names of its files, for example "open r BREVANTA.LIB" or "write BREVANTA.LIB".
class ScriptedStdio {
 public:
  // When a fault comes within an operation. A write then has written half of its bytes.
  enum class Moment { BEFORE, WITHIN, AFTER };

  ScriptedStdio();
  ~ScriptedStdio();
  ScriptedStdio(const ScriptedStdio&) = delete;
  ScriptedStdio& operator=(const ScriptedStdio&) = delete;

  // The first operation recorded like this fails.
  void Fail(const std::string& operation);

  // The operation of this number, counted from 1, fails.
  void FailNumber(int number);

  // Calls `action` at each moment of the operation of this number.
  void Interrupt(int number, std::function<void(Moment)> action);

  // Calls `action` before the first operation recorded like this.
  void Before(const std::string& operation, std::function<void()> action);

  const std::vector<std::string>& Operations() const;
};
