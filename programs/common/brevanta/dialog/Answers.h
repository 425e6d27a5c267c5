// Answers.h - takes the user's answers into the record.
#pragma once

#include <string>

#include "inc/DialogServices.h"
#include "window/RecordFields.h"

namespace brevanta {

// The user's answers for the fields of the record. The services must outlive it.
class Answers {
 public:
  explicit Answers(const DialogServices& services) : services_(services) {}

  // True when the user answered for the field.
  bool Has(const char* field) const;

  // Writes every answer into the record; the other fields stay. Throws Refusal for an answer that is not of
  // the field's kind or does not fit it.
  void ApplyTo(WindowParams& record) const;

 private:
  // The answer for the field; false when there is none.
  bool Get(const char* field, std::string& text) const;

  const DialogServices& services_;
};

}  // namespace brevanta
