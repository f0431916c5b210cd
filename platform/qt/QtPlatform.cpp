// Each dialog of the program by the toolkit's; paths become machine paths here, nothing is run by a shell.
#include "platform/qt/QtPlatform.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QProcess>
#include <QSoundEffect>
#include <QStandardPaths>
#include <QUrl>
#include <QUrlQuery>
#include <algorithm>

#include "platform/qt/Dialogs.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"
#include "platform/word/PrintSink.h"
#include "store/FileSystem.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// "Bilder|*.bmp;*.jpg|Alle|*.*" as the toolkit writes it. A mask that fits nothing stands for the choice of a folder.
QString FilterText(std::string_view filter) {
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    filters.append(
        QStringLiteral("%1 (%2)").arg(parts[i], QString(parts[i + 1]).replace(';', ' ').replace("*.*", "*")));
  return filters.join(QStringLiteral(";;"));
}

QUrl AddressOf(std::string_view target) {
  static const QStringList schemes = {QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};
  const QUrl url(ToQt(target), QUrl::TolerantMode);
  if (schemes.contains(url.scheme().toLower())) return url;
  return LCase(Left(target, 4)) == "www." ? QUrl(QStringLiteral("https://") + ToQt(target)) : QUrl();
}

// Programs are started as they are; everything else is the desktop's to open.
bool IsProgram(const QFileInfo& file) { return file.suffix().toLower() == QLatin1String("exe"); }

// No address begins like an option of a command.
bool IsAddress(const std::string& receiver) { return !receiver.empty() && receiver.front() != '-'; }

QString Joined(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list.append(ToQt(text));
  return list.join(QLatin1Char(','));
}

// The call of the desktop's mail command, which takes attachments, too.
QStringList MailCommand(const Mail& mail, const QStringList& attachments) {
  QStringList arguments = {QStringLiteral("--utf8"), QStringLiteral("--subject"), ToQt(mail.subject),
                           QStringLiteral("--body"), ToQtLines(mail.text)};
  for (const std::string& receiver : mail.bcc)
    if (IsAddress(receiver)) arguments << QStringLiteral("--bcc") << ToQt(receiver);
  for (const QString& attachment : attachments) arguments << QStringLiteral("--attach") << attachment;
  for (const std::string& receiver : mail.to)
    if (IsAddress(receiver)) arguments << ToQt(receiver);
  return arguments;
}

QUrl MailAddress(const Mail& mail) {
  QUrlQuery query;
  if (!mail.bcc.empty()) query.addQueryItem(QStringLiteral("bcc"), QUrl::toPercentEncoding(Joined(mail.bcc), ",@"));
  query.addQueryItem(QStringLiteral("subject"), QUrl::toPercentEncoding(ToQt(mail.subject)));
  query.addQueryItem(QStringLiteral("body"), QUrl::toPercentEncoding(ToQt(mail.text)));
  QUrl url;
  url.setScheme(QStringLiteral("mailto"));
  url.setPath(Joined(mail.to));
  url.setQuery(query);
  return url;
}

}  // namespace

QtPlatform::QtPlatform(QtDesktop& windows, const FileSystemObject& files, std::string programFolder)
    : windows_(windows), files_(files), programFolder_(std::move(programFolder)), random_(std::random_device()()) {}

QtPlatform::~QtPlatform() = default;

// Dialogs belong to the window in use; the core's word counts where the window system has not followed yet.
QWidget* QtPlatform::Parent() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const Screen* screen = windows_.Core().ActiveScreen();
  ScreenWindow* window = screen == nullptr ? nullptr : windows_.WindowOf(*screen);
  return window == nullptr ? nullptr : &window->Window();
}

QString QtPlatform::MachinePath(std::string_view path) const {
  return QString::fromStdString(files_.MachinePath(path));
}

Answer QtPlatform::Box(std::string_view text, std::string_view title, Buttons buttons) {
  windows_.CountModal();
  return ShowBox(Parent(), ToQtLines(text), ToQt(title.empty() ? kProgramName : title), buttons);
}

std::optional<PrinterChoice> QtPlatform::ChoosePrinter(std::string_view title) {
  windows_.CountModal();
  QStringList names;
  for (const std::string& name : PrinterNames()) names.append(ToQt(name));
  names.append(ToQt(kPdfFilePrinter));
  const auto choice = ShowPrinterDialog(Parent(), ToQt(title), names, ToQt(lastPrinter_));
  if (!choice) return std::nullopt;
  lastPrinter_ = FromQt(choice->printer).value_or(std::string());
  return PrinterChoice{lastPrinter_, choice->copies};
}

std::vector<std::string> QtPlatform::ChooseFiles(const FileDialog& dialog) {
  windows_.CountModal();
  QFileDialog chooser(Parent(), ToQt(dialog.title), MachinePath(dialog.folder), FilterText(dialog.filter));
  chooser.setAcceptMode(dialog.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  chooser.setFileMode(dialog.save       ? QFileDialog::AnyFile
                      : dialog.multiple ? QFileDialog::ExistingFiles
                                        : QFileDialog::ExistingFile);
  if (!dialog.name.empty()) chooser.selectFile(ToQt(dialog.name));
  std::vector<std::string> paths;
  if (chooser.exec() != QDialog::Accepted) return paths;
  for (const QString& file : chooser.selectedFiles()) {
    if (const auto path = FromQt(file))
      paths.push_back(*path);
    else
      Tell("Der Name dieser Datei enthält Zeichen, die nicht gespeichert werden können."_t, dialog.title);
  }
  return paths;
}

std::optional<std::string> QtPlatform::ChooseFolder(const FileDialog& dialog) {
  windows_.CountModal();
  const QString folder = QFileDialog::getExistingDirectory(Parent(), ToQt(dialog.title), MachinePath(dialog.folder));
  if (folder.isEmpty()) return std::nullopt;
  std::optional<std::string> path = FromQt(folder);
  if (!path) Tell("Der Name dieses Ordners enthält Zeichen, die nicht gespeichert werden können."_t, dialog.title);
  return path;
}

std::optional<Colour> QtPlatform::ChooseColour(Colour current) {
  windows_.CountModal();
  const QColor before(current.Red(), current.Green(), current.Blue());
  const QColor chosen = QColorDialog::getColor(before, Parent(), QStringLiteral("Farbe"));
  if (!chosen.isValid()) return std::nullopt;
  return Colour{chosen.red() + 256 * chosen.green() + 65536 * chosen.blue()};
}

DateTime QtPlatform::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return {{now.date().year(), now.date().month(), now.date().day()},
          {now.time().hour(), now.time().minute(), now.time().second()}};
}

double QtPlatform::Random() { return std::uniform_real_distribution<double>(0.0, 1.0)(random_); }

bool QtPlatform::WaitUntil(const std::function<bool()>& condition) {
  while (!condition()) {
    if (quitting_) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
  return !quitting_;
}

void QtPlatform::Yield() { QCoreApplication::processEvents(); }

void QtPlatform::Quit() {
  quitting_ = true;
  QCoreApplication::exit(0);
}

bool QtPlatform::OpenFile(std::string_view path) {
  const QFileInfo file(MachinePath(path));
  if (!file.exists()) return false;
  if (IsProgram(file)) return QProcess::startDetached(file.absoluteFilePath(), {}, file.absolutePath());
  return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

void QtPlatform::Open(std::string_view target) {
  if (const QUrl url = AddressOf(target); url.isValid())
    QDesktopServices::openUrl(url);
  else
    OpenFile(target);
}

void QtPlatform::PlaySound(std::string_view path) {
  const QString file = MachinePath(path);
  if (!QFileInfo::exists(file)) return;
  if (!sound_) sound_ = std::make_unique<QSoundEffect>();
  sound_->stop();
  sound_->setSource(QUrl::fromLocalFile(file));
  sound_->play();
}

void QtPlatform::SetClipboard(std::string_view text) { QApplication::clipboard()->setText(ToQtLines(text)); }

bool QtPlatform::SendMail(const Mail& mail) {
  QStringList attachments;
  for (const std::string& attachment : mail.attachments) attachments.append(MachinePath(attachment));
  const QString command = QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
  if (!command.isEmpty()) return QProcess::startDetached(command, MailCommand(mail, attachments));
  return QDesktopServices::openUrl(MailAddress(mail));
}

}  // namespace kontorwerk
