// Puts the parts in their order: the toolkit first, what draws after it, what uses the windows last.
#include "platform/qt/QtApplication.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>
#include <cstdio>

#include "platform/qt/Dialogs.h"
#include "platform/qt/GermanTexts.h"
#include "platform/qt/Icons.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtTimers.h"
#include "platform/qt/RtfPreview.h"
#include "platform/qt/Theme.h"
#include "platform/word/Office.h"

namespace kontorwerk {
namespace {

constexpr int kFormFault = 3;

std::string CacheFolder() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/kontorwerk";
  QDir().mkpath(folder);
  return folder.toStdString();
}

// Ends the program when no screen is left to see, for example because the settings were cancelled while they still
// stand in for the control centre. The moment of grace lets one screen follow another.
class LastScreen final : public DesktopObserver {
 public:
  LastScreen(Desktop& desktop, Platform& platform) : desktop_(desktop) {
    grace_.setSingleShot(true);
    grace_.setInterval(500);
    QObject::connect(&grace_, &QTimer::timeout, [this, &platform] {
      if (desktop_.ActiveScreen()) return;
      if (QApplication::activeModalWidget())
        grace_.start();
      else
        platform.Quit();
    });
    desktop_.AddObserver(*this);
  }
  ~LastScreen() override { desktop_.RemoveObserver(*this); }

  void OnScreen(Screen&, ScreenEvent event) override {
    if (event == ScreenEvent::Hidden || event == ScreenEvent::Unloaded) grace_.start();
  }
  void OnControl(const Control&, Aspect, int) override {}
  void OnArray(Screen&, std::string_view, int) override {}

 private:
  Desktop& desktop_;
  QTimer grace_;
};

}  // namespace

struct QtApplication::Parts {
  Parts(int& argc, char** argv, Desktop& desktop, const FileSystemObject& files, std::string programFolder)
      : application(argc, argv),
        theme(application),
        windows(desktop),
        timers(desktop),
        platform(windows, files, std::move(programFolder)),
        lastScreen(desktop, platform),
        office(OfficeSetup{.cacheFolder = CacheFolder()}),
        preview(MakePdfPreview(office)) {}

  QApplication application;
  GermanTexts german;
  QTranslator toolkitGerman;
  Theme theme;
  QtDesktop windows;
  QtTimers timers;
  QtPlatform platform;
  LastScreen lastScreen;
  Office office;
  std::unique_ptr<RtfPreview> preview;
};

QtApplication::QtApplication(int& argc, char** argv, Desktop& desktop, const FileSystemObject& files,
                             std::string programFolder)
    : parts_(std::make_unique<Parts>(argc, argv, desktop, files, std::move(programFolder))) {
  QApplication& application = parts_->application;
  QApplication::setApplicationName(QStringLiteral("Kontorwerk"));
  QApplication::setDesktopFileName(QStringLiteral("kontorwerk"));
  QApplication::setWindowIcon(ThemeIcon(QStringLiteral("kontorwerk")));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::installTranslator(&parts_->german);
  if (parts_->toolkitGerman.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&parts_->toolkitGerman);
  SetRtfPreview(parts_->preview.get());
  QObject::connect(&parts_->theme, &Theme::Changed, &parts_->windows, &QtDesktop::ThemeChanged);
  QObject::connect(
      &application, &QGuiApplication::applicationStateChanged, &parts_->windows,
      [&desktop](Qt::ApplicationState state) { desktop.SetApplicationActive(state == Qt::ApplicationActive); });
}

QtApplication::~QtApplication() { SetRtfPreview(nullptr); }

Platform& QtApplication::Surroundings() { return parts_->platform; }

void QtApplication::SetWordProcessor(WordXChange& word) { parts_->platform.SetWordProcessor(word); }

bool QtApplication::OpenFile(std::string_view path) { return parts_->platform.OpenFile(path); }

int QtApplication::Run(const std::function<void()>& start) {
  const std::vector<std::string> faults = parts_->windows.CheckForms();
  if (!faults.empty()) {
    QString text = QStringLiteral("Diese Masken passen nicht zum Programm:\n");
    for (const std::string& fault : faults) {
      std::fprintf(stderr, "%s\n", fault.c_str());
      text += QLatin1Char('\n') + QString::fromStdString(fault);
    }
    (void)ShowBox(nullptr, text, QStringLiteral("Kontorwerk"), Buttons::Ok);
    return kFormFault;
  }
  QTimer::singleShot(0, qApp, [&start] { start(); });
  return QApplication::exec();
}

}  // namespace kontorwerk
