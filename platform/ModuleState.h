// ModuleState.h - the framework's module state: against which module resources and modules are resolved.
#pragma once

// One per module; only its identity matters here.
class AFX_MODULE_STATE {};

// The state of the module that this code is linked into.
AFX_MODULE_STATE* AfxGetStaticModuleState();

// The state that is current now; null while no entry of this module runs.
AFX_MODULE_STATE* AfxGetModuleState();

// Makes `state` current and returns the one before it.
AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* state);

// Makes a state current for its own lifetime and restores the previous one on every way out of the scope.
class AFX_MAINTAIN_STATE2 {
 public:
  explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state) : previous_(AfxSetModuleState(state)) {}
  ~AFX_MAINTAIN_STATE2() { AfxSetModuleState(previous_); }
  AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
  AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

 private:
  AFX_MODULE_STATE* previous_;
};
