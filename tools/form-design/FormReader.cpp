// Reads the whole file into elements first, then walks them once; errors name the line where the element begins.
#include "tools/form-design/FormReader.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QXmlStreamReader>
#include <algorithm>

#include "platform/qt/FormClasses.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// One element of the file with all that lies inside it.
struct Element {
  QString tag;
  QHash<QString, QString> attributes;
  QString text;
  qint64 line = 0;
  std::vector<Element> children;

  [[nodiscard]] const Element* Child(QStringView name) const {
    for (const Element& child : children)
      if (child.tag == name) return &child;
    return nullptr;
  }
  // The <property> or <attribute> of that name, its value element.
  [[nodiscard]] const Element* Value(QStringView name) const {
    for (const Element& child : children)
      if ((child.tag == u"property" || child.tag == u"attribute") && child.attributes.value("name") == name)
        return child.children.empty() ? nullptr : &child.children.front();
    return nullptr;
  }
  [[nodiscard]] QString Text(QStringView name) const {
    const Element* value = Value(name);
    return value == nullptr ? QString() : value->text;
  }
  [[nodiscard]] bool Flag(QStringView name, bool otherwise) const {
    const Element* value = Value(name);
    return value == nullptr ? otherwise : value->text == u"true";
  }
};

Element ReadElement(QXmlStreamReader& reader) {
  Element element;
  element.tag = reader.name().toString();
  element.line = reader.lineNumber();
  for (const auto& attribute : reader.attributes())
    element.attributes.insert(attribute.name().toString(), attribute.value().toString());
  while (!reader.atEnd()) {
    switch (reader.readNext()) {
      case QXmlStreamReader::StartElement:
        element.children.push_back(ReadElement(reader));
        break;
      case QXmlStreamReader::Characters:
        element.text += reader.text();
        break;
      case QXmlStreamReader::EndElement:
        return element;
      default:
        break;
    }
  }
  return element;
}

bool TakesTab(const QString& kind) {
  static const QSet<QString> others = {"Label", "Image", "MenuEntry", "StatusBar", "ProgressBar", "ScrollBar"};
  return !others.contains(kind);
}

class FormReader {
 public:
  FormReader(const QString& path, FormErrors& errors) : path_(path), errors_(errors) {}

  std::optional<ScreenDesign> Read() {
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
      errors_.Add(path_, 1, QStringLiteral("cannot be read"));
      return std::nullopt;
    }
    QXmlStreamReader reader(&file);
    Element form;
    if (reader.readNextStartElement()) form = ReadElement(reader);
    while (!reader.atEnd()) reader.readNext();
    if (reader.hasError()) {
      errors_.Add(path_, reader.lineNumber(), reader.errorString());
      return std::nullopt;
    }
    return ReadScreen(form);
  }

 private:
  std::optional<ScreenDesign> ReadScreen(const Element& form) {
    const Element* root = form.tag == u"ui" ? form.Child(u"widget") : nullptr;
    if (root == nullptr || root->attributes.value("class") != u"QMainWindow") {
      errors_.Add(path_, form.line, QStringLiteral("the root of a form is a QMainWindow"));
      return std::nullopt;
    }
    const QString name = root->attributes.value("name");
    if (name != QFileInfo(path_).completeBaseName())
      errors_.Add(path_, root->line, QStringLiteral("the root must be named like the file, not '%1'").arg(name));
    screen_.screen = Bytes(name, root->line);
    screen_.caption = Bytes(root->Text(u"windowTitle"), root->line);
    ReadChildren(*root, name);
    ReadTabOrder(form.Child(u"tabstops"));
    return std::move(screen_);
  }

  void ReadChildren(const Element& parent, const QString& container) {
    for (const Element& child : parent.children) {
      if (child.tag == u"widget") {
        ReadWidget(child, container);
        ReadChildren(child, child.attributes.value("name"));
      } else if (child.tag == u"action") {
        AddControl(child, QStringLiteral("MenuEntry"), container);
      } else if (child.tag == u"layout" || child.tag == u"item") {
        ReadChildren(child, container);
      }
    }
  }

  void ReadWidget(const Element& widget, const QString& container) {
    const QString kind = KindOfClass().value(widget.attributes.value("class"));
    if (kind.isEmpty()) return;
    AddControl(widget, widget.Text(u"kind") == u"Image" ? QStringLiteral("Image") : kind, container);
  }

  void AddControl(const Element& element, const QString& kind, const QString& container) {
    const QString name = element.attributes.value("name");
    if (name.startsWith(u"deco") || name.isEmpty()) return;
    if (names_.contains(name)) {
      errors_.Add(path_, element.line, QStringLiteral("'%1' occurs twice").arg(name));
      return;
    }
    ControlDesign control;
    control.name = Bytes(ControlName(name), element.line);
    control.kind = Bytes(kind, element.line);
    control.group = Bytes(container, element.line);
    control.toolTip = Bytes(element.Text(u"toolTip"), element.line);
    ReadCaption(element, kind, control);
    ReadState(element, kind, control);
    ReadEntries(element, kind, control);
    ReadRange(element, kind, control);
    if (TakesTab(kind) && element.Text(u"focusPolicy") != u"Qt::NoFocus") focusable_.push_back(name);
    names_.insert(name, screen_.controls.size());
    screen_.controls.push_back(std::move(control));
  }

  // An element of a fixed array is "Name_0" in the form and "Name(0)" in the table.
  static QString ControlName(const QString& name) {
    const FormName parsed = ParseFormName(name);
    return parsed.index < 0 ? name : QStringLiteral("%1(%2)").arg(parsed.name).arg(parsed.index);
  }

  void ReadCaption(const Element& element, const QString& kind, ControlDesign& control) {
    const qint64 line = element.line;
    if (kind == u"TextBox" || kind == u"RichTextBox") {
      if (element.Value(u"html") != nullptr) errors_.Add(path_, line, QStringLiteral("a text of a form is plain"));
      control.text = Bytes(element.Text(element.Value(u"text") != nullptr ? u"text" : u"plainText"), line);
    } else if (kind == u"ListView") {
      control.text = Bytes(element.Text(u"emptyText"), line);
    } else if (kind == u"ComboBox") {
      control.text = Bytes(element.Text(u"currentText"), line);
    } else if (kind == u"Label" || kind == u"Image") {
      const QString text = element.Text(u"text");
      control.caption = Bytes(element.Value(u"buddy") != nullptr ? WithoutMnemonic(text) : text, line);
    } else {
      control.caption =
          Bytes(WithoutMnemonic(element.Text(element.Value(u"text") != nullptr ? u"text" : u"title")), line);
    }
  }

  void ReadState(const Element& element, const QString& kind, ControlDesign& control) {
    control.visible = element.Flag(u"visible", true);
    control.enabled = element.Flag(u"enabled", true);
    control.locked = element.Flag(u"readOnly", false);
    control.checked =
        (kind == u"CheckBox" || kind == u"OptionButton" || kind == u"MenuEntry") && element.Flag(u"checked", false);
    for (const QString& word : element.Text(u"design").split(' ', Qt::SkipEmptyParts)) {
      if (word == u"hidden")
        control.visible = false;
      else if (word == u"disabled")
        control.enabled = false;
      else if (word == u"locked")
        control.locked = true;
      else
        errors_.Add(path_, element.line, QStringLiteral("unknown word '%1' in design").arg(word));
    }
  }

  void ReadEntries(const Element& element, const QString& kind, ControlDesign& control) {
    if (kind == u"ListView") control.columns = Pieces(element.Text(u"columns"), element.line);
    if (kind == u"StatusBar") {
      control.items = Pieces(element.Text(u"panels"), element.line);
      if (element.Value(u"panels") == nullptr) control.items.assign(4, {});
    }
    for (const Element& child : element.children) {
      if (child.tag == u"item" && (kind == u"ComboBox" || kind == u"ListBox"))
        control.items.push_back(Bytes(child.Text(u"text"), child.line));
      if (child.tag == u"widget" && kind == u"TabStrip")
        control.items.push_back(Bytes(WithoutMnemonic(child.Text(u"title")), child.line));
    }
  }

  // The value of a choice is its current entry: none, save for tabs, unless the form names one.
  static void ReadRange(const Element& element, const QString& kind, ControlDesign& control) {
    const auto number = [&](QStringView name, int otherwise) {
      const Element* value = element.Value(name);
      return value == nullptr ? otherwise : value->text.toInt();
    };
    if (kind == u"ComboBox") control.value = number(u"currentIndex", -1);
    if (kind == u"ListBox") control.value = number(u"currentRow", -1);
    if (kind == u"TabStrip") control.value = number(u"currentIndex", 0);
    if (kind != u"ProgressBar" && kind != u"ScrollBar") return;
    control.minimum = number(u"minimum", 0);
    control.maximum = number(u"maximum", 100);
    control.value = std::max(number(u"value", 0), control.minimum);
  }

  // The tab stops of the form first, then what they leave out in the order of the file.
  void ReadTabOrder(const Element* tabStops) {
    QStringList order;
    if (tabStops != nullptr)
      for (const Element& stop : tabStops->children)
        if (focusable_.contains(stop.text)) order.append(stop.text);
    for (const QString& name : focusable_)
      if (!order.contains(name)) order.append(name);
    for (qsizetype i = 0; i < order.size(); ++i)
      screen_.controls[names_.value(order[i])].tabIndex = static_cast<int>(i);
  }

  std::vector<std::string> Pieces(const QString& joined, qint64 line) {
    std::vector<std::string> pieces;
    if (joined.isEmpty()) return pieces;
    for (const QString& piece : joined.split('|')) pieces.push_back(Bytes(piece, line));
    return pieces;
  }

  // Windows-1252 with CR LF as line break.
  std::string Bytes(const QString& text, qint64 line) {
    std::string bytes;
    for (const char32_t c : text.toUcs4()) {
      const int byte = detail::ByteOf(c);
      if (byte < 0) {
        errors_.Add(path_, line, QStringLiteral("'%1' holds a character outside Windows-1252").arg(text));
        return {};
      }
      if (byte == '\n' && (bytes.empty() || bytes.back() != '\r')) bytes += '\r';
      bytes += static_cast<char>(byte);
    }
    return bytes;
  }

  QString path_;
  FormErrors& errors_;
  ScreenDesign screen_;
  QHash<QString, std::size_t> names_;
  QStringList focusable_;
};

}  // namespace

std::optional<ScreenDesign> ReadForm(const QString& path, FormErrors& errors) {
  return FormReader(path, errors).Read();
}

}  // namespace kontorwerk
