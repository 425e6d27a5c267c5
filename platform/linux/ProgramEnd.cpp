// ProgramEnd.cpp - signals on Linux.
#include "platform/ProgramEnd.h"

#include <atomic>
#include <climits>
#include <csignal>

#include <unistd.h>

namespace platform {
namespace {

// Those that come from outside, or when a limit of the user is met.
constexpr int ENDING_SIGNALS[] = {SIGINT,  SIGTERM, SIGHUP,  SIGQUIT, SIGPIPE,
                                  SIGALRM, SIGUSR1, SIGUSR2, SIGXCPU, SIGXFSZ};

// A signal can come at any time, so its handler reads static memory and calls the kernel, nothing else.
char fileAtEnd[PATH_MAX];
std::atomic<bool> hasFileAtEnd{false};
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void EndBySignal(int signal) {
  if (hasFileAtEnd) unlink(fileAtEnd);
  std::raise(signal);  // waits until this function is left, and then has its usual effect
}

}  // namespace

void WatchForEnd() {
  for (const int signal : ENDING_SIGNALS) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
    action = {};
    action.sa_handler = EndBySignal;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
  }
}

void RemoveAtEnd(const std::string& path) {
  hasFileAtEnd = false;
  if (path.empty() || path.size() >= sizeof fileAtEnd) return;
  path.copy(fileAtEnd, path.size());
  fileAtEnd[path.size()] = '\0';
  hasFileAtEnd = true;
}

void OutliveClosedPipes() {
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace platform
