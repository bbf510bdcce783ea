#include "scene/form.h"

#include <algorithm>
#include <cmath>

#include "scene/control_array.h"
#include "scene/menu.h"
#include "scene/scene.h"

namespace quintara {

Form::Form(Scene& scene, std::string_view name, const FormLooks& looks)
    : Object(name, *this),
      Container(static_cast<Object&>(*this), properties(),
                {looks.backColor, looks.foreColor, looks.drawWidth, looks.scale}),
      Caption(properties(), looks.caption),
      Left(properties(), 0.0),
      Top(properties(), 0.0),
      Width(properties(), looks.clientWidth + frameWidth),
      Height(properties(), looks.clientHeight + frameHeight),
      ScaleMode(*this, &Form::ReadScaleMode, &Form::WriteScaleMode),
      ScaleWidth(*this, &Form::ReadExtent<Axis::Across>, &Form::WriteExtent<Axis::Across>),
      ScaleHeight(*this, &Form::ReadExtent<Axis::Down>, &Form::WriteExtent<Axis::Down>),
      scene_(scene),
      looks_(looks) {
  scene_.Join(*this);
}

Form::~Form() {
  scene_.Leave(*this);
}

double Form::InnerWidth() const {
  return std::max(Width.Get() - frameWidth, 0.0);
}
double Form::InnerHeight() const {
  return std::max(Height.Get() - frameHeight, 0.0);
}

void Form::WriteScaleMode(std::int16_t mode) {
  Scale next = scale();
  if (mode == Scale::twips) next = Scale::InTwips();
  if (mode == Scale::pixels) next = Scale::InPixels();
  if (mode == Scale::user) next.mode = Scale::user;
  Rescale(next);
}

template <Axis axis>
double Form::ReadExtent() const {
  return Single(axis == Axis::Across ? InnerWidth() / scale().unitAcross : InnerHeight() / scale().unitDown);
}

template <Axis axis>
void Form::WriteExtent(double units) {
  const Single count = units;
  const double inner = axis == Axis::Across ? InnerWidth() : InnerHeight();
  // A form squeezed to nothing has no unit that could be counted.
  if (!(count > 0) || !std::isfinite(count.Stored()) || !(inner > 0)) return;
  Scale next = scale();
  next.mode = Scale::user;
  (axis == Axis::Across ? next.unitAcross : next.unitDown) = inner / count;
  Rescale(next);
}

void Form::Restore() {
  Object::Restore();
  RestoreSurface();
  // A container stands before its children in the table, so its scale is back before their places are.
  for (Object* object : objects_) object->Restore();
}

void Form::Touch() {
  if (loaded_ || scene_.ended()) return;
  loaded_ = true;
  scene_.NoteLoaded(*this);
  scene_.dispatcher().BeginWaits(*this);
  Load.Raise();
}

void Form::Show() {
  Touch();
  if (!loaded_) return;
  shown_ = true;
  properties().CountChange();
  scene_.platform().FormShown(*this);
}

void Form::Unload() {
  if (!loaded_ || unloading_) return;
  unloading_ = true;
  QueryUnload.Raise();
  unloading_ = false;

  scene_.DropWaiting(*this);
  for (ControlArrayBase* array : arrays_) array->UnloadAll();
  loaded_ = false;
  shown_ = false;
  focus_ = nullptr;
  Restore();
  scene_.NoteUnloaded(*this);
}

void Form::PopupMenu(Menu& menu, double x, double y) {
  scene_.OfferMenu(*this, menu, x * scale().unitAcross, y * scale().unitDown);
}

Object* Form::Find(std::string_view name, std::int16_t index) const {
  const auto isIt = [&](const Object* object) { return object->index() == index && object->name() == name; };
  const auto found = std::find_if(objects_.begin(), objects_.end(), isIt);
  return found == objects_.end() ? nullptr : *found;
}

void Form::MoveFocus(Object* object) {
  focus_ = object;
  ++focusMoves_;
}

}  // namespace quintara
