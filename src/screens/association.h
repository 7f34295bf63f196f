// Ties project files to the program by the desktop's own means: a MIME type for "*.pro" and a desktop entry, both
// in the user's data folder.
#pragma once

#include <QString>

namespace zefirondo::screens {

/// The name of the program's desktop entry, icon and windows.
inline constexpr char kApplicationId[] = "io.github.zefirondo.Zefirondo";

/// Writes the two files where they differ, and has the desktop read them; an installed program, which brought its own,
/// leaves the user's folder alone unless an entry stands there. Failures are ignored.
void AssociateProjectFiles(const QString& executable);

/// The desktop entry that starts this executable.
[[nodiscard]] QByteArray DesktopEntry(const QString& executable);

/// The MIME package of project files.
[[nodiscard]] QByteArray MimePackage();

}  // namespace zefirondo::screens
