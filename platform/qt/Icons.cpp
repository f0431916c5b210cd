// Draws a picture from its file each time it is asked for, so that size, scaling and colours are always right.
#include "platform/qt/Icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "platform/qt/Theme.h"

namespace kontorwerk {
namespace {

QColor ColourOf(IconTone tone, QIcon::Mode mode) {
  const ThemeColours& colours = Theme::Colours();
  if (mode == QIcon::Disabled) return colours.disabled;
  switch (tone) {
    case IconTone::Accent:
      return colours.accent;
    case IconTone::OnAccent:
      return colours.onAccent;
    case IconTone::Danger:
      return colours.danger;
    case IconTone::Muted:
      return colours.muted;
    case IconTone::Text:
      break;
  }
  return colours.text;
}

// Draws the file anew for each size and colour; the drawings name their colour `currentColor`.
class LineIconEngine final : public QIconEngine {
 public:
  LineIconEngine(QByteArray drawing, IconTone tone) : drawing_(std::move(drawing)), tone_(tone) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QByteArray coloured = drawing_;
    coloured.replace("currentColor", ColourOf(tone_, mode).name().toLatin1());
    QSvgRenderer renderer(coloured);
    painter->setRenderHint(QPainter::Antialiasing);
    renderer.render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
    return pixmap(size, mode, state);
  }

  QIconEngine* clone() const override { return new LineIconEngine(*this); }

 private:
  QByteArray drawing_;
  IconTone tone_;
};

}  // namespace

QIcon ThemeIcon(const QString& name, IconTone tone) {
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  if (name.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new LineIconEngine(file.readAll(), tone));
}

}  // namespace kontorwerk
