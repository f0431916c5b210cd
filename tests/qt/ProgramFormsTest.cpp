// All forms against all screens of the program.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <sstream>

#include "platform/FormDesign.h"
#include "platform/Screen.h"
#include "platform/headless/OperatorPlatform.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"
#include "shell/Program.h"

namespace kontorwerk {
namespace {

class ProgramFormsTest : public testing::Test {
 protected:
  QTemporaryDir folder_;
  std::ostringstream events_;
  EventLog log_{events_};
  Desktop desktop_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  OperatorPlatform platform_{log_, folder_.path().toStdString(), nullptr};
  Program program_{desktop_, platform_, files_};
  QtDesktop windows_{desktop_};
};

TEST_F(ProgramFormsTest, EveryFormFitsItsScreen) {
  EXPECT_FALSE(desktop_.Screens().empty());
  EXPECT_EQ(windows_.CheckForms(), std::vector<std::string>());
}

TEST_F(ProgramFormsTest, EveryFormHasItsScreen) {
  for (const ScreenDesign& design : FormDesigns())
    EXPECT_NE(desktop_.Find(design.screen), nullptr) << ToQt(design.screen).toStdString();
}

TEST_F(ProgramFormsTest, EveryControlOutsideOfRowsHasItsWidget) {
  for (Screen* screen : desktop_.Screens()) {
    const ScreenWindow& window = windows_.MakeWindow(*screen);
    const FormFile form = FormFile::Of(*screen);
    for (const FormWidget& widget : form.Widgets()) {
      if (widget.inRow) continue;
      const Control* control = screen->Find(FromQt(widget.control).value_or(""), widget.index);
      ASSERT_NE(control, nullptr) << widget.name.toStdString();
      EXPECT_NE(window.BindingOf(*control), nullptr) << screen->Name() << "." << widget.name.toStdString();
    }
    EXPECT_EQ(window.Window().windowTitle(), ToQtLines(screen->Caption()));
  }
}

// Everything must fit a small screen: 1280 x 800 less the bars of the desktop.
TEST_F(ProgramFormsTest, NoWindowNeedsMoreRoomThanASmallScreen) {
  for (Screen* screen : desktop_.Screens()) {
    QMainWindow& window = windows_.MakeWindow(*screen).Window();
    window.ensurePolished();
    const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
    EXPECT_LE(least.width(), 1280) << screen->Name();
    EXPECT_LE(least.height(), 740) << screen->Name();
  }
}

}  // namespace
}  // namespace kontorwerk
