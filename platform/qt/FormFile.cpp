// Reads a form once: notes what is bound, renames what the loader would misread, takes the row templates out.
#include "platform/qt/FormFile.h"

#include <QDomDocument>
#include <QFile>
#include <QSet>
#include <algorithm>

#include "platform/Control.h"
#include "platform/Screen.h"
#include "platform/qt/FormClasses.h"
#include "platform/qt/QtText.h"

namespace kontorwerk {
namespace {

constexpr int kRowsInView = 14;

// The value element of a property, null if the element has none of that name.
QDomElement PropertyOf(const QDomElement& element, const QString& name) {
  for (QDomElement child = element.firstChildElement(QStringLiteral("property")); !child.isNull();
       child = child.nextSiblingElement(QStringLiteral("property")))
    if (child.attribute(QStringLiteral("name")) == name) return child;
  return {};
}

QString PropertyText(const QDomElement& element, const QString& name) {
  return PropertyOf(element, name).firstChildElement().text();
}

bool IsContainer(const QDomElement& element) {
  static const QSet<QString> tags = {QStringLiteral("widget"), QStringLiteral("layout"), QStringLiteral("item")};
  return tags.contains(element.tagName());
}

}  // namespace

// Goes through the elements of a form once.
class FormScan {
 public:
  FormScan(FormFile& form, QDomDocument& document) : form_(form), document_(document) {}

  void Run() {
    QDomElement root = document_.documentElement().firstChildElement(QStringLiteral("widget"));
    if (root.attribute(QStringLiteral("class")) != QLatin1String("QMainWindow")) {
      form_.error_ = QStringLiteral("the root of a form is a QMainWindow");
      return;
    }
    Visit(root);
    for (const QDomElement& row : templates_) TakeOut(row);
    // The order of work is the core's; the toolkit's own would miss the rows that were taken out.
    QDomElement ui = document_.documentElement();
    ui.removeChild(ui.firstChildElement(QStringLiteral("tabstops")));
    form_.xml_ = document_.toByteArray();
  }

 private:
  void Visit(QDomElement& parent) {
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
      const QString tag = child.tagName();
      if (tag == QLatin1String("widget")) VisitWidget(child);
      if (tag == QLatin1String("action")) Add(child, QStringLiteral("MenuEntry"));
      if (IsContainer(child)) {
        const bool isRow = PropertyText(child, QStringLiteral("rowTemplate")) == QLatin1String("true");
        if (isRow) templates_.append(child);
        inRow_ = inRow_ || isRow;
        Visit(child);
        if (isRow) inRow_ = false;
      }
    }
  }

  void VisitWidget(QDomElement& widget) {
    for (const char* property : {"follows", "followsNot"})
      form_.followed_ += PropertyText(widget, QLatin1String(property)).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    const QString kind = KindOfClass().value(widget.attribute(QStringLiteral("class")));
    const bool isPicture = PropertyText(widget, QStringLiteral("kind")) == QLatin1String("Image");
    RenameIcon(widget);
    if (!kind.isEmpty()) Add(widget, isPicture ? QStringLiteral("Image") : kind);
  }

  // The widgets have a property `icon` of another type: ours takes the name `picture` on its way to them.
  void RenameIcon(QDomElement& widget) {
    QDomElement property = PropertyOf(widget, QStringLiteral("icon"));
    if (property.isNull() || property.firstChildElement().tagName() != QLatin1String("string")) return;
    property.setAttribute(QStringLiteral("name"), QStringLiteral("picture"));
    property.setAttribute(QStringLiteral("stdset"), QStringLiteral("0"));
    form_.icons_.append(property.firstChildElement().text());
  }

  void Add(QDomElement& element, const QString& kind) {
    if (kind == QLatin1String("MenuEntry")) RenameIcon(element);
    const QString name = element.attribute(QStringLiteral("name"));
    if (name.isEmpty() || name.startsWith(QLatin1String("deco"))) return;
    const FormName parsed = ParseFormName(name);
    form_.widgets_.push_back({name, parsed.name, parsed.index, kind, inRow_});
  }

  // The row becomes a form of its own; its place keeps an empty container of the same name.
  void TakeOut(QDomElement row) {
    RowTemplate taken;
    taken.name = row.attribute(QStringLiteral("name"));
    taken.scrollBar = PropertyText(row, QStringLiteral("scroll"));
    if (taken.scrollBar.isEmpty()) taken.scrollBar = QStringLiteral("VScroll1");
    taken.rows = PropertyText(row, QStringLiteral("rows")).toInt();
    if (taken.rows < 1) taken.rows = kRowsInView;
    QDomDocument own;
    QDomElement ui = own.createElement(QStringLiteral("ui"));
    ui.setAttribute(QStringLiteral("version"), QStringLiteral("4.0"));
    own.appendChild(ui);
    ui.appendChild(own.importNode(row, true));
    taken.form = own.toByteArray();
    form_.rows_.push_back(std::move(taken));
    for (QDomElement child = row.firstChildElement(); !child.isNull();) {
      const QDomElement next = child.nextSiblingElement();
      if (child.tagName() != QLatin1String("property")) row.removeChild(child);
      child = next;
    }
  }

  FormFile& form_;
  QDomDocument& document_;
  QList<QDomElement> templates_;
  bool inRow_ = false;
};

FormFile::FormFile(const QByteArray& xml, const QString& source) : source_(source) {
  QDomDocument document;
  QString message;
  int line = 0;
  if (!document.setContent(xml, &message, &line)) {
    error_ = QStringLiteral("line %1: %2").arg(line).arg(message);
    return;
  }
  FormScan(*this, document).Run();
}

FormFile FormFile::Of(const Screen& screen) {
  const QString name = ToQt(screen.Name()) + QStringLiteral(".ui");
  QFile file(QStringLiteral(":/forms/") + name);
  FormFile form(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), name);
  if (!file.isOpen()) form.error_ = QStringLiteral("there is no such form");
  return form;
}

namespace {

class FormComparison {
 public:
  FormComparison(const Screen& screen, const FormFile& form) : screen_(screen), form_(form) {}

  std::vector<std::string> Run() {
    if (!form_.Error().isEmpty()) {
      Add(form_.Error());
      return faults_;
    }
    for (const FormWidget& widget : form_.Widgets()) CheckWidget(widget);
    for (const Control* control : screen_.Controls()) CheckControl(*control);
    for (const RowTemplate& row : form_.Rows())
      if (screen_.Find(Name(row.scrollBar)) == nullptr)
        Add(QStringLiteral("the row %1 scrolls with %2, which is no control").arg(row.name, row.scrollBar));
    for (const QString& name : form_.Followed())
      if (Count(name) == 0) Add(QStringLiteral("decoration follows %1, which is no control").arg(name));
    for (const QString& icon : form_.Icons())
      if (!QFile::exists(QStringLiteral(":/icons/%1.svg").arg(icon))) Add(QStringLiteral("no picture %1").arg(icon));
    return faults_;
  }

 private:
  static std::string Name(const QString& name) { return FromQt(name).value_or(std::string()); }

  [[nodiscard]] qsizetype Count(const QString& name) const {
    return std::count_if(form_.Widgets().begin(), form_.Widgets().end(),
                         [&](const FormWidget& widget) { return widget.name == name || widget.control == name; });
  }

  void CheckWidget(const FormWidget& widget) {
    if (!seen_.contains(widget.name)) {
      seen_.insert(widget.name);
    } else {
      Add(QStringLiteral("%1 occurs twice").arg(widget.name));
    }
    if (widget.inRow) {
      CheckRowWidget(widget);
      return;
    }
    const Control* control = screen_.Find(Name(widget.control), widget.index);
    if (control == nullptr) {
      Add(QStringLiteral("surplus: %1 (%2) has no control").arg(widget.name, widget.kind));
    } else {
      CheckKind(*control, widget);
    }
  }

  void CheckRowWidget(const FormWidget& widget) {
    if (!screen_.IsArray(Name(widget.control)))
      Add(QStringLiteral("surplus: %1 (%2) stands in a row and is no array").arg(widget.name, widget.kind));
    else if (const Control* first = screen_.Find(Name(widget.control), 0))
      CheckKind(*first, widget);
  }

  void CheckKind(const Control& control, const FormWidget& widget) {
    const QString kind = ToQt(KindName(control.Kind()));
    if (kind != widget.kind)
      Add(QStringLiteral("wrong kind: %1 is a %2 in the form and a %3 in the screen")
              .arg(widget.name, widget.kind, kind));
  }

  void CheckControl(const Control& control) {
    if (control.Kind() == ControlKind::Timer) return;
    const QString name = ToQt(control.Name());
    const bool found = std::any_of(form_.Widgets().begin(), form_.Widgets().end(), [&](const FormWidget& widget) {
      return widget.control == name && (widget.inRow ? control.Index() >= 0 : widget.index == control.Index());
    });
    if (found) return;
    const QString element = control.Index() < 0 ? name : QStringLiteral("%1(%2)").arg(name).arg(control.Index());
    Add(QStringLiteral("missing: %1 (%2) has no widget").arg(element, ToQt(KindName(control.Kind()))));
  }

  void Add(const QString& fault) {
    faults_.push_back(QStringLiteral("%1: %2").arg(ToQt(screen_.Name()), fault).toStdString());
  }

  const Screen& screen_;
  const FormFile& form_;
  QSet<QString> seen_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> CheckForm(const Screen& screen, const FormFile& form) {
  return FormComparison(screen, form).Run();
}

std::vector<std::string> CheckForm(const Screen& screen) { return CheckForm(screen, FormFile::Of(screen)); }

}  // namespace kontorwerk
