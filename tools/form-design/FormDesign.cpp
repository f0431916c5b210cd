// form-design OUTPUT.cpp [FORM.ui ...]: the design table of all forms, for the library kontorwerk_designs.
// With "@FILE" in place of the forms their paths come from FILE, one a line. Every fault of every form is reported
// before the program gives up; the output is then left as it was.
#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <algorithm>
#include <cstdio>

#include "tools/form-design/FormReader.h"
#include "tools/form-design/TableWriter.h"

namespace {

using kontorwerk::FormErrors;
using kontorwerk::ScreenDesign;

QStringList PathsIn(const QStringList& arguments) {
  QStringList paths;
  for (const QString& argument : arguments) {
    if (!argument.startsWith('@')) {
      paths.append(argument);
      continue;
    }
    QFile list(argument.mid(1));
    if (list.open(QIODevice::ReadOnly)) paths += QString::fromUtf8(list.readAll()).split('\n', Qt::SkipEmptyParts);
  }
  return paths;
}

std::vector<ScreenDesign> ReadForms(const QStringList& paths, FormErrors& errors) {
  std::vector<ScreenDesign> screens;
  for (const QString& path : paths) {
    auto screen = kontorwerk::ReadForm(path, errors);
    if (!screen) continue;
    const auto same = [&](const ScreenDesign& other) { return other.screen == screen->screen; };
    if (std::any_of(screens.begin(), screens.end(), same))
      errors.Add(path, 1, QStringLiteral("another form has the same name"));
    screens.push_back(std::move(*screen));
  }
  return screens;
}

bool WriteFile(const QString& path, const QByteArray& content) {
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments().mid(1);
  if (arguments.isEmpty()) {
    std::fputs("usage: form-design OUTPUT.cpp [FORM.ui ... | @FILE]\n", stderr);
    return 2;
  }
  FormErrors errors;
  const std::vector<ScreenDesign> screens = ReadForms(PathsIn(arguments.mid(1)), errors);
  for (const QString& line : errors.lines) std::fprintf(stderr, "%s\n", qPrintable(line));
  if (!errors.lines.isEmpty()) return 1;
  if (WriteFile(arguments.first(), kontorwerk::DesignTableSource(screens))) return 0;
  std::fprintf(stderr, "form-design: cannot write %s\n", qPrintable(arguments.first()));
  return 1;
}
