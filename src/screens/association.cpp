#include "screens/association.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include "screens/desktop_files.h"

namespace zefirondo::screens {
namespace {

/// A path as the Exec line of a desktop entry quotes it.
QString Quoted(const QString& path) {
  QString quoted;
  for (const QChar c : path) {
    if (c == u'%') {
      quoted += QStringLiteral("%%");
      continue;
    }
    if (c == u'\\') quoted += QStringLiteral("\\\\\\");  // once for the quotes, once for the value
    if (c == u'"' || c == u'`' || c == u'$') quoted += QStringLiteral("\\\\");
    quoted += c;
  }
  return u'"' + quoted + u'"';
}

/// Writes a file whose content differs. True when it was written.
bool WriteIfNew(const QString& path, const QByteArray& content) {
  QFile before(path);
  if (before.open(QIODevice::ReadOnly) && before.readAll() == content) return false;
  before.close();
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
}

void StartIfThere(const QString& tool, const QString& folder) {
  const QString found = QStandardPaths::findExecutable(tool);
  if (!found.isEmpty()) QProcess::startDetached(found, {folder});
}

/// An installation into a folder that the desktop reads has brought the two files with it.
bool IsInstalled(const QString& executable, const QString& entry) {
  const QString data = QDir::cleanPath(QFileInfo(executable).path() + QStringLiteral("/../share"));
  const QStringList read = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
  return read.contains(data) && QFileInfo(data + entry).isFile();
}

}  // namespace

QByteArray DesktopEntry(const QString& executable) {
  QString entry = QString::fromUtf8(kDesktopEntry);
  return entry.replace(QStringLiteral("Exec=zefirondo "), QStringLiteral("Exec=") + Quoted(executable) + u' ').toUtf8();
}

QByteArray MimePackage() { return QByteArray(kMimePackage); }

void AssociateProjectFiles(const QString& executable) {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  if (data.isEmpty() || executable.isEmpty()) return;
  const QString entry = QStringLiteral("/applications/%1.desktop").arg(QLatin1String(kApplicationId));
  // An entry of the user, left by another copy of the program, hides the installed one: that is set right.
  if (IsInstalled(executable, entry) && !QFileInfo::exists(data + entry)) return;
  if (WriteIfNew(data + QStringLiteral("/mime/packages/zefirondo.xml"), MimePackage())) {
    StartIfThere(QStringLiteral("update-mime-database"), data + QStringLiteral("/mime"));
  }
  if (WriteIfNew(data + entry, DesktopEntry(executable))) {
    StartIfThere(QStringLiteral("update-desktop-database"), data + QStringLiteral("/applications"));
  }
}

}  // namespace zefirondo::screens
