// A print system of the test's own on a free port, with one printer "TEST" that writes its pages into a file. What was
// sent to it stays to be read.
#pragma once

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/word/Processes.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::testing_support {

class CupsServer {
 public:
  CupsServer() {
    for (const char* program : {"cupsd", "lp", "lpadmin", "lpinfo", "lpstat"})
      if (FindProgram(program, {"/usr/sbin"}).empty()) missing_ = std::string(program) + " is not installed";
    if (!missing_.empty()) return;
    port_ = 20000 + getpid() % 20000;
    WriteConfiguration();
    Start();
    AddPrinter();
  }
  ~CupsServer() {
    if (!thread_.joinable()) return;
    if (pid_ > 0) kill(pid_, SIGTERM);
    thread_.join();
  }
  CupsServer(const CupsServer&) = delete;
  CupsServer& operator=(const CupsServer&) = delete;

  // Why this machine can have no such print system; empty if it can.
  [[nodiscard]] const std::string& Missing() const { return missing_; }
  // Why the printer could not be made although all is there; empty if it was.
  [[nodiscard]] const std::string& Error() const { return error_; }

  // The value of CUPS_SERVER for who is to print here.
  [[nodiscard]] std::string Address() const { return "127.0.0.1:" + std::to_string(port_); }
  [[nodiscard]] std::string Folder() const { return folder_.Path().string(); }
  // The pages of the last job as they came out of the printer.
  [[nodiscard]] std::string OutFile() const { return Folder() + "/out/test.pdf"; }
  // A job's document as it was handed over; jobs count from 1.
  [[nodiscard]] std::string JobFile(int job) const {
    const std::string number = std::to_string(job);
    return Folder() + "/spool/d" + std::string(5 - std::min<std::size_t>(number.size(), 5), '0') + number + "-001";
  }
  // One line a finished job.
  [[nodiscard]] std::string PageLog() const { return ReadWholeFile(Folder() + "/log/page_log").value_or(""); }

  [[nodiscard]] int FinishedJobs() const {
    const std::string jobs = Call({"lpstat", "-W", "completed", "-o"}).output;
    int count = 0;
    for (std::size_t at = jobs.find("TEST-"); at != std::string::npos; at = jobs.find("TEST-", at + 1)) ++count;
    return count;
  }
  // Waits until the printer has written that many jobs since it was made.
  [[nodiscard]] bool WaitForJobs(int count) const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(40);
    while (std::chrono::steady_clock::now() < deadline)
      if (FinishedJobs() >= count) return true;
    return false;
  }

 private:
  void WriteConfiguration() const {
    namespace fs = std::filesystem;
    for (const char* name : {"etc/ppd", "spool/tmp", "cache", "run/certs", "log", "out"})
      fs::create_directories(folder_.Path() / name);
    // The filters run under another user when the server runs as root.
    for (const char* name : {"", "out", "spool", "spool/tmp", "cache"})
      fs::permissions(folder_.Path() / name, fs::perms::all);
    folder_.Put("etc/cupsd.conf",
                "Listen " + Address() + "\nListen " + Folder() +
                    "/run/cups.sock\nBrowsing Off\nWebInterface No\nDefaultAuthType None\nLogLevel info\nMaxLogSize 0\n"
                    "PreserveJobHistory Yes\nPreserveJobFiles Yes\n"
                    "<Location />\nOrder allow,deny\nAllow localhost\n</Location>\n"
                    "<Location /admin>\nOrder allow,deny\nAllow localhost\n</Location>\n"
                    "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n");
    std::string files = "FileDevice Yes\nSandboxing relaxed\n";
    const std::pair<const char*, const char*> places[] = {
        {"ServerRoot", "etc"},         {"RequestRoot", "spool"},   {"TempDir", "spool/tmp"},
        {"CacheDir", "cache"},         {"StateDir", "run"},        {"AccessLog", "log/access_log"},
        {"ErrorLog", "log/error_log"}, {"PageLog", "log/page_log"}};
    for (const auto& [key, place] : places) files += std::string(key) + " " + Folder() + "/" + place + "\n";
    folder_.Put("etc/cups-files.conf", files + Users());
  }

  // An ordinary user's print system runs under that user alone.
  static std::string Users() {
    if (geteuid() == 0) return "SystemGroup root lpadmin\n";
    const auto name = [](const char* option) {
      ProcessCall call;
      call.arguments = {FindProgram("id"), option};
      const std::string output = RunProcess(call).output;
      return output.substr(0, output.find('\n'));
    };
    return "User " + name("-un") + "\nGroup " + name("-gn") + "\nSystemGroup " + name("-gn") + "\n";
  }

  [[nodiscard]] ProcessResult Call(std::vector<std::string> arguments) const {
    arguments[0] = FindProgram(arguments[0], {"/usr/sbin", "/usr/bin"});
    ProcessCall call;
    call.arguments = std::move(arguments);
    call.environment = {"CUPS_SERVER=" + Address(), "LC_ALL=C.UTF-8"};
    return RunProcess(call);
  }

  void Start() {
    const std::string pidFile = Folder() + "/pid";
    thread_ = std::thread([this, pidFile] {
      ProcessCall call;
      call.arguments = {"/bin/sh",
                        "-c",
                        "echo $$ > \"$1\"; exec \"$2\" -f -c \"$3\" -s \"$4\"",
                        "sh",
                        pidFile,
                        FindProgram("cupsd", {"/usr/sbin"}),
                        Folder() + "/etc/cupsd.conf",
                        Folder() + "/etc/cups-files.conf"};
      call.limit = std::chrono::minutes(5);
      (void)RunProcess(call);
    });
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(15);
    while (Call({"lpstat", "-r"}).output.find("is running") == std::string::npos)
      if (std::chrono::steady_clock::now() > deadline) break;
    pid_ = std::stoi(ReadWholeFile(pidFile).value_or("0"));
  }

  void AddPrinter() {
    const std::string models = Call({"lpinfo", "-m"}).output;
    const std::size_t found = models.find("Generic-PDF_Printer-PDF");
    if (found == std::string::npos) {
      missing_ = "no driver for a PDF printer (cups-filters): " + models.substr(0, 200);
      return;
    }
    const std::size_t begin = models.rfind('\n', found) + 1;
    const std::string model = models.substr(begin, models.find(' ', begin) - begin);
    const ProcessResult added = Call({"lpadmin", "-p", "TEST", "-E", "-v", "file:" + OutFile(), "-m", model});
    if (added.exitCode != 0) error_ = "lpadmin: " + added.output;
  }

  TestFolder folder_;
  std::thread thread_;
  pid_t pid_ = 0;
  int port_ = 0;
  std::string missing_;
  std::string error_;
};

}  // namespace kontorwerk::testing_support
