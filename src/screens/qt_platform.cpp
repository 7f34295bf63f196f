#include "screens/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <array>
#include <string_view>

#include "core/run_time_error.h"
#include "screens/association.h"
#include "screens/manual_viewer.h"
#include "screens/printing.h"
#include "screens/qt_text.h"

namespace zefirondo::screens {
namespace {

constexpr double kTwipsPerPixel = 15.0;
constexpr qint64 kProgressPause = 50;  // ms
constexpr std::array kInformationTools{"hardinfo2", "hardinfo", "kinfocenter", "gnome-system-monitor"};
constexpr std::string_view kCommandKey = "\\shell\\open\\command";

struct ButtonRow {
  QMessageBox::StandardButton button;
  Answer answer;
  const char* english;
  const char* italian;
};

constexpr std::array kButtons = std::to_array<ButtonRow>({
    {QMessageBox::Ok, Answer::Ok, "OK", "OK"},
    {QMessageBox::Yes, Answer::Yes, "&Yes", "&Sì"},
    {QMessageBox::No, Answer::No, "&No", "&No"},
    {QMessageBox::Cancel, Answer::Cancel, "Cancel", "Annulla"},
});

QMessageBox::Icon QtIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Stop: return QMessageBox::Critical;
    case MessageIcon::Warning: return QMessageBox::Warning;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

std::vector<QMessageBox::StandardButton> QtButtons(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::YesNo: return {QMessageBox::Yes, QMessageBox::No};
    case MessageButtons::YesNoCancel: return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    default: return {QMessageBox::Ok};
  }
}

const ButtonRow& RowOf(QMessageBox::StandardButton button) {
  for (const ButtonRow& row : kButtons) {
    if (row.button == button) return row;
  }
  return kButtons.front();
}

/// The buttons in their order; the first is the default, the last is what Escape stands for.
void AddButtons(QMessageBox& dialog, const std::vector<QMessageBox::StandardButton>& buttons, Language language) {
  for (const QMessageBox::StandardButton button : buttons) {
    const ButtonRow& row = RowOf(button);
    dialog.addButton(button)->setText(QString::fromUtf8(language == Language::Italian ? row.italian : row.english));
  }
  dialog.setDefaultButton(buttons.front());
  dialog.setEscapeButton(buttons.back());
}

std::filesystem::path ToPath(const QString& path) { return std::filesystem::path(path.toStdU16String()); }
QString FromPath(const std::filesystem::path& path) { return QString::fromStdU16String(path.u16string()); }

}  // namespace

std::vector<std::string> NameFilters(const std::string& filter) {
  std::vector<std::string> filters;
  const QStringList parts = ToQt(filter).split(u'|');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString pattern = QString(parts[i + 1]).replace(u';', u' ');
    const QString words = parts[i].section(QStringLiteral(" (*"), 0, 0);
    filters.push_back(FromQt(words + QStringLiteral(" (") + pattern + u')'));
  }
  return filters;
}

QtPlatform::QtPlatform(Language language) : language_(language) {}

QtPlatform::~QtPlatform() = default;

void QtPlatform::Attach(QWidget* window, std::function<void()> refresh) {
  window_ = window;
  refresh_ = std::move(refresh);
}

void QtPlatform::Refresh() const {
  if (refresh_) refresh_();
}

Answer QtPlatform::ShowMessage(const MessageBox& box) {
  Refresh();
  QMessageBox dialog(window_);
  dialog.setIcon(QtIcon(box.icon));
  dialog.setWindowTitle(ToQt(box.title));
  dialog.setTextFormat(Qt::PlainText);
  dialog.setText(ToQt(box.text));
  AddButtons(dialog, QtButtons(box.buttons), language_);
  return RowOf(static_cast<QMessageBox::StandardButton>(dialog.exec())).answer;
}

std::string QtPlatform::ShowInput(const InputBox& box) {
  Refresh();
  return FromQt(QInputDialog::getText(window_, ToQt(box.title), ToQt(box.prompt)));
}

std::optional<std::filesystem::path> QtPlatform::ChooseFile(const FileDialog& wanted) {
  Refresh();
  QFileDialog dialog(window_);
  dialog.setAcceptMode(wanted.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(wanted.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  QStringList filters;
  for (const std::string& filter : NameFilters(wanted.filter)) filters.append(ToQt(filter));
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(ToQt(wanted.default_extension));
  dialog.setDirectory(FromPath(wanted.folder));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return ToPath(dialog.selectedFiles().constFirst());
}

std::string QtPlatform::ClipboardText() { return FromQt(QApplication::clipboard()->text()); }

void QtPlatform::ClearClipboard() { QApplication::clipboard()->clear(); }

/// The printer of the last dialog is offered again, with one copy.
std::optional<PrintChoice> QtPlatform::ChoosePrinter() {
  Refresh();
  if (!printer_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setCreator(QStringLiteral("Zefirondo"));
    printer_->setDocName(QStringLiteral("Zefirondo"));
  }
  SetUpPaper(*printer_);
  QPrintDialog dialog(printer_.get(), window_);
  dialog.setOptions(QAbstractPrintDialog::PrintToFile);  // one page, so neither ranges nor a collation
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return TakeChoice(*printer_);
}

void QtPlatform::Print(const std::vector<Page>& pages, const PrintChoice& /*choice*/) {
  if (!printer_) throw RunTimeError(ErrorNumber::DeviceError);
  PrintPages(*printer_, pages);
}

/// The store ties a file's ending to a program's name and the name to a command. A desktop of this kind keeps
/// that in files of its own, which are written once all three are known.
void QtPlatform::WriteStore(const std::string& key, const std::string& value) {
  store_[key] = value;
  if (!std::string_view(key).ends_with(kCommandKey)) return;
  AssociateProjectFiles(QCoreApplication::applicationFilePath());
}

Date QtPlatform::Today() {
  const QDate today = QDate::currentDate();
  return {today.day(), today.month(), today.year()};
}

double QtPlatform::ScreenWidth() {
  const QScreen* const screen = QApplication::primaryScreen();
  return screen == nullptr ? 0.0 : screen->availableSize().width() * kTwipsPerPixel;
}

/// Beside the project folders, beside the executable, and where an installation puts it.
QStringList QtPlatform::ManualPlaces(const std::filesystem::path& file) const {
  const QString own = QCoreApplication::applicationDirPath();
  return {FromPath(file.parent_path()), own, QDir::cleanPath(own + QStringLiteral("/../share/zefirondo"))};
}

void QtPlatform::ShowHelp(const std::filesystem::path& file) {
  const QString folder = FindManual(ManualPlaces(file), language_);
  if (!folder.isEmpty()) {
    if (!manual_) manual_ = std::make_unique<ManualViewer>(folder, language_);
    manual_->ShowIndex();
    return;
  }
  const bool italian = language_ == Language::Italian;
  const std::string missing = italian ? "La guida non è stata trovata: " : "The help was not found: ";
  const std::filesystem::path page = file.parent_path() / "manual" / (italian ? "it" : "en") / "index.html";
  ShowMessage(
      {MessageIcon::Information, italian ? "Guida" : "Help", missing + FromQt(FromPath(page)), MessageButtons::Ok});
}

std::filesystem::path QtPlatform::InformationTool() {
  for (const char* const tool : kInformationTools) {
    const QString found = QStandardPaths::findExecutable(QString::fromLatin1(tool));
    if (!found.isEmpty()) return ToPath(found);
  }
  return {};
}

bool QtPlatform::StartTool(const std::filesystem::path& tool) { return QProcess::startDetached(FromPath(tool), {}); }

/// A work of a moment is not held up by its bar; during a long one the windows are painted, and nothing else is done.
void QtPlatform::ShowProgress() {
  if (progress_shown_.isValid() && progress_shown_.elapsed() < kProgressPause) return;
  progress_shown_.start();
  Refresh();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtPlatform::EndProgram(bool failed) {
  ended_ = true;
  failed_ = failed;
  manual_.reset();
  QCoreApplication::exit(exit_status());
}

}  // namespace zefirondo::screens
