// Small forms as text, for tests.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/qt/FormFile.h"

namespace kontorwerk {

// A form of the screen T with the widgets one below the other; `more` stands beside its central widget.
inline FormFile FormOf(const QString& widgets, const QString& more = {}) {
  const QString xml =
      QStringLiteral(
          "<ui version=\"4.0\"><class>T</class><widget class=\"QMainWindow\" name=\"T\">"
          "<widget class=\"QWidget\" name=\"decoCentral\"><layout class=\"QVBoxLayout\" name=\"decoLayout\">"
          "%1</layout></widget>%2</widget></ui>")
          .arg(widgets, more);
  return FormFile(xml.toUtf8(), QStringLiteral("T.ui"));
}

inline QString WidgetText(const QString& type, const QString& name, const QString& properties = {}) {
  return QStringLiteral("<item><widget class=\"%1\" name=\"%2\">%3</widget></item>").arg(type, name, properties);
}

inline QString PropertyText(const QString& name, const QString& value) {
  return QStringLiteral("<property name=\"%1\" stdset=\"0\"><string>%2</string></property>").arg(name, value);
}

}  // namespace kontorwerk
