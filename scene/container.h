#pragma once

#include <cstdint>
#include <vector>

#include "numbers/single.h"
#include "scene/colour.h"
#include "scene/object.h"
#include "scene/property.h"
#include "scene/scale.h"

namespace quintara {

// A mark that PSet left on a drawing layer.
struct Dot {
  Single x, y;  // in the scale that was in force when it was drawn
  double leftTwips = 0, topTwips = 0;
  Colour colour;
  std::int16_t width = 1;  // pixels
};

// A surface that holds children: a form or a picture box. It has a scale, in which its children's places and
// its drawing are counted, and a drawing layer, which stands before the pictures among its children.
class Container {
 public:
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  // The form or picture box that this is the surface of.
  Object& object() const { return self_; }
  Form& form() const { return self_.form(); }

  // Front to back within the graphical objects and within the others; see Object::IsGraphical.
  const std::vector<Object*>& children() const { return children_; }
  // Grows whenever a child joins or leaves.
  ChangeCount childrenChanges() const { return childrenChanges_; }

  // The inner size in twips: what is not covered by a frame.
  virtual double InnerWidth() const = 0;
  virtual double InnerHeight() const = 0;

  const Scale& scale() const { return scale_; }
  // Counts in another scale from now on. Nothing moves on the surface; the children's numbers change.
  void Rescale(const Scale& scale);

  // Width of the dots that PSet draws, in pixels.
  Property<std::int16_t> DrawWidth;
  Property<Colour> BackColor;
  Property<Colour> ForeColor;

  // Marks the drawing layer at a place in the scale in force, in ForeColor unless told otherwise. A mark that
  // lies wholly outside the inner area is dropped.
  void PSet(double x, double y);
  void PSet(double x, double y, Colour colour);
  // Wipes the drawing layer and nothing else.
  void Cls();

  // The marks since the last Cls, oldest first.
  const std::vector<Dot>& dots() const { return dots_; }
  // Grows with every Cls.
  ChangeCount wipes() const { return wipes_; }

 protected:
  struct Looks {
    Colour backColor = colours::buttonFace;
    Colour foreColor = colours::buttonText;
    std::int16_t drawWidth = 1;
    Scale scale;
  };

  Container(Object& self, Properties& properties, const Looks& looks);
  ~Container() = default;
  // Gives the surface its start scale again and wipes it. Its children have to be restored next.
  void RestoreSurface();

 private:
  friend class Object;
  friend class ControlArrayBase;
  void Join(Object& child) { children_.push_back(&child); }
  void JoinInFrontOfItsKind(Object& child);
  void Leave(Object& child);

  Object& self_;
  std::vector<Object*> children_;
  std::vector<Dot> dots_;
  const Scale startScale_;
  Scale scale_;
  ChangeCount childrenChanges_ = 0;
  ChangeCount wipes_ = 0;
};

}  // namespace quintara
