// Prints what a desktop takes a file for: its type, the name of the icon, and the words for it. Where the file lies is
// as $XDG_DATA_DIRS says, so that a test can ask the MIME types of a package that is not installed.
//
// usage: mime_type FILE

#include <QCoreApplication>
#include <QMimeDatabase>
#include <cstdio>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 2) return 2;
  const QMimeType type = QMimeDatabase().mimeTypeForFile(QString::fromLocal8Bit(argv[1]));
  std::printf("%s %s \"%s\"\n", qPrintable(type.name()), qPrintable(type.iconName()), qPrintable(type.comment()));
  return 0;
}
