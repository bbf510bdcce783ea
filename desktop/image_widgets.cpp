#include "desktop/image_widgets.h"

#include <QtGui/QKeyEvent>

#include "desktop/keyboard.h"
#include "desktop/session.h"

namespace quintara::desktop {

ImageButton::ImageButton(Image& image, QWidget& parent, Session& session)
    : QAbstractButton(&parent), Control(image, *this, session) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  connect(this, &QAbstractButton::clicked, this, [&image, &session] { session.Click(image); });
}

void ImageButton::keyPressEvent(QKeyEvent* event) {
  if (PressesButton(*event)) return click();
  QAbstractButton::keyPressEvent(event);
}

ReadOut::ReadOut(Label& label, QWidget& parent, Session& session)
    : QLabel(&parent), Control(label, *this, session) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

}  // namespace quintara::desktop
