// Windows-1252 against UTF-16, character by character with the table of the core.
#include "platform/qt/QtText.h"

#include <QList>

#include "store/Text.h"

namespace kontorwerk {

QString ToQt(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* out = result.data();
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    *out++ = byte >= 0x80 && byte < 0xA0 ? QChar(detail::kHighCodePoints[byte - 0x80U]) : QChar(char16_t{byte});
  }
  return result;
}

QString ToQtLines(std::string_view text) { return ToQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n")); }

std::optional<std::string> FromQt(const QString& text) {
  std::string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar c : text) {
    const int byte = detail::ByteOf(c.unicode());
    if (byte < 0) return std::nullopt;
    result += static_cast<char>(byte);
  }
  return result;
}

std::optional<std::string> FromQtLines(const QString& text) {
  QString lines = text;
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return FromQt(lines.replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}

QString ForeignCharacters(const QString& text) {
  QString foreign;
  for (const char32_t c : text.toUcs4())
    if (const QString character = QString::fromUcs4(&c, 1); detail::ByteOf(c) < 0 && !foreign.contains(character))
      foreign += character;
  return foreign;
}

}  // namespace kontorwerk
