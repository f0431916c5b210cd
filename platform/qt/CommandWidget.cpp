// Sizes and drawing of buttons, cards and centres; the frame comes from the sheet of the look.
#include "platform/qt/CommandWidget.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace kontorwerk {
namespace {

constexpr int kButtonPad = 6;
constexpr int kButtonColumns = 12;  // characters that a button has room for at least
constexpr int kPad = 12;
constexpr int kGap = 12;
constexpr int kCardTile = 40;
constexpr int kCardIcon = 24;
constexpr int kCentreIcon = 24;
constexpr int kHelpColumns = 34;  // characters of the line of help before it wraps

}  // namespace

CommandWidget::CommandWidget(QWidget* parent) : QPushButton(parent) { setAttribute(Qt::WA_Hover); }

CommandWidget::Look CommandWidget::CurrentLook() const {
  const QString role = property("role").toString();
  if (role == QLatin1String("card")) return Look::Card;
  return role == QLatin1String("centre") ? Look::Centre : Look::Button;
}

QFont CommandWidget::CaptionFont(Look look) const {
  QFont caption = font();
  caption.setWeight(look == Look::Card || property("current").toBool() ? QFont::DemiBold : QFont::Medium);
  return caption;
}

QSize CommandWidget::PanelSize(Look look) const {
  const QFontMetrics caption(CaptionFont(look));
  const QFontMetrics help(font());
  const int captionWidth = caption.size(Qt::TextShowMnemonic, text()).width();
  const QString line = property("help").toString();
  if (look == Look::Centre) return {2 * kPad + kCentreIcon + kGap + captionWidth, caption.height() + 2 * kPad};
  int width = captionWidth;
  int height = caption.height();
  if (!line.isEmpty()) {
    const int wrap = help.averageCharWidth() * kHelpColumns;
    const QRect lines = help.boundingRect(0, 0, std::max(wrap, captionWidth), 1000, Qt::TextWordWrap, line);
    width = std::max(width, std::min(wrap, lines.width() + 2));
    height += 4 + lines.height();
  }
  return {2 * kPad + kCardTile + kGap + width, 2 * kPad + std::max(height, kCardTile)};
}

// Buttons beside each other are of one height, with a picture or without.
QSize CommandWidget::sizeHint() const {
  const Look look = CurrentLook();
  if (look != Look::Button) return PanelSize(look);
  const int height = std::max(fontMetrics().height(), iconSize().height()) + 2 * kButtonPad;
  const bool narrow = text().isEmpty() || property("compact").toBool();
  if (property("rowCell").toBool()) return {height - kButtonPad, height - kButtonPad};
  return QPushButton::sizeHint().expandedTo(
      {narrow ? height : fontMetrics().averageCharWidth() * kButtonColumns, height});
}

// Never narrower than its text.
QSize CommandWidget::minimumSizeHint() const { return sizeHint(); }

void CommandWidget::paintEvent(QPaintEvent* event) {
  const Look look = CurrentLook();
  if (look == Look::Button) {
    QPushButton::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  option.icon = QIcon();
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);

  const ThemeColours& colours = Theme::Colours();
  const bool current = property("current").toBool();
  const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
  const int side = look == Look::Card ? kCardTile : kCentreIcon;
  const QRect tile(kPad, (height() - side) / 2, side, side);
  QRect pictureRect = tile;
  if (look == Look::Card) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? colours.accentSoft : colours.raised);
    painter.drawRoundedRect(tile, 8, 8);
    const int inset = (kCardTile - kCardIcon) / 2;
    pictureRect = tile.adjusted(inset, inset, -inset, -inset);
  }
  const IconTone tone = look == Look::Card || current ? IconTone::Accent : IconTone::Text;
  ThemeIcon(property("picture").toString(), tone).paint(&painter, pictureRect, Qt::AlignCenter, mode);

  const QRect content(tile.right() + kGap, kPad / 2, width() - tile.right() - kGap - kPad, height() - kPad);
  const QString help = property("help").toString();
  const QFontMetrics caption(CaptionFont(look));
  const QRect helpSize = QFontMetrics(font()).boundingRect(0, 0, content.width(), 1000, Qt::TextWordWrap, help);
  const int textHeight = caption.height() + (help.isEmpty() ? 0 : 4 + helpSize.height());
  const QRect captionRect(content.left(), (height() - textHeight) / 2, content.width(), caption.height());
  painter.setFont(CaptionFont(look));
  painter.setPen(!isEnabled() ? colours.disabled : current ? colours.accent : colours.text);
  painter.drawText(captionRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
  if (help.isEmpty()) return;
  painter.setFont(font());
  painter.setPen(isEnabled() ? colours.muted : colours.disabled);
  painter.drawText(QRect(content.left(), captionRect.bottom() + 5, content.width(), helpSize.height()),
                   Qt::AlignLeft | Qt::TextWordWrap, help);
}

}  // namespace kontorwerk
