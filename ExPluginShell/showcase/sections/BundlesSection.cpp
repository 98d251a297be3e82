#include "Report.h"
#include "Sections.h"

#include <QDirIterator>
#include <QFile>
#include <QLocale>

#include <algorithm>

namespace
{

struct Folder {
    const char* path;
    int entries;
};

void showFolder(Report& report, const Folder& folder)
{
    int entries = 0;
    qint64 size = 0;
    for (QDirIterator it(QLatin1String(folder.path), QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        it.next();
        ++entries;
        size += it.fileInfo().size();
    }
    report.check(QLatin1String(folder.path),
                 QStringLiteral("%1 entries, %2").arg(entries).arg(QLocale::c().formattedDataSize(size)),
                 entries == folder.entries);
}

void showCountries(Report& report)
{
    QFile file(QStringLiteral(":/translations/countries.en.txt"));
    file.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = file.readAll().split('\n');
    const auto choosable = std::count_if(lines.begin(), lines.end(), [](const QByteArray& line) {
        return !line.trimmed().isEmpty() && !line.contains("; not_selectable");
    });
    report.check(QStringLiteral("country list"), QStringLiteral("%1 lines to choose from").arg(choosable),
                 choosable == 243);
}

void showDatabase(Report& report)
{
    QFile file(QStringLiteral(":/calibration/db/CAFList5.db"));
    const bool opened = file.open(QIODevice::ReadOnly);
    const uchar* const mapped = opened ? file.map(0, file.size()) : nullptr;
    report.check(QStringLiteral("calibration database"),
                 mapped ? QStringLiteral("%1, mapped where it lies in the library")
                              .arg(QString::fromLatin1(reinterpret_cast<const char*>(mapped)))
                        : QStringLiteral("cannot be mapped"),
                 mapped);
}

} // namespace

void showBundles(Report& report)
{
    const Folder folders[] = {
        {":/qss", 7},   {":/fonts", 9},         {":/icons", 349 + 8},
        {":/other", 1}, {":/translations", 10}, {":/calibration", 3},
    };
    for (const Folder& folder : folders) {
        showFolder(report, folder);
    }
    showCountries(report);
    showDatabase(report);
}
