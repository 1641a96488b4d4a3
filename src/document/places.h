// Where the program's files lie on this platform.
#pragma once

#include <QString>

namespace pixano {

/// The private folder of this user's working files, whether or not it is there. To say where a file
/// lies no call is made that could fail.
QString DataFolder();

/// The same before something is written into it: it is made (mode 0700) when it is not there, and
/// closed to others when it was open to them. Throws Fault FileAccess when it cannot be made.
QString MakeDataFolder();

/// The native path, in full, of a name as the program uses it: "c:\name" lies in the data folder,
/// every other name is native, and lies in the current folder unless it says where.
QString NativePath(const QString& name);

/// The snapshots for undo and redo, the canvas where the current folder takes no copy, and what
/// lies in the current folder.
namespace file {
inline const QString Undo = QStringLiteral("c:\\temp.bml");
inline const QString Redo = QStringLiteral("c:\\temp2.bml");
inline const QString SpareCopy = QStringLiteral("c:\\elabor.tmp");
inline const QString PreviewCopy = QStringLiteral("elabor.tmp");
inline const QString Pixels = QStringLiteral("elab.ser");
inline const QString Remembered = QStringLiteral("percors.dat");
inline const QString Strengths = QStringLiteral("valori.tip");
}  // namespace file

}  // namespace pixano
