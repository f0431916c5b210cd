// The customer search in its real window: from the click to the painted list, and scrolling a long list. Beside it
// stands the same click without a window. Run it with QT_QPA_PLATFORM=offscreen to measure the drawing and no display.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QObject>
#include <QScrollBar>
#include <QTreeView>
#include <QWidget>
#include <map>
#include <memory>
#include <ostream>
#include <string_view>

#include "bench/Fail.h"
#include "bench/HeadlessProgram.h"
#include "bench/Measure.h"
#include "bench/Rows.h"
#include "partners/KDsuchen.h"
#include "partners/PartnerScreens.h"
#include "platform/Context.h"
#include "platform/headless/EventLog.h"
#include "platform/headless/OperatorPlatform.h"
#include "platform/qt/QtDriver.h"

namespace kontorwerk::bench {
namespace {

// The screens of the partners in their windows, for one firm after the other: there is one application a process.
class Windows {
 public:
  Windows(int& argc, char** argv) : driver_(MakeQtDriver(argc, argv, desktop_)) {}

  // The search with an empty list of customers, on the tables of this firm.
  void Open(const Firm& firm) {
    settings_.DBPath = firm.DataPath();
    Search().Show();
    if (view_ == nullptr) view_ = FindView();
  }

  // The number of rows in the painted list.
  long Find(std::string_view text) {
    bool filled = false;
    const auto watch = QObject::connect(view_->model(), &QAbstractItemModel::modelReset, [&filled] { filled = true; });
    Search().Fields.Box(partner::kName).UserText(text);
    driver_->Click(Search().Command1);
    while (!filled) QCoreApplication::processEvents();
    view_->viewport()->repaint();
    QObject::disconnect(watch);
    return view_->model()->rowCount();
  }

  // To a part (0 to 1) of the list, painted.
  void ScrollTo(double part) {
    bool rebuilt = false;
    const auto watch =
        QObject::connect(view_->model(), &QAbstractItemModel::modelReset, [&rebuilt] { rebuilt = true; });
    QScrollBar& bar = *view_->verticalScrollBar();
    bar.setValue(static_cast<int>(part * bar.maximum()));
    view_->viewport()->repaint();
    QObject::disconnect(watch);
    if (rebuilt) Fail("scrolling has rebuilt the list");
  }

 private:
  [[nodiscard]] KDsuchen& Search() { return static_cast<KDsuchen&>(*desktop_.Find("KDsuchen")); }

  QTreeView* FindView() {
    driver_->RunEvents();
    for (QWidget* widget : QApplication::allWidgets())
      if (auto* view = qobject_cast<QTreeView*>(widget);
          view && view->isVisible() && view->objectName() == "Suchergebnis")
        return view;
    Fail("the window has no list");
  }

  Desktop desktop_;
  std::ostream nowhere_{nullptr};
  EventLog log_{nowhere_};
  OperatorPlatform platform_{log_, Firm::EstateFolder().string(), nullptr};
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
  Context context_{desktop_, platform_, files_, store_, settings_};
  PartnerScreens screens_{context_};
  std::unique_ptr<Driver> driver_;
  QTreeView* view_ = nullptr;
};

// The same screen without a window.
long FindHeadless(const Firm& firm, std::string_view text) {
  static std::map<long, std::unique_ptr<HeadlessProgram>> programs;
  std::unique_ptr<HeadlessProgram>& program = programs[firm.Rows()];
  if (!program) {
    program = std::make_unique<HeadlessProgram>(firm);
    program->Start();
  }
  auto& search = program->Get<KDsuchen>("KDsuchen");
  search.Show();
  search.Fields.Box(partner::kName).UserText(text);
  search.Command1.UserClick();
  return search.Suchergebnis.RowCount();
}

void AddSearch(Windows& windows, const std::string& name, std::string_view text) {
  Subject("Click to the painted list of customers, " + name)
      .Preparing([&windows, text](Firm& firm) {
        windows.Open(firm);
        (void)FindHeadless(firm, text);
      })
      .Measure(kProgram, [&windows, text](Firm&) { return windows.Find(text); })
      .Measure("without a window", [text](Firm& firm) { return FindHeadless(firm, text); })
      .BesideScan({table::kCustomers});
}

void AddScrolling(Windows& windows) {
  Subject("Scroll a list of so many rows")
      .Preparing([&windows](Firm& firm) {
        windows.Open(firm);
        (void)windows.Find("");
      })
      .Measure(kProgram, [&windows](Firm&) -> std::optional<long> {
        static double part = 0;
        part = part < 0.97 ? part + 0.03 : 0;
        windows.ScrollTo(part);
        return std::nullopt;
      });
}

}  // namespace
}  // namespace kontorwerk::bench

int main(int argc, char** argv) {
  using namespace kontorwerk::bench;
  benchmark::Initialize(&argc, argv);
  Windows windows(argc, argv);
  AddSearch(windows, "one hit", kRareText);
  AddSearch(windows, "one row in a hundred", kTownText);
  AddSearch(windows, "every customer", "");
  AddScrolling(windows);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
