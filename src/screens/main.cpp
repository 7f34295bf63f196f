// The desktop program.

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>

#include "core/acts.h"
#include "program/assembly.h"
#include "screens/association.h"
#include "screens/mdithsm.h"
#include "screens/pictures.h"
#include "screens/qt_platform.h"
#include "screens/qt_text.h"

namespace {

using namespace zefirondo;

/// The folder of the executable where that can be written and was not installed, which makes a portable copy; else
/// one in the user's home.
std::filesystem::path ProgramFolder() {
  const QString own = QCoreApplication::applicationDirPath();
  const QString home = QDir::home().filePath(QStringLiteral("Zefirondo"));
  const bool installed = QFileInfo::exists(own + QStringLiteral("/../share/zefirondo"));
  const bool portable = !installed && QFileInfo(own).isWritable();
  return std::filesystem::path((portable ? own : home).toStdU16String());
}

/// All arguments joined by a blank: the path of a project, with the blanks that it holds.
std::string CommandLine() { return screens::FromQt(QCoreApplication::arguments().mid(1).join(u' ')); }

/// The desktop's own dialogs and menus in the program's language.
void LoadQtTexts(QTranslator& texts, Language language) {
  if (language != Language::Italian) return;
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (texts.load(QStringLiteral("qtbase_it"), folder)) QCoreApplication::installTranslator(&texts);
}

}  // namespace

int main(int argc, char** argv) {
  // Plots are painted by the processor: an OpenGL driver would cost memory and start-up time for nothing.
  if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) qputenv("QT_XCB_GL_INTEGRATION", "none");
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zefirondo"));
  QApplication::setApplicationDisplayName(QString());
  QGuiApplication::setDesktopFileName(QLatin1String(screens::kApplicationId));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(screens::ProgramIcon());

  const Language language = SystemLanguage();
  QTranslator texts;
  LoadQtTexts(texts, language);
  screens::QtPlatform platform(language);
  Program program(platform, language, ProgramFolder());
  ConnectProgram(program);
  screens::MainFrameView frame(program);
  platform.Attach(&frame, [&frame] { frame.stage().Refresh(); });
  frame.ShowOnScreen();
  frame.stage().Act([&] { Start(program, CommandLine()); });
  return platform.ended() ? platform.exit_status() : QApplication::exec();
}
