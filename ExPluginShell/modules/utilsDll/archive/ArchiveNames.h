#pragma once

#include <QString>
#include <QStringList>

namespace TOLVAN_NAMESPACE
{

/// Names of archive entries: which of them may become files. Internal.

/// The system whose file names an entry has to fit.
enum class NameRules {
    Unix,
    Windows,
};

/// The rules of the system that this runs on.
NameRules nativeNameRules();

constexpr int deepestName = 256; ///< Deepest nesting accepted: creating folders slows down with depth.

/// Whether an entry's name leads out of the folder: absolute, with a drive or "..". A backslash counts as a
/// separator under Windows rules, and in ".." under both.
bool leadsOutside(const QString& name, NameRules rules);

/// The parts of an entry's name, without "." and empty ones.
/// \return an empty list if the name leads outside, can't be a file under these rules, or is nested too deeply
QStringList safeParts(const QString& name, NameRules rules);

/// Whether a link's target stays below the root.
/// \param folder parts of the real folder that holds the link
/// \param target what the link says; has to be relative, with ".." only at its beginning
bool linkStaysInside(const QStringList& folder, const QString& target);

} // namespace TOLVAN_NAMESPACE
