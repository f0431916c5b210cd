// Texts both ways, byte for byte; a text of many lines has CR LF between them in the control.
#include "platform/qt/TextBindings.h"

#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "platform/TextControls.h"
#include "platform/qt/QtText.h"
#include "platform/qt/RtfPreview.h"
#include "platform/qt/Theme.h"

namespace kontorwerk {
namespace {

constexpr int kPageMargin = 12;

// The document's text with CR LF between its blocks; a protected blank stays one.
template <typename Area>
QString TextOf(const Area& area) {
  QString text = area.document()->toRawText();
  for (QChar& c : text)
    if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator) c = QLatin1Char('\n');
  return text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

// Puts the text in without losing the place of the cursor.
template <typename Area>
void ShowIn(Area& area, const QString& text) {
  if (TextOf(area) == text) return;
  const int position = area.textCursor().position();
  area.setPlainText(text);
  QTextCursor cursor = area.textCursor();
  cursor.setPosition(std::min(position, area.document()->characterCount() - 1));
  area.setTextCursor(cursor);
}

// A text too long for its field is read from its beginning.
void PutInto(QLineEdit& field, const QString& text) {
  field.setText(text);
  if (field.window()->focusWidget() != &field) field.setCursorPosition(0);
}

}  // namespace

LineBinding::LineBinding(QLineEdit* field, BindingHost& host) : Binding(field, host), field_(field) {
  connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
    const auto typed = FromQt(text);
    if (typed) UserAct([&] { As<TextBox>()->UserText(lastTyped_ = *typed); });
  });
}

void LineBinding::ShowText() {
  const QString text = ToQt(As<TextBox>()->Text());
  if (field_->text() != text) PutInto(*field_, text);
}

void LineBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Text) ShowText();
  if (aspect == Aspect::TextSelection) field_->selectAll();
}

// A field that goes on to another control begins anew: taking back reaches no further than this text.
void LineBinding::ShowAll() {
  if (shown_ != Bound()) PutInto(*field_, ToQt(As<TextBox>()->Text()));
  shown_ = Bound();
  ShowText();
}

void LineBinding::ShowEnabled() {
  Binding::ShowEnabled();
  field_->setReadOnly(As<TextBox>()->Locked());
}

AreaBinding::AreaBinding(QPlainTextEdit* area, BindingHost& host) : Binding(area, host), area_(area) {
  area->setTabChangesFocus(true);
  connect(area, &QPlainTextEdit::textChanged, this, [this] {
    const auto typed = FromQt(TextOf(*area_));
    if (typed && !Showing()) UserAct([&] { As<TextBox>()->UserText(lastTyped_ = *typed); });
  });
}

void AreaBinding::ShowText() { ShowIn(*area_, ToQt(As<TextBox>()->Text())); }

void AreaBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Text) ShowText();
  if (aspect == Aspect::TextSelection) area_->selectAll();
}

void AreaBinding::ShowAll() { ShowText(); }

void AreaBinding::ShowEnabled() {
  Binding::ShowEnabled();
  area_->setReadOnly(As<TextBox>()->Locked());
}

DocumentBinding::DocumentBinding(QTextEdit* area, BindingHost& host) : Binding(area, host), area_(area) {
  area->setTabChangesFocus(true);
  connect(area, &QTextEdit::textChanged, this, [this] {
    if (Showing() || showsPages_) return;
    const auto typed = FromQt(TextOf(*area_));
    if (typed) UserAct([&] { As<TextBox>()->UserText(lastTyped_ = *typed); });
  });
}

void DocumentBinding::ShowText() {
  if (!showsPages_) ShowIn(*area_, ToQt(As<RichTextBox>()->Text()));
}

void DocumentBinding::ShowState(Aspect aspect, int) {
  if (aspect == Aspect::Text) ShowText();
  if (aspect == Aspect::Rtf) ShowDocument();
  if (aspect == Aspect::TextSelection) area_->selectAll();
}

void DocumentBinding::ShowAll() {
  ShowText();
  if (!showsPages_ && request_ == 0 && !As<RichTextBox>()->Rtf().empty()) ShowDocument();
}

void DocumentBinding::ShowEnabled() {
  Binding::ShowEnabled();
  area_->setReadOnly(As<TextBox>()->Locked() || showsPages_);
}

void DocumentBinding::ShowDocument() {
  const std::string& rtf = As<RichTextBox>()->Rtf();
  const quint64 request = ++request_;
  showsPages_ = false;
  ShowText();
  ShowEnabled();
  if (rtf.empty() || CurrentRtfPreview() == nullptr) return;
  CurrentRtfPreview()->Draw(rtf, this, [this, request](const QList<QImage>& pages) {
    if (request == request_ && !pages.isEmpty() && Bound() != nullptr) ShowPages(pages);
  });
}

void DocumentBinding::ShowPages(const QList<QImage>& pages) {
  showsPages_ = true;
  const QSignalBlocker blocker(area_);
  area_->clear();
  QTextCursor cursor(area_->document());
  QTextBlockFormat centred;
  centred.setAlignment(Qt::AlignHCenter);
  centred.setTopMargin(kPageMargin);
  const int width = std::max(200, area_->viewport()->width() - 4 * kPageMargin);
  for (const QImage& page : pages) {
    QTextImageFormat format;
    format.setName(QStringLiteral("page%1").arg(cursor.position()));
    area_->document()->addResource(QTextDocument::ImageResource, QUrl(format.name()), page);
    const int shown = std::min(width, page.width() / 2);
    format.setWidth(shown);
    format.setHeight(static_cast<double>(shown) * page.height() / page.width());
    cursor.setBlockFormat(centred);
    cursor.insertImage(format);
    if (&page != &pages.back()) cursor.insertBlock();
  }
  area_->verticalScrollBar()->setValue(0);
  ShowEnabled();
}

}  // namespace kontorwerk
