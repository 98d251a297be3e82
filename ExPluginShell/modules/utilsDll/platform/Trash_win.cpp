#include "platform/FileMoves.h"
#include "platform/Trash.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

/// The bin keeps the content of a file as "$R..." and beside it "$I..." with the place that it came from.
QString describingFile(const QString& place)
{
    const QFileInfo file(place);
    return file.fileName().startsWith(QLatin1String("$R"))
               ? file.path() + QStringLiteral("/$I") + file.fileName().mid(2)
               : QString();
}

} // namespace

bool moveToRecycleBin(const QString& path, QString* place)
{
    if (place && QFile::moveToTrash(path, place)) {
        return true;
    }
    std::wstring names = path.toStdWString();
    names.push_back(L'\0'); // the shell reads a list, which a second zero ends

    SHFILEOPSTRUCTW operation = {};
    operation.wFunc = FO_DELETE;
    operation.pFrom = names.c_str();
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    return SHFileOperationW(&operation) == 0;
}

bool restoreFromRecycleBin(const QString& place, const QString& path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (!moveWithoutReplacing(QDir::toNativeSeparators(place), QDir::toNativeSeparators(path))) {
        return false;
    }
    const QString description = describingFile(place);
    if (!description.isEmpty()) {
        QFile::remove(description);
    }
    return true;
}

} // namespace TOLVAN_NAMESPACE::Platform
