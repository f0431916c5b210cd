// The operator's language, played over a small screen. The operator ends its process, so each script runs in a death
// test.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "platform/headless/HeadlessDriver.h"
#include "platform/headless/Operator.h"
#include "store/Numbers.h"
#include "tests/platform/TestScreens.h"

namespace kontorwerk {
namespace {

// What each kind of dialog answers, in one text.
std::string AnswersToEveryDialog(OperatorPlatform& platform) {
  std::string answers;
  const auto printer = platform.ChoosePrinter("Drucken");
  answers += printer ? Concat(printer->printer, "x", std::to_string(printer->copies)) : "no printer";
  for (const std::string& path : platform.ChooseFiles({.title = "Bild", .filter = "Bilder|*.jpg", .folder = "C:\\"}))
    answers += Concat(" ", path);
  answers += Concat(" ", platform.ChooseFolder({.title = "Ordner"}).value_or("no folder"));
  const auto colour = platform.ChooseColour(kWhite);
  answers += Concat(" ", colour ? std::to_string(colour->value) : std::string("no colour"));
  return answers;
}

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
  screen.Entry.OnClick = [&] {
    platform.WaitUntil([&] { return screen.First.Text() == "da"; });
    platform.Tell("da!");
  };
  screen.Second.OnLeave = [&] {
    if (screen.Second.Text() == "falsch") {
      platform.Tell("Falsch!");
      screen.Second.SetFocus();
    }
  };
  screen.Beat.OnTimer = [&] { screen.First.SetText(screen.First.Text() + "x"); };
  screen.LGNr[1].OnChange = [&] { screen.Beat.SetRunning(true); };
  screen.Check1.OnClick = [&] { platform.Quit(); };
  // Tells what a step has raised in the order in which it came.
  const auto tell = [&](std::string_view what) {
    return [&screen, what] { screen.First.SetText(Concat(screen.First.Text(), what, ";")); };
  };
  screen.List.OnSelect = tell("select");
  screen.List.OnClick = tell("click");
  screen.List.OnDoubleClick = tell("double");
  screen.List.OnColumnClick = [&](int column) { tell(Concat("column "))(), tell(std::to_string(column))(); };
  screen.List.OnTick = [&](int row) { tell(screen.List.Ticked(row) ? "ticked" : "cleared")(); };
  screen.Calendar.OnDateClick = tell("date");
  screen.Netto.OnClick = [&] { screen.First.SetText(NumberText(platform.Random())); };
  screen.Brutto.OnClick = [&] { tell(AnswersToEveryDialog(platform))(); };
  screen.LGNr[2].OnKey = [&](Key& key) {
    if (key.code == KeyCode::F5) tell(key.ctrl ? "Ctrl+F5" : "F5")();
  };
  screen.LGNr[0].OnLeave = [&] { screen.Command1.Disable(); };
  Operator oper(desktop, platform, files, driver, log, {});
  oper.onStart = [&] {
    screen.Show();
    screen.List.SetColumns({{"Nr", true}, {"Name", false}, {"Ort", false}});
    screen.Combo.SetItems({"eins", "zwei"});
    screen.List.AddRow({"1", "Meier", "Ulm"});
    screen.List.AddRow({"2", "Müller"_t, "Köln"_t});
    screen.List.SetRowColour(2, Colour{255});
    screen.Calendar.SetValue({2026, 11, 15});
    screen.Calendar.SetBold({2026, 11, 20});
    screen.Label1.SetCaption("Ulm");
    screen.Label1.SetForeColour(Colour{65280});
    screen.Label1.SetBackColour(kWhite);
    screen.Label1.SetToolTip("Wohnort");
    screen.Bar.SetRange(0, 40);
    screen.Notizen.SetLocked(true);
    screen.Locked.Disable();
    screen.SetCaption("Probe");
    screen.StatusBar1.SetPanel(4, "bereit");
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
      "start\nset StartForm.First \"Gruß\"\ntype StartForm.First \" aus Köln\"\nexpect StartForm.First \"Gruß aus "
      "Köln\"\n"
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
  ExpectRun("start\nanswer Ja\nclick StartForm.Command1\nexpect-box \"Weiter?\"\nexpect-title Frage\nexpect-boxes 1\n",
            0, "\"buttons\": \\[\"Ja\", \"Nein\"\\], \"answer\": \"Ja\"");
  ExpectRun("answer Ja\n", 2, "answers are left over");
}

TEST(Operator, NoBoxYetIsAnEmptyText) { ExpectRun("expect-box \"\"\nexpect-boxes 0\n", 0, "2 passed, 0 failed"); }

TEST(Operator, AWaitRunsTheNextLines) {
  ExpectRun("start\nclick StartForm.Entry\nset StartForm.First da\nexpect StartForm.First da\n", 0,
            "1 passed, 0 failed");
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
      "expect StartForm.List.columns \"Name|Ort\"\nselect StartForm.List \"Müller\"\nexpect StartForm.List.selected "
      "2\n",
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

TEST(Operator, ScriptsOutsideTheCodePageAreRefused) {
  ExpectRun("# ok\nset StartForm.First \"\xE4\xBD\xA0\"\n", 2, "\"line\": 2");
}

TEST(Operator, QuotesMustBeClosed) {
  ExpectRun("write a \"b\n", 2, "a quote is not closed");
  ExpectRun("write a \"b\\x\"\n", 2, "unknown escape");
}

TEST(Operator, AnUnquotedTextNamesAnEntryToo) {
  ExpectRun(
      "start\nchoose StartForm.Combo zwei\nexpect StartForm.Combo.listindex 1\nselect StartForm.List Meier\n"
      "expect StartForm.List.selected 1\n",
      0, "2 passed, 0 failed");
  ExpectRun("start\nchoose StartForm.Combo drei\n", 2, "unknown entry: drei");
  ExpectRun("start\nselect StartForm.List -1\n", 2, "unknown row: -1");
}

TEST(Operator, ListsAndBoxesAreWorkedAlike) {
  ExpectRun(
      "start\nchoose StartForm.List 1\nexpect StartForm.List.selected 2\nexpect StartForm.List.listindex 1\n"
      "expect StartForm.List.list \"Meier|Müller\"\nselect StartForm.Combo 2\nexpect StartForm.Combo zwei\n"
      "expect StartForm.Combo.selected 2\nexpect StartForm.Combo.rows 2\nexpect StartForm.Combo.row(1) eins\n"
      "expect StartForm.Label1.text Ulm\nexpect StartForm.Second.caption \"\"\n",
      0, "9 passed, 0 failed");
  ExpectRun("start\nselect StartForm.Combo 3\n", 2, "unknown row: 3");
  ExpectRun("start\nselect StartForm.First 1\n", 2, "a control of another kind");
}

TEST(Operator, DisabledAndLockedControlsCannotBeUsed) {
  const std::string disable = "start\nset StartForm.LGNr(0) a\nset StartForm.Second b\n";  // leaving disables Command1
  ExpectRun(disable + "expect StartForm.Command1.enabled false\nclick StartForm.Command1\n", 2,
            "the control is disabled");
  ExpectRun(disable + "focus StartForm.Command1\n", 2, "the control is disabled");
  ExpectRun("start\nset StartForm.Straße a\n", 0, "0 passed");
  ExpectRun("start\nset StartForm.Notizen a\n", 2, "the control is disabled");
  ExpectRun("start\nexpect StartForm.Notizen.enabled false\nfocus StartForm.Notizen\n", 2, "the control is disabled");
  ExpectRun("start\nchoose StartForm.Locked 0\n", 2, "the control is disabled");
  ExpectRun("start\nchoose StartForm.First 0\n", 2, "a control of another kind");
  ExpectRun("start\nset StartForm.List a\n", 2, "nothing can be typed");
}

TEST(Operator, AControlThatTheLeftOneDisablesIsNotClicked) {
  ExpectRun("start\nset StartForm.LGNr(0) a\nclick StartForm.Command1\nexpect-boxes 0\n", 0, "1 passed, 0 failed");
}

TEST(Operator, ARowIsClickedBeforeItsDoubleClick) {
  ExpectRun(
      "start\ndblclick StartForm.List 2\nexpect StartForm.First \"select;click;double;\"\n"
      "expect StartForm.List.selected 2\ndblclick StartForm.List\n"
      "expect StartForm.First \"select;click;double;double;\"\nexpect StartForm.focus List\n",
      0, "4 passed, 0 failed");
}

TEST(Operator, RowsAreTickedByTheirNumber) {
  ExpectRun(
      "start\ntick StartForm.List 2 on\nexpect StartForm.List.ticked(2) true\nexpect StartForm.List.ticked(1) false\n"
      "tick StartForm.List 2 off\nexpect StartForm.List.ticked(2) false\nexpect StartForm.First \"ticked;cleared;\"\n",
      0, "4 passed, 0 failed");
  ExpectRun("start\ntick StartForm.List 2 yes\n", 2, "neither on nor off");
  ExpectRun("start\ntick StartForm.List 3 on\n", 2, "unknown row");
}

TEST(Operator, HeadersAreCountedWithoutHiddenColumns) {
  ExpectRun("start\nsort StartForm.List 2\nexpect StartForm.First \"column ;3;\"\n", 0, "1 passed, 0 failed");
  ExpectRun("start\nsort StartForm.List 3\n", 2, "unknown column");
  ExpectRun("start\nsort StartForm.List 0\n", 2, "unknown column");
}

TEST(Operator, DaysAreClickedAndRead) {
  ExpectRun(
      "start\nexpect StartForm.Calendar.date 15.11.2026\nexpect StartForm.Calendar.bold(20.11.2026) true\n"
      "expect StartForm.Calendar.bold(21.11.2026) false\ndate StartForm.Calendar 01.12.2026\n"
      "expect StartForm.Calendar.date 01.12.2026\nexpect StartForm.First \"date;\"\nexpect StartForm.focus Calendar\n",
      0, "6 passed, 0 failed");
  ExpectRun("start\ndate StartForm.Calendar 31.11.2026\n", 2, "no date");
}

TEST(Operator, KeysReachTheirControl) {
  ExpectRun(
      "start\nkey StartForm.LGNr(2) F5\nkey StartForm.LGNr(2) Ctrl+F5\nexpect StartForm.First \"F5;Ctrl+F5;\"\n"
      "expect StartForm.focus LGNr(2)\nexpect StartForm.LGNr(2).focus true\nkey StartForm.List Down\n"
      "expect StartForm.List.selected 1\nkey StartForm.List Down\nexpect StartForm.List.selected 2\n"
      "expect StartForm.LGNr(2).focus false\n",
      0, "6 passed, 0 failed");
  ExpectRun("start\nanswer Nein\nkey StartForm.Command1 Enter\nexpect-boxes 1\n", 0, "1 passed, 0 failed");
  ExpectRun("start\nkey StartForm.First Hupe\n", 2, "unknown key");
}

TEST(Operator, TheWheelTurnsOnAVisibleScreen) {
  ExpectRun("start\nwheel StartForm -2\nexpect StartForm.Bar 6\nwheel StartForm 1\nexpect StartForm.Bar.value 3\n", 0,
            "2 passed, 0 failed");
  ExpectRun("wheel Hidden 1\n", 2, "the screen is not visible");
}

TEST(Operator, RandomNumbersComeInTurn) {
  ExpectRun(
      "start\nrandom 0.25\nclick StartForm.Netto\nexpect StartForm.First 0,25\nclick StartForm.Netto\n"
      "expect StartForm.First 0,25\nrandom 0 1\nclick StartForm.Netto\nexpect StartForm.First 0\n"
      "click StartForm.Netto\nexpect StartForm.First 1\nclick StartForm.Netto\nexpect StartForm.First 0\n",
      0, "5 passed, 0 failed");
  ExpectRun("random 1.5\n", 2, "no number between 0 and 1");
  ExpectRun("random\n", 2, "an argument is missing");
}

TEST(Operator, EachDialogTakesAnAnswerOfItsKind) {
  ExpectRun(
      "start\nanswer printer \"Laser EG\" 2\nanswer file a.jpg b.jpg\nanswer folder D:\\Daten\nanswer colour 65280\n"
      "click StartForm.Brutto\nexpect StartForm.First \"Laser EGx2 a.jpg b.jpg D:\\\\Daten 65280;\"\nexpect-boxes 0\n",
      0,
      "\"event\": \"dialog\", \"kind\": \"file\", \"title\": \"Bild\", \"filter\": \"Bilder.\\*.jpg\", \"folder\": "
      "\"C:..\", \"name\": \"\", \"answer\": \\[\"a.jpg\", \"b.jpg\"\\]");
  ExpectRun(
      "start\nanswer cancel\nanswer cancel\nanswer cancel\nanswer cancel\nclick StartForm.Brutto\n"
      "expect StartForm.First \"no printer no folder no colour;\"\n",
      0,
      "\"kind\": \"colour\", \"title\": \"\", \"filter\": \"\", \"folder\": \"\", \"name\": \"\", \"answer\": "
      "\"cancel\"");
  ExpectRun("start\nanswer printer Laser\nanswer folder a\nclick StartForm.Brutto\n", 2, "wrong kind for: file");
  ExpectRun("start\nanswer cancel\nclick StartForm.Command1\n", 2, "wrong kind");
  ExpectRun("start\nanswer Abbrechen\nclick StartForm.Command1\n", 2, "no button");
  ExpectRun("answer Vielleicht\n", 2, "unknown answer");
}

TEST(Operator, ReadsEveryPropertyOfItsList) {
  ExpectRun(
      "start\nexpect StartForm.Label1 Ulm\nexpect StartForm.Label1.color \"#00ff00\"\n"
      "expect StartForm.Label1.backcolor \"#ffffff\"\nexpect StartForm.Label1.tooltip Wohnort\n"
      "expect StartForm.First.color \"\"\nexpect StartForm.List.rowcolor(2) \"#ff0000\"\n"
      "expect StartForm.List.rowcolor(1) \"\"\nexpect StartForm.StatusBar1.panel(4) \"bereit\"\n"
      "expect StartForm.StatusBar1.panel(1) \"\"\nexpect StartForm.Check1 0\nexpect StartForm.Netto false\n"
      "expect StartForm.Entry.value 0\nexpect StartForm.Combo.listindex -1\nexpect StartForm.caption Probe\n"
      "expect StartForm.List.row(9) \"\"\n",
      0, "15 passed, 0 failed");
}

TEST(Operator, APanelIsToldWhenItsTextChanges) {
  ExpectRun("start\n", 0,
            "\"event\": \"panel\", \"screen\": \"StartForm\", \"control\": \"StatusBar1\", \"panel\": 4, \"text\": "
            "\"bereit\"");
}

TEST(Operator, OneControlHasTheFocusFromTheShowOn) {
  ExpectRun(
      "start\nfocus StartForm.Second\nexpect StartForm.Second.focus true\nshow Hidden\n"
      "expect StartForm.Second.focus false\nfocus Hidden.First\nexpect Hidden.First.focus true\n"
      "expect StartForm.focus Second\nclose Hidden\nexpect Hidden.First.focus false\n",
      0, "5 passed, 0 failed");
}

TEST(Operator, AClickOnAnotherScreensMenuLeavesTheControl) {
  const std::string script = "start\nshow Hidden\nfocus Hidden.First\nset StartForm.Second falsch\nclick Hidden.";
  ExpectRun(
      script + "Entry\nexpect-box \"Falsch!\"\nexpect StartForm.focus Second\nexpect StartForm.Second.focus true\n", 0,
      "3 passed, 0 failed");
  ExpectRun(script + "Label1\nexpect-boxes 1\n", 0, "1 passed, 0 failed");
  ExpectRun(
      "start\nshow Hidden\nfocus Hidden.First\nset StartForm.Second gut\nclick Hidden.Label1\nexpect-boxes 0\nexpect "
      "StartForm.Second.focus "
      "false\n",
      0, "2 passed, 0 failed");
  ExpectRun("start\nset StartForm.Second falsch\nclick StartForm.Label1\nexpect-boxes 0\n", 0, "1 passed, 0 failed");
}

TEST(Operator, WaitsForAValueOnTheRealClock) {
  ExpectRun("start\nwait StartForm.Label1 Ulm 1000\n", 0, "1 passed, 0 failed");
  ExpectRun("start\nwait StartForm.Label1 Köln 5\n", 1, "0 passed, 1 failed");
}

TEST(Operator, AFaultNamesTheLineThatWasInWork) {
  ExpectRun("start\n\nanswer Ja\n\nget StartForm.Label1\n", 2,
            "\"line\": 5, \"event\": \"error\", \"text\": \"answers are left");
}

TEST(Operator, TheOuterStepGoesOnUnderItsOwnLine) {
  ExpectRun("start\n\nclick StartForm.Entry\n\nset StartForm.First da\n", 0,
            "\"line\": 3, \"event\": \"box\", \"title\": \"Kontorwerk\", \"text\": \"da!\"");
}

TEST(Operator, LinesOfAFileAreCountedFromBothEnds) {
  const std::string file = ::testing::TempDir() + "operator-lines.txt";
  const std::string row = "expect-row " + file;
  ExpectRun("write " + file + " \"1\\r\\n2\\r\\nrest\"\n" + row + " 3 rest\n" + row + " -1 2\n" + row + " -2 1\n", 0,
            "3 passed, 0 failed");
  ExpectRun("write " + file + " \"1\\r\\n\"\n" + row + " -1 1\n" + row + " 2 \"\"\n" + row + " -2 \"\"\n", 1,
            "1 passed, 2 failed");
  std::filesystem::remove(file);
}

TEST(Operator, AStepTakesExactlyItsArguments) {
  ExpectRun("start now\n", 2, "wrong number of arguments");
  ExpectRun("start\nstart\n", 2, "has been started already");
  ExpectRun("start\nclick\n", 2, "wrong number of arguments");
  ExpectRun("start\nset StartForm.First a b\n", 2, "wrong number of arguments");
  ExpectRun("now 31.02.2026\n", 2, "no date");
  ExpectRun("now 01.02.2026 25:00:00\n", 2, "no time");
}

TEST(Operator, EndStopsTheScript) { ExpectRun("expect-boxes 0\nend\ndance\n", 0, "1 passed, 0 failed"); }

}  // namespace
}  // namespace kontorwerk
