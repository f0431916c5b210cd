// Boxes that show a document in rich text.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTextEdit>

#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/RtfPreview.h"
#include "tests/qt/FormText.h"

namespace kontorwerk {
namespace {

class Blatt final : public Screen {
 public:
  explicit Blatt(Desktop& desktop) : Screen(desktop, "T") { desktop.Add(*this); }
  RichTextBox Text{*this, "Text"};
};

// Keeps the requests until the test hands out pages.
class HeldPreview final : public RtfPreview {
 public:
  HeldPreview() { SetRtfPreview(this); }
  ~HeldPreview() override { SetRtfPreview(nullptr); }
  void Draw(const std::string& rtf, QObject*, std::function<void(QList<QImage>)> done) override {
    asked.push_back(rtf);
    waiting.push_back(std::move(done));
  }
  void Stop() override {}

  static QList<QImage> Pages(int count) {
    QImage page(100, 140, QImage::Format_RGB32);
    page.fill(Qt::white);
    return QList<QImage>(count, page);
  }

  std::vector<std::string> asked;
  std::vector<std::function<void(QList<QImage>)>> waiting;
};

class DocumentTest : public testing::Test {
 protected:
  void SetUp() override {
    windows_.MakeWindow(screen_, FormOf(WidgetText("QTextEdit", "Text")));
    screen_.Show();
    screen_.Text.SetText("Der Text");
  }
  QTextEdit& Box() { return *windows_.WindowOf(screen_)->Window().findChild<QTextEdit*>("Text"); }
  qsizetype PictureCount() { return Box().toPlainText().count(QChar::ObjectReplacementCharacter); }

  HeldPreview preview_;
  Desktop desktop_;
  Blatt screen_{desktop_};
  QtDesktop windows_{desktop_};
};

TEST_F(DocumentTest, TextStandsUntilThePagesAreThere) {
  screen_.Text.SetRtf("{\\rtf1 A}");
  EXPECT_EQ(Box().toPlainText(), QStringLiteral("Der Text"));
  preview_.waiting.at(0)(HeldPreview::Pages(2));
  EXPECT_EQ(PictureCount(), 2);
  EXPECT_TRUE(Box().isReadOnly());
  EXPECT_EQ(screen_.Text.Text(), "Der Text");
}

TEST_F(DocumentTest, PagesOfAnOlderDocumentComeTooLate) {
  screen_.Text.SetRtf("{\\rtf1 A}");
  screen_.Text.SetRtf("{\\rtf1 B}");
  preview_.waiting.at(1)(HeldPreview::Pages(1));
  preview_.waiting.at(0)(HeldPreview::Pages(3));
  EXPECT_EQ(PictureCount(), 1);
}

TEST_F(DocumentTest, WithoutPagesTheTextStays) {
  screen_.Text.SetRtf("{\\rtf1 A}");
  preview_.waiting.at(0)({});
  EXPECT_EQ(Box().toPlainText(), QStringLiteral("Der Text"));
}

TEST_F(DocumentTest, TextComesBackWhenTheDocumentGoes) {
  screen_.Text.SetRtf("{\\rtf1 A}");
  preview_.waiting.at(0)(HeldPreview::Pages(1));
  screen_.Text.SetRtf("");
  EXPECT_EQ(Box().toPlainText(), QStringLiteral("Der Text"));
  EXPECT_FALSE(Box().isReadOnly());
}

}  // namespace
}  // namespace kontorwerk
