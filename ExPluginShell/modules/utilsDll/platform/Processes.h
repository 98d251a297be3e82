#pragma once

#include <QString>

#include <optional>

namespace TOLVAN_NAMESPACE::Platform
{

/// The two words of a version resource's file version.
struct FileVersionWords {
    quint32 mostSignificant = 0;
    quint32 leastSignificant = 0;
};

/// Base file name of the running executable, extension included; empty if the system does not report it.
QString currentProcessName();

/// File version of the executable of the first running process of that base name (compared without case).
/// \return nothing when no such process is found or it carries no version; always nothing on systems whose
///         executables have no version resource
std::optional<FileVersionWords> fileVersionOfProcess(const QString& processName);

} // namespace TOLVAN_NAMESPACE::Platform
