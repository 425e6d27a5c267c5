// Err.cpp - error reports and the fatal abort.
#include "lttools/Err.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace lttools {

const char* ErrFile = nullptr;
std::int32_t ErrLine = 0;
std::int32_t ErrKind = 0;
char ErrKindName[28] = {};
char ErrMessage[128] = {};
std::int32_t ErrJumpArmed = 0;
std::jmp_buf ErrJump;

namespace {

void SetKindName(std::int32_t kind) {
  const char* name = nullptr;
  switch (kind) {
    case ERR_FATAL:
      name = "FATAL ERROR";
      break;
    case ERR_BUG:
      name = "BUG";
      break;
    case ERR_NORMAL:
      name = "NORMAL";
      break;
    default:
      std::snprintf(ErrKindName, sizeof ErrKindName, "ERROR OF BAD TYPE (%d)", kind);
      return;
  }
  std::snprintf(ErrKindName, sizeof ErrKindName, "%s", name);
}

}  // namespace

void Err(std::int32_t kind, const char* format, ...) {
  if (format == nullptr) Err(ERR_BUG, "Bad pointer in arguments to Err()");
  ErrKind = kind;
  SetKindName(kind);
  std::va_list values;
  va_start(values, format);
  std::vsnprintf(ErrMessage, sizeof ErrMessage, format != nullptr ? format : "", values);
  va_end(values);
  ErrReport();
}

void ErrReport() {
  if (ErrKind < ERR_NORMAL && ErrJumpArmed != 0) std::longjmp(ErrJump, ErrKind);
  std::fprintf(stderr, "\n\n");
  std::fprintf(stderr, "%s on line %d of '%s'\n", ErrKindName, ErrLine,
               ErrFile != nullptr ? ErrFile : "(null)");
  std::fprintf(stderr, "  '%s'\n", ErrMessage);
  std::fprintf(stderr, "\n");
  if (ErrKind == ERR_FATAL) {
    std::fprintf(stderr, "ABORTING EXECUTION\n");
    std::exit(1);
  }
}

}  // namespace lttools
