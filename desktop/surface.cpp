#include "desktop/surface.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <utility>

#include "desktop/appearance.h"
#include "desktop/control.h"
#include "desktop/graphics_painter.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "scene/input.h"
#include "scene/scene.h"
#include "scene/visit.h"

namespace quintara::desktop {
namespace {

// What a picture box shows; a form shows nothing.
Picture PictureOf(const Container& container) {
  const auto* box = As<const PictureBox>(container.object());
  return box != nullptr ? box->Picture.Get() : Picture{};
}

QPixmap Load(const Picture& picture, const Scene& scene, Pictures& pictures) {
  if (!picture.isFile) return pictures.Embedded(picture.name);
  return QPixmap(QString::fromStdU16String(scene.files().Locate(picture.name).path.u16string()));
}

// Scaled once, so that painting it need not.
QPixmap Enlarged(const QPixmap& picture, const Zoom& zoom, qreal pixelRatio) {
  const double factor = zoom.factor() * pixelRatio;
  if (factor == 1 || picture.isNull()) return picture;
  QPixmap shown = picture.scaled(picture.size() * factor, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  shown.setDevicePixelRatio(pixelRatio);
  return shown;
}

std::vector<Object*> BackToFront(const Container& container) {
  return {container.children().rbegin(), container.children().rend()};
}

}  // namespace

Surface::Surface(Container& container, QWidget& parent, Session& session)
    : QWidget(&parent), container_(container), session_(session), watch_(container) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  MakeChildren();
}

void Surface::FollowSurface(const Zoom& zoom) {
  const qreal ratio = devicePixelRatioF();
  if (zoom_ != zoom || pixelRatio_ != ratio) {
    zoom_ = zoom;
    pixelRatio_ = ratio;
    shownPicture_.reset();
    update();
  }
  FollowBackground();
  const SurfaceChanges changes = watch_.Look();
  FollowPainted(changes);
  for (const Child& child : children_) child.control->Follow(zoom_);
  FollowMarks(changes);
}

void Surface::FollowBackground() {
  const Picture picture = PictureOf(container_);
  if (shownPicture_ == picture && shownColour_ == container_.BackColor.Get()) return;
  if (shownPicture_ != picture) {
    picture_ = Enlarged(Load(picture, session_.scene(), session_.pictures()), zoom_, pixelRatio_);
  }
  shownPicture_ = picture;
  shownColour_ = container_.BackColor;
  update();
}

void Surface::FollowMarks(const SurfaceChanges& changes) {
  const QRect changed = layer_.Follow(container_, changes, size(), zoom_, pixelRatio_);
  update(changed);
  if (!changed.isEmpty()) {
    for (const Child& child : children_)
      child.control->widget().update(changed.translated(-child.control->widget().pos()));
  }
  const bool hasMarks = !container_.dots().empty();
  if (std::exchange(hadMarks_, hasMarks) != hasMarks) update();
}

// A box that has no marks of its own is a picture before which those of the surface below it are seen, too:
// the backdrop would hide the top of a flight. In the mountain's box the game repeats them itself.
const Surface* Surface::SurfaceShowingThrough() const {
  return container_.dots().empty() ? dynamic_cast<const Surface*>(parentWidget()) : nullptr;
}

// Only graphical objects come and go with their arrays; what has a surface of its own is there from the
// start.
void Surface::MakeChildren() {
  for (Object* object : BackToFront(container_)) {
    // The widget made last is in front.
    if (Control* control = MakeControl(*object, *this, session_)) children_.push_back({object, control});
  }
}

void Surface::FollowPainted(const SurfaceChanges& changes) {
  if (changes.children) {
    painted_.clear();
    for (const Object* object : container_.children()) {
      if (object->IsGraphical()) painted_.emplace(object, StateOf(*object));
    }
    return update();
  }
  for (const Object* object : changes.objects) {
    const auto found = painted_.find(object);
    if (found == painted_.end()) continue;
    Painted& painted = found->second;
    if (painted.visible) Repaint(painted.area);
    painted = StateOf(*object);
    if (painted.visible) Repaint(painted.area);
  }
}

Surface::Painted Surface::StateOf(const Object& object) const {
  return {object.IsVisible(), PaintedArea(object, session_.pictures())};
}

QWidget* Surface::WidgetOf(const Object& object) const {
  const auto isIt = [&](const Child& child) { return child.object == &object; };
  const auto found = std::find_if(children_.begin(), children_.end(), isIt);
  return found == children_.end() ? nullptr : &found->control->widget();
}

void Surface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(event->rect(), ToQColor(container_.BackColor));
  painter.drawPixmap(0, 0, picture_);
  bool marked = false;
  for (const Object* object : BackToFront(container_)) {
    if (!object->IsGraphical()) continue;
    // A flight is to be seen before mountain and ground, but behind the shell or ball that leaves it.
    if (!marked && As<const Shape>(*object) != nullptr) {
      PaintMarks(painter);
      marked = true;
    }
    if (!object->IsVisible()) continue;
    if (event->region().intersects(
            ToQRect(zoom_.Around(FromQt(PaintedArea(*object, session_.pictures())))))) {
      painter.setTransform(QTransform::fromScale(zoom_.factor(), zoom_.factor()));
      PaintObject(painter, *object, session_.pictures());
    }
  }
  if (!marked) PaintMarks(painter);
}

void Surface::PaintMarks(QPainter& painter) const {
  painter.resetTransform();
  layer_.Paint(painter);
  if (const Surface* below = SurfaceShowingThrough()) {
    painter.translate(-pos());
    below->layer_.Paint(painter);
  }
}

Object* Surface::Under(const QPoint& place) const {
  // The form's own surface fills its window.
  const QPoint at = mapTo(window(), place);
  const double twips = twipsPerPixel / zoom_.factor();
  return ObjectAt(container_.form(), (at.x() + 0.5) * twips, (at.y() + 0.5) * twips);
}

// What is painted has no widget that could show its tool tip.
bool Surface::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const double twips = twipsPerPixel / zoom_.factor();
  const Object* tipped = session_.assistance().TippedAt(container_, (help->pos().x() + 0.5) * twips,
                                                        (help->pos().y() + 0.5) * twips);
  if (tipped == nullptr) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help->globalPos(), ToQString(session_.assistance().ToolTipOf(*tipped)), this);
  }
  return true;
}

void Surface::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed_ = Under(event->position().toPoint());
}

void Surface::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  Object* released = Under(event->position().toPoint());
  if (std::exchange(pressed_, nullptr) == released) session_.Click(*released);
}

void Surface::mouseMoveEvent(QMouseEvent* event) {
  if (!session_.PointerMoved(event->globalPosition().toPoint())) return;
  Object* under = Under(event->position().toPoint());
  session_.Run([under] { UserMovesOnto(*under); });
}

}  // namespace quintara::desktop
