// ModuleSession.cpp - answers the dialog's questions and gathers the module's entities.
#include "teskarlt/modules/ModuleSession.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "geometry/Vec3.h"
#include "inc/HostStatus.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/EntityLayers.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/modules/DrawnTags.h"
#include "teskarlt/modules/KeptException.h"
#include "teskarlt/modules/ValueListTags.h"
#include "window/Choices.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

static_assert(brevanta::STATUS_NORMAL == geometry::STATUS_NORMAL);
static_assert(brevanta::STATUS_ERROR == geometry::STATUS_ERROR);

ModuleSession* currentSession = nullptr;

}  // namespace

// The dialog's questions; `context` is the session.
struct ServiceCalls {
  static ModuleSession& Session(void* context) {
    auto& session = *static_cast<ModuleSession*>(context);
    session.outcome_.isDialogRun = true;
    return session;
  }

  static std::int32_t Answer(void* context, const char* field, char* buffer, std::int32_t size) {
    const auto& answers = Session(context).request_.answers;
    const auto found = answers.find(std::string_view(field));
    if (found == answers.end()) return -1;
    const std::string& text = found->second;
    const std::size_t room = size > 0 ? static_cast<std::size_t>(size) - 1 : 0;
    const std::size_t copied = std::min(text.size(), room);
    if (copied > 0) std::memcpy(buffer, text.data(), copied);
    if (size > 0) buffer[copied] = '\0';
    return static_cast<std::int32_t>(text.size());
  }

  static std::int32_t PickedPoint(void* context, double (&xy)[2]) {
    const auto& point = Session(context).request_.point;
    if (!point) return 0;
    std::copy(point->begin(), point->end(), xy);
    return 1;
  }

  // Puts the corners, as many as there is room for, and gives the number of all.
  static std::int32_t PutCorners(const FaceCorners& face, double* corners, std::int32_t capacity) {
    const std::size_t copied = std::min(face.size(), static_cast<std::size_t>(std::max(capacity, 0)));
    for (std::size_t i = 0; i < copied; ++i) {
      corners[3 * i] = face[i].x;
      corners[3 * i + 1] = face[i].y;
      corners[3 * i + 2] = face[i].z;
    }
    return static_cast<std::int32_t>(face.size());
  }

  static std::int32_t RoofPlane(void* context, double* corners, std::int32_t capacity,
                                std::int32_t* isBoundary) {
    const WindowRequest& request = Session(context).request_;
    *isBoundary = request.facesNear ? 1 : 0;
    return PutCorners(request.roof, corners, capacity);
  }

  static std::int32_t FindRoofFaces(void* context, const double (&low)[2], const double (&high)[2]) {
    return AnswerModule(std::int32_t{0}, [&] {
      ModuleSession& session = Session(context);
      const FacesNear& facesNear = session.request_.facesNear;
      session.foundFaces_.clear();
      if (facesNear) session.foundFaces_ = facesNear({low[0], low[1], high[0], high[1]});
      return static_cast<std::int32_t>(session.foundFaces_.size());
    });
  }

  static std::int32_t RoofFace(void* context, std::int32_t index, double* corners, std::int32_t capacity) {
    const std::vector<FaceCorners>& faces = Session(context).foundFaces_;
    if (index < 0 || static_cast<std::size_t>(index) >= faces.size()) return 0;
    return PutCorners(faces[static_cast<std::size_t>(index)], corners, capacity);
  }

  static const WindowNumbers& Numbers(void* context) {
    static const WindowNumbers none;
    const WindowNumbers* numbers = Session(context).request_.numbersInUse;
    return numbers == nullptr ? none : *numbers;
  }

  static std::int32_t NumberInUse(void* context, std::int32_t number) {
    return Numbers(context).IsTaken(number) ? 1 : 0;
  }

  static std::int32_t FreeNumber(void* context) { return Numbers(context).Free(); }

  static std::int32_t ReadWindow(void* context, brevanta::WindowParams* record) {
    const std::optional<brevanta::WindowParams>& edited = Session(context).request_.edited;
    if (!edited) return 0;
    *record = *edited;
    return 1;
  }

  static std::int32_t EraseWindow(void* context) {
    return AnswerModule(std::int32_t{0}, [&] {
      ModuleSession& session = Session(context);
      for (const dxf::Entity* entity : session.request_.replaced)
        session.drawing_.RemoveEntity(*entity);
      session.outcome_.erased = session.request_.replaced.size();
      return static_cast<std::int32_t>(session.outcome_.erased);
    });
  }

  static void Confirm(void* context, const brevanta::WindowParams* record) {
    WorkForModule([&] {
      ModuleSession& session = Session(context);
      session.outcome_.confirmed = *record;
      if (session.request_.markOf) session.outcome_.mark = session.request_.markOf(*record);
      session.mark_ = session.drawing_.Encode(session.outcome_.mark);
      session.faceRoles_ =
          FaceRoles(record->skirtHeight > 0.0 ? brevanta::FACES_WITH_SKIRT : brevanta::FACES_WITHOUT_SKIRT);
      session.lineRoles_ = LineRoles(DrawsSymbol(*record), record->openingCode);
    });
  }

  static void Report(void* context, std::int32_t gravity, const char* text) {
    WorkForModule([&] {
      if (gravity == brevanta::REPORT_OUT_OF_MEMORY) throw std::bad_alloc();
      ModuleSession& session = Session(context);
      session.outcome_.reports.push_back({gravity, session.drawing_.Decode(text)});
    });
  }
};

ModuleSession::ModuleSession(dxf::Document& drawing, const WindowRequest& request)
    : drawing_(drawing),
      request_(request),
      services_{brevanta::DIALOG_SERVICES_VERSION,
                static_cast<std::int32_t>(sizeof(brevanta::DialogServices)),
                this,
                ServiceCalls::Answer,
                ServiceCalls::PickedPoint,
                ServiceCalls::RoofPlane,
                ServiceCalls::FindRoofFaces,
                ServiceCalls::RoofFace,
                ServiceCalls::NumberInUse,
                ServiceCalls::FreeNumber,
                ServiceCalls::ReadWindow,
                ServiceCalls::EraseWindow,
                ServiceCalls::Confirm,
                ServiceCalls::Report} {
  currentSession = this;
}

ModuleSession::~ModuleSession() {
  currentSession = nullptr;
}

ModuleSession* ModuleSession::Current() {
  return currentSession;
}

std::int32_t ModuleSession::MakeEntity(const brevanta::ValueNode* list) {
  return AnswerModule(brevanta::STATUS_ERROR, [&] {
    try {
      AddEntity(list);
      return brevanta::STATUS_NORMAL;
    } catch (const Error& error) {
      if (outcome_.failure.empty()) outcome_.failure = error.what();
      return brevanta::STATUS_ERROR;
    }
  });
}

void ModuleSession::AddEntity(const brevanta::ValueNode* list) {
  std::vector<dxf::TypedTag> tags = TagsOf(list);
  TakeToDrawn(request_.unit, tags);
  AddMark(tags);
  const bool isFace = !tags.empty() && tags[0].value == decltype(dxf::TypedTag::value)(dxf::TYPE_FACE);
  if (Redraw(tags, isFace)) return;
  drawing_.AddEntity(tags);
  ++(isFace ? batchFaces_ : batchLines_);
  for (const dxf::TypedTag& tag : tags) {
    if (tag.code != dxf::CODE_LAYER) continue;
    outcome_.layers.insert(drawing_.Decode(std::get<std::string_view>(tag.value)));
    break;
  }
}

// The mark stands with each entity, so that it stays with the window whatever becomes of some of them.
void ModuleSession::AddMark(std::vector<dxf::TypedTag>& tags) const {
  if (mark_.empty()) return;
  tags.push_back({dxf::CODE_XDATA_APPLICATION, std::string_view(brevanta::MARK_APPLICATION)});
  tags.push_back({dxf::CODE_XDATA_TEXT, std::string_view(mark_)});
}

// Draws the part of the edited window that the next face or line is to be; false when it has none.
bool ModuleSession::Redraw(std::span<const dxf::TypedTag> tags, bool isFace) {
  if (!request_.edited || !outcome_.confirmed) return false;
  const std::vector<PartRole>& roles = isFace ? faceRoles_ : lineRoles_;
  std::size_t& batchCount = isFace ? batchFaces_ : batchLines_;
  const std::size_t next = (isFace ? outcome_.faces : outcome_.lines) + batchCount;
  const auto found = next < roles.size() ? request_.parts.find(roles[next]) : request_.parts.end();
  if (found == request_.parts.end()) return false;
  const bool isNewCode = std::strcmp(request_.edited->openingCode, outcome_.confirmed->openingCode) != 0;
  drawing_.Redraw(
      *found->second, tags,
      isNewCode && found->first.IsMark() ? dxf::LinetypeOnRedraw::Renewed : dxf::LinetypeOnRedraw::Kept);
  outcome_.layers.merge(LayersOf(drawing_, {&found->second, 1}));
  ++batchCount;
  return true;
}

void ModuleSession::BeginBatch() {
  batchStart_ = drawing_.Mark();
  batchFaces_ = batchLines_ = 0;
}

void ModuleSession::EndBatch(bool keep) {
  if (!batchStart_) return;
  if (keep) {
    outcome_.faces += batchFaces_;
    outcome_.lines += batchLines_;
  } else {
    WorkForModule([&] { drawing_.Rollback(*batchStart_); });
  }
  batchStart_.reset();
}

}  // namespace teskarlt
