// The operator's language, played over a small screen. The operator ends its process, so each script runs in a death test.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "platform/headless/HeadlessDriver.h"
#include "platform/headless/Operator.h"
#include "tests/platform/TestScreens.h"

namespace kontorwerk {
namespace {

// Runs the script and ends the process with the operator's status; its record goes to the error stream.
[[noreturn]] void RunScript(const std::string& script) {
  std::ostringstream out;
  EventLog log(out);
  Desktop desktop;
  const auto disk = MakeSystemDisk();
  const FileSystemObject files(*disk);
  OperatorPlatform platform(log, std::filesystem::current_path().string(), nullptr);
  desktop.AddObserver(platform);
  HeadlessDriver driver(desktop);
  test::TestScreen screen(desktop, "StartForm");
  test::TestScreen hidden(desktop, "Hidden");
  desktop.Add(screen);
  desktop.Add(hidden);
  screen.Command1.OnClick = [&] { platform.Box("Weiter?", "Frage", Buttons::YesNo); };
  screen.Entry.OnClick = [&] { platform.WaitUntil([&] { return screen.First.Text() == "da"; }); };
  screen.Second.OnLeave = [&] {
    if (screen.Second.Text() == "falsch") {
      platform.Tell("Falsch!");
      screen.Second.SetFocus();
    }
  };
  screen.Beat.OnTimer = [&] { screen.First.SetText(screen.First.Text() + "x"); };
  screen.LGNr[1].OnChange = [&] { screen.Beat.SetRunning(true); };
  screen.Check1.OnClick = [&] { platform.Quit(); };
  Operator oper(desktop, platform, files, driver, log, {});
  oper.onStart = [&] {
    screen.Show();
    screen.List.SetColumns({{"Nr", true}, {"Name", false}, {"Ort", false}});
    screen.Combo.SetItems({"eins", "zwei"});
    screen.List.AddRow({"1", "Meier", "Ulm"});
    screen.List.AddRow({"2", "Müller"_t, "Köln"_t});
  };
  oper.onEnd = [&](int status) {
    std::fputs(out.str().c_str(), stderr);
    std::fflush(nullptr);
    std::_Exit(status);
  };
  oper.Run(script);
  std::abort();
}

void ExpectRun(const std::string& script, int status, const char* record) {
  EXPECT_EXIT(RunScript(script), ::testing::ExitedWithCode(status), record);
}

TEST(Operator, CountsExpectationsAndGoesOnAfterAFailure) {
  ExpectRun("start\nexpect StartForm.First a\nexpect StartForm.First \"\"\n", 1, "1 passed, 1 failed");
}

TEST(Operator, ReadsTypesAndCompares) {
  ExpectRun(
      "start\nset StartForm.First \"Gruß\"\ntype StartForm.First \" aus Köln\"\nexpect StartForm.First \"Gruß aus Köln\"\n"
      "set StartForm.Straße \"a\\\"b\\\\c\\r\\n\"\nexpect StartForm.Straße.text \"a\\\"b\\\\c\\r\\n\"\n",
      0, "2 passed, 0 failed");
}

TEST(Operator, UnknownNamesEndTheRun) {
  ExpectRun("dance\n", 2, "\"line\": 1, \"event\": \"error\", \"text\": \"unknown verb: dance\"");
  ExpectRun("start\n\nclick Nirgends.Command1\n", 2, "\"line\": 3, .*unknown screen");
  ExpectRun("start\nclick StartForm.Command9\n", 2, "unknown control");
  ExpectRun("start\nclick StartForm.LGNr\n", 2, "unknown control");
  ExpectRun("start\nset StartForm.LGNr(3) a\n", 2, "unknown control");
  ExpectRun("start\nselect StartForm.List 3\n", 2, "unknown row");
  ExpectRun("start\nselect StartForm.List \"2\"\n", 2, "unknown row");  // quoted: a text, never a number
  ExpectRun("start\nexpect StartForm.First.colour a\n", 2, "unknown property");
  ExpectRun("start\nexpect StartForm.Beat a\n", 2, "unknown control");
}

TEST(Operator, HiddenAndDisabledControlsCannotBeUsed) {
  ExpectRun("click Hidden.Command1\n", 2, "the screen is not visible");
  ExpectRun("expect Hidden.First \"\"\nexpect Hidden.visible false\n", 0, "2 passed");
}

TEST(Operator, AQuestionNeedsAnAnswerOfItsKind) {
  ExpectRun("start\nclick StartForm.Command1\n", 2, "no answer is waiting");
  ExpectRun("start\nanswer OK\nclick StartForm.Command1\n", 2, "no button");
  ExpectRun("start\nanswer folder /tmp\nclick StartForm.Command1\n", 2, "wrong kind");
  ExpectRun("start\nanswer Ja\nclick StartForm.Command1\nexpect-box \"Weiter?\"\nexpect-title Frage\nexpect-boxes 1\n", 0,
            "\"buttons\": \\[\"Ja\", \"Nein\"\\], \"answer\": \"Ja\"");
  ExpectRun("answer Ja\n", 2, "answers are left over");
}

TEST(Operator, NoBoxYetIsAnEmptyText) { ExpectRun("expect-box \"\"\nexpect-boxes 0\n", 0, "2 passed, 0 failed"); }

TEST(Operator, AWaitRunsTheNextLines) {
  ExpectRun("start\nclick StartForm.Entry\nset StartForm.First da\nexpect StartForm.First da\n", 0, "1 passed, 0 failed");
  ExpectRun("start\nclick StartForm.Entry\n", 2, "ended inside a wait");
}

TEST(Operator, AStepEndsWhereALeaveHandlerKeepsTheFocus) {
  ExpectRun(
      "start\nset StartForm.Second falsch\nset StartForm.First x\nexpect StartForm.First \"\"\n"
      "expect StartForm.focus Second\nexpect-box \"Falsch!\"\nexpect-title Kontorwerk\n",
      0, "4 passed, 0 failed");
}

TEST(Operator, TimersFireInOrderAsTheClockPasses) {
  ExpectRun(
      "now 15.11.2026 09:30:00\nstart\nset StartForm.LGNr(1) a\nadvance 49\nexpect StartForm.First \"\"\nadvance 101\n"
      "expect StartForm.First \"xxx\"\n",
      0, "2 passed, 0 failed");
}

TEST(Operator, AfterTheProgramHasEndedOnlyExpectationsRun) {
  ExpectRun("start\nclick StartForm.Check1\nexpect StartForm.First \"\"\n", 0, "\"event\": \"quit\"");
  ExpectRun("start\nclick StartForm.Check1\nclick StartForm.Command1\n", 2, "the program has ended");
}

TEST(Operator, RowsAreReadWithoutHiddenColumns) {
  ExpectRun(
      "start\nexpect StartForm.List.rows 2\nexpect StartForm.List.row(2) \"Müller|Köln\"\n"
      "expect StartForm.List.columns \"Name|Ort\"\nselect StartForm.List \"Müller\"\nexpect StartForm.List.selected 2\n",
      0, "4 passed, 0 failed");
}

TEST(Operator, ChoosesByNumberOrText) {
  ExpectRun(
      "start\nchoose StartForm.Combo 1\nexpect StartForm.Combo zwei\nchoose StartForm.Combo \"eins\"\n"
      "expect StartForm.Combo.listindex 0\nexpect StartForm.Combo.list \"eins|zwei\"\n",
      0, "3 passed, 0 failed");
  ExpectRun("start\nchoose StartForm.Combo 2\n", 2, "unknown entry");
}

TEST(Operator, FilesAreWrittenAndComparedByTheirBytes) {
  const std::string folder = ::testing::TempDir() + "operator-files";
  const std::string file = folder + "/neu/Straße.txt";
  ExpectRun("write " + file + " \"1\\r\\n\\r\\n3\"\nexpect-file " + file + " \"1\\r\\n\\r\\n3\"\nexpect-row " + file +
                " 1 1\nexpect-row " + file + " -1 \"\"\nexpect-row " + file + " 3 3\nexpect-absent " + folder + "/x\n",
            0, "5 passed, 0 failed");
  ExpectRun("expect-file " + folder + "/x \"\"\n", 1, "0 passed, 1 failed");
  std::filesystem::remove_all(folder);
}

TEST(Operator, ScriptsOutsideTheCodePageAreRefused) { ExpectRun("# ok\nset StartForm.First \"\xE4\xBD\xA0\"\n", 2, "\"line\": 2"); }

TEST(Operator, QuotesMustBeClosed) {
  ExpectRun("write a \"b\n", 2, "a quote is not closed");
  ExpectRun("write a \"b\\x\"\n", 2, "unknown escape");
}

}  // namespace
}  // namespace kontorwerk
