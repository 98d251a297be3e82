#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace TOLVAN_NAMESPACE
{

/// Names of archive entries: what their bytes say, and which of them may become files. Internal.

/// The system whose file names an entry has to fit.
enum class NameRules {
    Unix,
    Windows,
};

/// The rules of the system that this runs on.
NameRules nativeNameRules();

/// Text of an entry's name that carries no mark of UTF-8.
/// \param raw   the bytes of the name
/// \param extra the entry's extra fields: a UTF-8 name there is taken when it was made for these bytes
/// \return the bytes as UTF-8 where they are valid as such, else in code page 437
QString decodeUnmarkedName(const QByteArray& raw, const QByteArray& extra);

/// The parts of an entry's name, "." and empty ones left out, if it names something below the folder that is
/// unpacked into; a backslash divides parts under Windows rules only, but ".." and absolute paths are refused
/// in both spellings everywhere, and so are drives.
/// \return an empty list when the name leads outside or can't be a file under these rules
QStringList safeParts(const QString& name, NameRules rules);

/// Whether a link's target stays below the root.
/// \param folder parts of the real folder that holds the link
/// \param target what the link says; has to be relative, with ".." only at its beginning
bool linkStaysInside(const QStringList& folder, const QString& target);

} // namespace TOLVAN_NAMESPACE
