// The two sets of colours, the palette made of them, and the sheet with its marks filled in.
#include "platform/qt/Theme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDBusVariant>
#include <QEvent>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QProxyStyle>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTimer>

namespace kontorwerk {
namespace {

constexpr int kPortalAnswerMs = 300;
constexpr uint kPortalDark = 1;  // 0 is no preference
constexpr uint kPortalLight = 2;

const ThemeColours& LightColours() {
  static const ThemeColours colours = {.window = "#F4F6F7",
                                       .surface = "#FFFFFF",
                                       .raised = "#EDF0F2",
                                       .hover = "#E6EBED",
                                       .pressed = "#D9E0E3",
                                       .alternate = "#F8FAFA",
                                       .border = "#DCE1E5",
                                       .strongBorder = "#B4BDC5",
                                       .text = "#1B2329",
                                       .muted = "#56626C",
                                       .disabled = "#98A2AB",
                                       .accent = "#0F6E6E",
                                       .accentHover = "#0C5F5F",
                                       .accentPressed = "#0A4F4F",
                                       .onAccent = "#FFFFFF",
                                       .accentSoft = "#D8ECEB",
                                       .danger = "#B3261E",
                                       .dangerSoft = "#FBE9E7",
                                       .warning = "#B7791F",
                                       .warningSoft = "#FDF3DC"};
  return colours;
}

const ThemeColours& DarkColours() {
  static const ThemeColours colours = {.window = "#181C1F",
                                       .surface = "#20262A",
                                       .raised = "#293036",
                                       .hover = "#323B41",
                                       .pressed = "#3C464D",
                                       .alternate = "#242B2F",
                                       .border = "#363F46",
                                       .strongBorder = "#55616A",
                                       .text = "#E8ECEE",
                                       .muted = "#A5B0B8",
                                       .disabled = "#6C7780",
                                       .accent = "#4FB8B0",
                                       .accentHover = "#67C6BF",
                                       .accentPressed = "#3FA49C",
                                       .onAccent = "#0B2422",
                                       .accentSoft = "#234744",
                                       .danger = "#FF8A80",
                                       .dangerSoft = "#472623",
                                       .warning = "#E0A83C",
                                       .warningSoft = "#41351C"};
  return colours;
}

Theme::Tone currentTone = Theme::Tone::Light;

QHash<QString, QColor> NamedColours(const ThemeColours& colours) {
  return {{"window", colours.window},
          {"surface", colours.surface},
          {"raised", colours.raised},
          {"hover", colours.hover},
          {"pressed", colours.pressed},
          {"alternate", colours.alternate},
          {"border", colours.border},
          {"strongBorder", colours.strongBorder},
          {"text", colours.text},
          {"muted", colours.muted},
          {"disabled", colours.disabled},
          {"accent", colours.accent},
          {"accentHover", colours.accentHover},
          {"accentPressed", colours.accentPressed},
          {"onAccent", colours.onAccent},
          {"accentSoft", colours.accentSoft},
          {"danger", colours.danger},
          {"dangerSoft", colours.dangerSoft},
          {"warning", colours.warning},
          {"warningSoft", colours.warningSoft}};
}

QPalette PaletteOf(const ThemeColours& colours) {
  QPalette palette;
  const auto set = [&](QPalette::ColorRole role, const QColor& colour, const QColor& disabled) {
    palette.setColor(role, colour);
    palette.setColor(QPalette::Disabled, role, disabled);
  };
  set(QPalette::Window, colours.window, colours.window);
  set(QPalette::WindowText, colours.text, colours.disabled);
  set(QPalette::Base, colours.surface, colours.raised);
  set(QPalette::AlternateBase, colours.alternate, colours.raised);
  set(QPalette::Text, colours.text, colours.disabled);
  set(QPalette::Button, colours.raised, colours.window);
  set(QPalette::ButtonText, colours.text, colours.disabled);
  set(QPalette::Highlight, colours.accent, colours.disabled);
  set(QPalette::HighlightedText, colours.onAccent, colours.surface);
  set(QPalette::PlaceholderText, colours.muted, colours.disabled);
  set(QPalette::ToolTipBase, colours.surface, colours.surface);
  set(QPalette::ToolTipText, colours.text, colours.text);
  set(QPalette::Link, colours.accent, colours.disabled);
  set(QPalette::LinkVisited, colours.accent, colours.disabled);
  return palette;
}

// The sheet with the colours of the tone and sizes in points of the system's font.
QString SheetOf(const ThemeColours& colours, Theme::Tone tone, double points) {
  QFile file(QStringLiteral(":/theme/kontorwerk.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QString rules = QString::fromUtf8(file.readAll());
  const QHash<QString, QColor> named = NamedColours(colours);
  static const QRegularExpression mark(QStringLiteral("@(?:pt\\(([0-9.]+)\\)|([a-zA-Z]+))"));
  QString sheet;
  qsizetype from = 0;
  for (const QRegularExpressionMatch& match : mark.globalMatch(rules)) {
    sheet += QStringView(rules).mid(from, match.capturedStart() - from);
    from = match.capturedEnd();
    const QString name = match.captured(2);
    if (name.isEmpty())
      sheet += QStringLiteral("%1pt").arg(match.captured(1).toDouble() * points);
    else if (name == QLatin1String("tone"))
      sheet += tone == Theme::Tone::Dark ? QStringLiteral("dark") : QStringLiteral("light");
    else
      sheet += named.value(name).name();
  }
  sheet += QStringView(rules).mid(from);
  return sheet;
}

class KontorwerkStyle final : public QProxyStyle {
 public:
  KontorwerkStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    switch (hint) {
      case SH_EtchDisabledText:
      case SH_ComboBox_Popup:
      case SH_DitherDisabledText:
        return 0;
      case SH_UnderlineShortcut:
        return 1;
      case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
      default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_ButtonIconSize:
      case PM_SmallIconSize:
        return 18;
      case PM_LayoutHorizontalSpacing:
      case PM_LayoutVerticalSpacing:
        return 8;
      case PM_LayoutLeftMargin:
      case PM_LayoutTopMargin:
      case PM_LayoutRightMargin:
      case PM_LayoutBottomMargin:
        return 8;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }
};

}  // namespace

Theme::Theme(QApplication& application) : application_(application) {
  startTone_ = application.palette().color(QPalette::Window).lightness() < 128 ? Tone::Dark : Tone::Light;
  application.setStyle(new KontorwerkStyle);
  Apply();
  application.installEventFilter(this);
  QDBusConnection::sessionBus().connect(
      QString(), QStringLiteral("/org/freedesktop/portal/desktop"), QStringLiteral("org.freedesktop.portal.Settings"),
      QStringLiteral("SettingChanged"), this, SLOT(OnDesktopSetting(QString, QString)));
}

Theme::~Theme() = default;

Theme::Tone Theme::CurrentTone() { return currentTone; }

const ThemeColours& Theme::Colours() { return currentTone == Tone::Dark ? DarkColours() : LightColours(); }

QColor Theme::ShownText(Colour colour) {
  const QColor wanted(colour.Red(), colour.Green(), colour.Blue());
  if (wanted == Qt::black) return Colours().text;
  if (currentTone == Tone::Light || wanted.lightness() > 150) return wanted;
  return QColor::fromHsl(wanted.hslHue(), qMin(wanted.hslSaturation(), 220), 175);
}

QColor Theme::ShownBackground(Colour colour) {
  if (colour == kWhite) return Colours().surface;
  const QColor wanted(colour.Red(), colour.Green(), colour.Blue());
  if (currentTone == Tone::Light) return wanted;
  return QColor::fromHsl(wanted.hslHue(), wanted.hslSaturation(), qMin(wanted.lightness(), 90));
}

bool Theme::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::ApplicationFontChange && object == &application_)
    QTimer::singleShot(0, this, &Theme::Apply);
  return QObject::eventFilter(object, event);
}

void Theme::OnDesktopSetting(const QString& group, const QString& key) {
  if (group == QLatin1String("org.freedesktop.appearance") && key == QLatin1String("color-scheme")) Apply();
}

Theme::Tone Theme::DesktopTone() const {
  const QString wish = qEnvironmentVariable("KONTORWERK_THEME");
  if (wish == QLatin1String("light")) return Tone::Light;
  if (wish == QLatin1String("dark")) return Tone::Dark;
  QDBusInterface portal(QStringLiteral("org.freedesktop.portal.Desktop"),
                        QStringLiteral("/org/freedesktop/portal/desktop"),
                        QStringLiteral("org.freedesktop.portal.Settings"));
  if (!portal.isValid()) return startTone_;
  portal.setTimeout(kPortalAnswerMs);
  const QDBusReply<QDBusVariant> reply =
      portal.call(QStringLiteral("Read"), QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"));
  if (!reply.isValid()) return startTone_;
  QVariant value = reply.value().variant();
  if (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  if (value.toUInt() == kPortalDark) return Tone::Dark;
  return value.toUInt() == kPortalLight ? Tone::Light : startTone_;
}

void Theme::Apply() {
  currentTone = DesktopTone();
  const double points = application_.font().pointSizeF() > 0 ? application_.font().pointSizeF() : 10.0;
  application_.setPalette(PaletteOf(Colours()));
  application_.setStyleSheet(SheetOf(Colours(), currentTone, points));
  emit Changed();
}

}  // namespace kontorwerk
