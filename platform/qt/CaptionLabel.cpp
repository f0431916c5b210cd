// Clicks of a label; what they mean is the tie's business.
#include "platform/qt/CaptionLabel.h"

#include <QMouseEvent>
#include <QVariant>

#include "platform/qt/Icons.h"

namespace kontorwerk {
namespace {

constexpr int kPictureSize = 24;

}  // namespace

CaptionLabel::CaptionLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void CaptionLabel::LoadPicture() {
  const QString picture = property("picture").toString();
  if (picture.isEmpty()) return;
  const int size = property("pictureSize").toInt();
  const int side = size > 0 ? size : kPictureSize;
  setPixmap(ThemeIcon(picture).pixmap(QSize(side, side), devicePixelRatioF()));
}

void CaptionLabel::enterEvent(QEnterEvent* event) {
  if (isClickable && isClickable())
    setCursor(Qt::PointingHandCursor);
  else
    unsetCursor();
  QLabel::enterEvent(event);
}

void CaptionLabel::mousePressEvent(QMouseEvent* event) {
  if (!onClick || event->button() != Qt::LeftButton) QLabel::mousePressEvent(event);
}

void CaptionLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (onClick && event->button() == Qt::LeftButton && rect().contains(event->pos()))
    onClick();
  else
    QLabel::mouseReleaseEvent(event);
}

void CaptionLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (onDoubleClick && event->button() == Qt::LeftButton)
    onDoubleClick();
  else
    QLabel::mouseDoubleClickEvent(event);
}

}  // namespace kontorwerk
