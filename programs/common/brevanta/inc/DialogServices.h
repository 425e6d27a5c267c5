// DialogServices.h - what the stand-alone host offers to its dialog module in place of a user interface.
#pragma once

#include <cstdint>

#include "inc/WindowParams.h"

namespace brevanta {

constexpr std::int32_t DIALOG_SERVICES_VERSION = 2;

// Answers that are no fields of the record: an item line of a catalogue and its maker's name. Fields go
// before them.
constexpr const char* ANSWER_CATALOGUE_ITEM = "catalogueItem";
constexpr const char* ANSWER_CATALOGUE_MAKER = "catalogueMaker";

// Stands between the points of a field of several: "X,Y,Z;X,Y,Z".
constexpr char POINT_DELIMITER = ';';

// How grave a message of the dialog is.
constexpr std::int32_t REPORT_NOTE = 0;
constexpr std::int32_t REPORT_WARNING = 1;
constexpr std::int32_t REPORT_REFUSAL = 2;        // why the dialog does not confirm
constexpr std::int32_t REPORT_OUT_OF_MEMORY = 3;  // it does not confirm for that; the text is empty

// A record of functions that the host owns and hands to "Dialog" as `hostContext`; "EraseWindow", which takes
// no arguments, gets it from the host's export DIALOG_SERVICES_EXPORT. No entry is null. Coordinates are
// those of the drawing; texts, those quoted in messages too, are zero-terminated bytes as the drawing's
// file has them.
// `context` is the first argument of every call and is the host's own.
struct DialogServices {
  std::int32_t version;  // DIALOG_SERVICES_VERSION
  std::int32_t size;     // sizeof(DialogServices)
  void* context;

  // The user's answer for the record's field of that name, or under one of the names below, put into `buffer`
  // of `size` bytes, terminated. Gives its length in bytes, which is not below `size` when it was cut, or -1
  // when the user gave no answer for the field.
  std::int32_t (*answer)(void* context, const char* field, char* buffer, std::int32_t size);

  // The plan position that the user picked for the window: 1 with x and y, else 0.
  std::int32_t (*pickedPoint)(void* context, double (&xy)[2]);

  // The corners of a face, or three points, that span the plane of the chosen roof: puts up to `capacity` of
  // them, x, y and z each, into `corners` in order and gives their number; 0 when no roof was chosen.
  // `isBoundary` becomes 1 when the window must stay inside the roof's faces, 0 when the plane is unbounded.
  std::int32_t (*roofPlane)(void* context, double* corners, std::int32_t capacity, std::int32_t* isBoundary);

  // Finds the faces of the chosen roof that touch the rectangle of the plan from `low` to `high`, x and y
  // each, and gives their number.
  std::int32_t (*findRoofFaces)(void* context, const double (&low)[2], const double (&high)[2]);

  // Face `index` of those found last: puts up to `capacity` corners into `corners` in order around the face
  // and gives their number; 0 when there is no such face.
  std::int32_t (*roofFace)(void* context, std::int32_t index, double* corners, std::int32_t capacity);

  // 1 when a window of the drawing has this number, else 0; and a number for a new window.
  std::int32_t (*numberInUse)(void* context, std::int32_t number);
  std::int32_t (*freeNumber)(void* context);

  // Puts the window that is to be edited into the record: 1, or 0 when there is none.
  std::int32_t (*readWindow)(void* context, WindowParams* record);

  // Takes the entities of the window that is edited or erased out of the drawing: their number, 0 when there
  // is none.
  std::int32_t (*eraseWindow)(void* context);

  // Tells the record that the dialog is about to confirm.
  void (*confirm)(void* context, const WindowParams* record);

  // A sentence for the user.
  void (*report)(void* context, std::int32_t gravity, const char* text);
};

constexpr const char* DIALOG_SERVICES_EXPORT = "GetDialogServices";
using GetDialogServicesFunction = DialogServices* (*)();

}  // namespace brevanta
