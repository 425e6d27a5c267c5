// Err.h - the one error-reporting facility: reports on standard error, fatal ones end the process.
#pragma once

#include <csetjmp>
#include <cstdint>

namespace lttools {

// Kinds of report. Any other value prints as "ERROR OF BAD TYPE (value)" and returns.
constexpr std::int32_t ERR_FATAL = 1;    // ends the process with exit status 1
constexpr std::int32_t ERR_BUG = 2;      // prints and returns
constexpr std::int32_t ERR_NORMAL = 10;  // prints and returns; the first kind that cannot be caught

// One state without a lock, for one thread.

// The site of the report. Every site stores both, then calls Err; the text must outlive the report. Without a
// site the report names '(null)' and line 0.
extern const char* ErrFile;
extern std::int32_t ErrLine;

// The last report, kept until the next one overwrites it. Texts are cut to fit.
extern std::int32_t ErrKind;
extern char ErrKindName[28];
extern char ErrMessage[128];

// A catcher fills ErrJump with setjmp in a frame that is still live when a report
// arrives, sets ErrJumpArmed non-zero and clears it before the frame ends. Reports of
// a kind below ERR_NORMAL then print nothing and jump there with the kind as the
// value (1 for a kind of 0). No frame in between may own an object with a destructor.
extern std::int32_t ErrJumpArmed;
extern std::jmp_buf ErrJump;

// Reports the message that the format makes of the further arguments (as printf). Returns unless the kind is
// ERR_FATAL or the report is caught. A null format raises a report of its own and then counts as empty.
#ifdef __GNUC__
__attribute__((format(printf, 2, 3)))
#endif
void Err(std::int32_t kind, const char* format, ...);

// Prints the report that Err has filled in, or jumps; only Err calls it.
void ErrReport();

}  // namespace lttools
