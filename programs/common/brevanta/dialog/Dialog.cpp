// Dialog.cpp - runs the dialog's rules over a record.
#include "dialog/Dialog.h"

#include <new>

#include "dialog/Answers.h"
#include "dialog/Placement.h"
#include "dialog/Refusal.h"
#include "dialog/WindowRules.h"
#include "inc/DialogModule.h"
#include "inc/DialogServices.h"
#include "inc/HostFunctionTable.h"
#include "platform/ModuleServices.h"

namespace brevanta {

namespace {

constexpr std::int32_t NOT_CONFIRMED = 0;

// The services when they are of the version that this module was built for, else null.
const DialogServices* UsableServices(void* hostContext) {
  const auto* services = static_cast<const DialogServices*>(hostContext);
  const bool usable = services != nullptr && services->version == DIALOG_SERVICES_VERSION &&
                      services->size == static_cast<std::int32_t>(sizeof(DialogServices));
  return usable ? services : nullptr;
}

void CheckUnits(std::int32_t hostFactor, const WindowParams& record) {
  if (record.unitFactor == hostFactor && hostFactor > 0) return;
  throw Refusal("unitFactor " + NumberText(record.unitFactor) + " is not that of the drawing, " +
                NumberText(hostFactor) + " drawing units per metre");
}

// A new window gets a number of its own; an edited one keeps the number that it was read with.
void TakeNumber(const DialogServices& services, const Answers& answers, std::int32_t keptNumber,
                WindowParams& record) {
  if (keptNumber != 0) {
    if (record.markerValue == keptNumber) return;
    throw Refusal("markerValue cannot be changed; the window keeps its number " + NumberText(keptNumber));
  }
  if (!answers.Has("markerValue")) {
    record.markerValue = services.freeNumber(services.context);
    return;
  }
  if (record.markerValue == 0) throw Refusal("markerValue must not be 0; it is the number of the window");
  if (services.numberInUse(services.context, record.markerValue) != 0) {
    throw Refusal("markerValue " + NumberText(record.markerValue) + " is the number of another window");
  }
}

void FillRecord(const DialogServices& services, bool editing, WindowParams& record) {
  const std::int32_t hostFactor = record.unitFactor;
  if (editing) {
    record.markerValue = 0;
    if (services.readWindow(services.context, &record) == 0) throw Refusal("there is no such window to edit");
  }
  const std::int32_t keptNumber = editing ? record.markerValue : 0;
  const Answers answers(services);
  // What a window is read with is its direction in the drawing; that of pickOffset is one in the roof's
  // frame.
  if (editing) record.rotation = 0.0;
  answers.ApplyTo(record);
  CheckUnits(hostFactor, record);
  CheckWindow(record);
  PlaceWindow(services, answers, record);
  TakeNumber(services, answers, keptNumber, record);
}

}  // namespace

std::int32_t Dialog(void* hostContext, WindowParams* record, std::int32_t /*dialogArg*/,
                    std::int32_t editFlag) {
  const DialogServices* services = UsableServices(hostContext);
  if (services == nullptr || record == nullptr) return NOT_CONFIRMED;
  try {
    const bool editing = editFlag != 0;
    FillRecord(*services, editing, *record);
    if (editing) services->eraseWindow(services->context);
    services->confirm(services->context, record);
    return DIALOG_CONFIRMED;
  } catch (const Refusal& refusal) {
    services->report(services->context, REPORT_REFUSAL, refusal.what());
  } catch (const std::bad_alloc&) {
    services->report(services->context, REPORT_OUT_OF_MEMORY, "");
  }
  return NOT_CONFIRMED;
}

std::int32_t EraseWindow() {
  const auto getServices =
      ExportedFunction<GetDialogServicesFunction>(GetModuleHandleA(HOST_PROGRAM), DIALOG_SERVICES_EXPORT);
  const DialogServices* services = getServices == nullptr ? nullptr : UsableServices(getServices());
  if (services == nullptr) return 0;
  return services->eraseWindow(services->context) > 0 ? 1 : 0;
}

}  // namespace brevanta
