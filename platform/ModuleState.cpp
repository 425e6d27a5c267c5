// ModuleState.cpp - the current module state. Commands run on one thread, so it is plain.
#include "platform/ModuleState.h"

#include <utility>

namespace {

AFX_MODULE_STATE staticState;
AFX_MODULE_STATE* currentState = nullptr;

}  // namespace

AFX_MODULE_STATE* AfxGetStaticModuleState() {
  return &staticState;
}

AFX_MODULE_STATE* AfxGetModuleState() {
  return currentState;
}

AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* state) {
  return std::exchange(currentState, state);
}
