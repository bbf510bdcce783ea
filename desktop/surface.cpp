#include "desktop/surface.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>

#include <algorithm>
#include <iterator>
#include <utility>

#include "desktop/appearance.h"
#include "desktop/control.h"
#include "desktop/graphics_painter.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "scene/input.h"
#include "scene/scene.h"

namespace quintara::desktop {
namespace {

// What a picture box shows; a form shows nothing.
Picture PictureOf(const Container& container) {
  const auto* box = dynamic_cast<const PictureBox*>(&container);
  return box != nullptr ? box->Picture.Get() : Picture{};
}

QPixmap Load(const Picture& picture, const Scene& scene, Pictures& pictures) {
  if (!picture.isFile) return pictures.Embedded(picture.name);
  return QPixmap(QString::fromStdU16String(scene.files().Locate(picture.name).path.u16string()));
}

}  // namespace

Surface::Surface(Container& container, QWidget& parent, Session& session)
    : QWidget(&parent), container_(container), session_(session) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  MakeChildren();
}

void Surface::FollowSurface() {
  FollowBackground();
  FollowPainted();
  for (const Child& child : children_) child.control->Follow();
  update(layer_.Follow(container_, size(), devicePixelRatioF()));
}

void Surface::FollowBackground() {
  const Picture picture = PictureOf(container_);
  if (shownPicture_ == picture && shownColour_ == container_.BackColor.Get()) return;
  if (shownPicture_ != picture) picture_ = Load(picture, session_.scene(), session_.pictures());
  shownPicture_ = picture;
  shownColour_ = container_.BackColor;
  update();
}

// Only graphical objects come and go with their arrays; what has a surface of its own is there from the
// start.
void Surface::MakeChildren() {
  const auto& objects = container_.children();
  for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
    // The widget made last is in front.
    if (Control* control = MakeControl(**object, *this, session_)) children_.push_back({*object, control});
  }
}

void Surface::FollowPainted() {
  if (childrenSeen_ != container_.childrenChanges()) {
    childrenSeen_ = container_.childrenChanges();
    painted_.clear();
    for (const Object* object : container_.children()) {
      if (IsGraphical(object->kind())) painted_.push_back(StateOf(*object));
    }
    return update();
  }
  for (Painted& painted : painted_) {
    if (painted.seen == painted.object->changes()) continue;
    if (painted.visible) update(painted.area);
    painted = StateOf(*painted.object);
    if (painted.visible) update(painted.area);
  }
}

Surface::Painted Surface::StateOf(const Object& object) const {
  return {&object, object.changes(), object.IsVisible(), PaintedArea(object, session_.pictures())};
}

QWidget* Surface::WidgetOf(const Object& object) const {
  const auto isIt = [&](const Child& child) { return child.object == &object; };
  const auto found = std::find_if(children_.begin(), children_.end(), isIt);
  return found == children_.end() ? nullptr : &found->control->widget();
}

void Surface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), ToQColor(container_.BackColor));
  painter.drawPixmap(0, 0, picture_);
  layer_.Paint(painter);
  const auto& objects = container_.children();
  for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
    if (!IsGraphical((*object)->kind()) || !(*object)->IsVisible()) continue;
    if (event->region().intersects(PaintedArea(**object, session_.pictures())))
      PaintObject(painter, **object, session_.pictures());
  }
}

Object* Surface::Under(const QMouseEvent& event) const {
  // The form's own surface fills its window.
  const QPoint at = mapTo(window(), event.position().toPoint());
  return ObjectAt(container_.form(), ToTwips(at.x()) + twipsPerPixel / 2,
                  ToTwips(at.y()) + twipsPerPixel / 2);
}

void Surface::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed_ = Under(*event);
}

void Surface::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  Object* released = Under(*event);
  if (std::exchange(pressed_, nullptr) == released) session_.Run([released] { UserClicks(*released); });
}

void Surface::mouseMoveEvent(QMouseEvent* event) {
  if (!session_.PointerMoved(event->globalPosition().toPoint())) return;
  Object* under = Under(*event);
  session_.Run([under] { UserMovesOnto(*under); });
}

}  // namespace quintara::desktop
