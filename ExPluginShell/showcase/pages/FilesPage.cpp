#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"

#include <utilsDll/ArchiveJob.h>
#include <utilsDll/FileManagement.h>
#include <utilsDll/NativeDialogs.h>
#include <utilsDll/ProgressBox.h>

using namespace TOLVAN_NAMESPACE;

namespace
{
constexpr int fieldWidth = 340;

bool areEqual(const QString& first, const QString& second, FileCompareCondition condition)
{
    return isEqualFileOrDirNames(QFileInfo(first), QFileInfo(second), condition);
}

QString someSizes()
{
    return QStringList{fileSizeToString(1024), fileSizeToString(1572864), sizeToString(QSize(6000, 4000))}
        .join(QStringLiteral("  ·  "));
}

} // namespace

/// File names checked and paths compared while they are typed, a folder packed and unpacked. The recycle bin is on
/// the workplace.
class FilesPage : public PageWidget
{
    Q_OBJECT

public:
    explicit FilesPage(QWidget* parent)
        : PageWidget(parent)
    {
        addNames();
        addArchive();
        column()->addWidget(makeAnswer());
        column()->addStretch(1);
    }

    void prepareForPicture() override
    {
        CArchiveJob job(ArchiveTask::pack({QCoreApplication::applicationFilePath()}, archivePath()));
        job.run();
        answer([report = job.report()] { return report.summary(); });
    }

private:
    void addNames()
    {
        auto* const form = addForm();
        const auto addField = [&](const char* title, const QString& text) {
            auto* const field = new QLineEdit(text, this);
            field->setFixedWidth(fieldWidth);
            addRow(form, title, field);
            return field;
        };
        // A verdict on what a field holds, renewed while one types.
        const auto addVerdict = [&](const char* title, const QVector<QLineEdit*>& fields,
                                    const std::function<QString()>& verdict) {
            QLabel* const label = addFact(form, title, verdict);
            for (QLineEdit* const field : fields) {
                connect(field, &QLineEdit::textChanged, label, [=] { label->setText(verdict()); });
            }
        };
        QLineEdit* const name = addField(QT_TR_NOOP("File name"), QStringLiteral("Holiday.jpg"));
        const auto valid = [name](bool isPath) {
            return validateFileName(name->text(), isPath) ? tr("may be used") : tr("refused");
        };
        addVerdict(QT_TR_NOOP("As a name"), {name}, [=] { return valid(false); });
        addVerdict(QT_TR_NOOP("As a path"), {name}, [=] { return valid(true); });
        QLineEdit* const first = addField(QT_TR_NOOP("First path"), QStringLiteral("photos/sea.jpg"));
        QLineEdit* const second = addField(QT_TR_NOOP("Second path"), QStringLiteral("Photos/Sea.png"));
        const auto compared = [=](FileCompareCondition condition) {
            return areEqual(first->text(), second->text(), condition) ? tr("equal") : tr("different");
        };
        addVerdict(QT_TR_NOOP("Compared as a whole"), {first, second},
                   [=] { return compared(CompareFullPath); });
        addVerdict(QT_TR_NOOP("Compared without the suffix"), {first, second},
                   [=] { return compared(CompareDirAndBaseName); });
        addFact(form, QT_TR_NOOP("Sizes as text"), &someSizes);
    }

    void addArchive()
    {
        addTitle(QT_TR_NOOP("A folder as an archive"));
        m_folder = withText(new QLineEdit(QDir::toNativeSeparators(QCoreApplication::applicationDirPath())),
                            QT_TR_NOOP("Folder"), "accessibleName");
        m_folder->setMinimumWidth(fieldWidth);
        addButtons({m_folder, makeButton(QT_TR_NOOP("Choose…"), [this] { chooseFolder(); })});
        auto* const pack = makeButton(QT_TR_NOOP("Pack"), [this] {
            runJob(ArchiveTask::pack({m_folder->text()}, archivePath()), tr("Packing"));
        });
        auto* const unpack = makeButton(QT_TR_NOOP("Unpack"), [this] {
            const QTemporaryDir folder;
            runJob(ArchiveTask::unpack(archivePath(), folder.path()), tr("Unpacking"));
        });
        auto* const show = makeButton(QT_TR_NOOP("Show in the file browser"), [this] {
            selectFilesInShell(QDir::tempPath(), {archivePath()});
            answer([] { return tr("Asked the file browser to show %1.").arg(archivePath()); });
        });
        addButtons({pack, unpack, show});
    }

    void chooseFolder()
    {
        auto& dialogs = Singleton<CNativeDialogs>::instance();
        const QString folder = dialogs.getFileBrowserDirectory(this, tr("Choose a folder"), m_folder->text(),
                                                               QStringLiteral("*.jpg *.png *.tif *.svg"), {});
        if (!folder.isEmpty()) {
            m_folder->setText(folder);
        }
    }

    //! [code]
    void runJob(const ArchiveTask& task, const QString& title)
    {
        CArchiveJob job(task);
        CProgressBox box(title, window());
        connect(&job, &CArchiveJob::progressed, &box,
                qOverload<qint64, qint64, const QString&>(&CProgressBox::setProgress));
        const CProgressBox::Result result = box.run(job);
        answer([=, report = job.report()] {
            return result == CProgressBox::Stopped ? tr("Cancelled: no archive is left.") : report.summary();
        });
    }
    //! [code]

    static QString archivePath()
    {
        return QDir::toNativeSeparators(QDir::temp().filePath(QStringLiteral("trelio-showcase.zip")));
    }

    QLineEdit* m_folder = nullptr;
};

QWidget* makeFilesPage(QWidget* parent)
{
    return new FilesPage(parent);
}

namespace
{
void walkNames(Report& report)
{
    const struct {
        const char* text;
        bool isPath;
        bool expected;
    } names[] = {{"Holiday.jpg", false, true},
                 {"Con", false, false},
                 {"what?.jpg", false, false},
                 {"C:/Photos/Holiday.jpg", true, true}};
    for (const auto& name : names) {
        const bool valid = validateFileName(QLatin1String(name.text), name.isPath);
        report.check(QStringLiteral("name \"%1\"").arg(QLatin1String(name.text)),
                     valid ? QStringLiteral("may be used") : QStringLiteral("refused"),
                     valid == name.expected);
    }
    report.check("a/b.jpg and A/B.png, without suffix", QStringLiteral("equal"),
                 areEqual(QStringLiteral("a/b.jpg"), QStringLiteral("A/B.png"), CompareDirAndBaseName));
    report.check("sizes as text", someSizes(), fileSizeToString(1572864).startsWith(QStringLiteral("1.5")));
    report.row("free space here", fileSizeToString(availableDiskSpace(QDir::currentPath())));
}

void walkArchive(Report& report, const QString& archive, const QString& unpacked)
{
    const auto task = ArchiveTask::pack({QCoreApplication::applicationDirPath()}, archive);
    CArchiveJob stopped(task);
    QObject::connect(&stopped, &CArchiveJob::progressed, &stopped, &CArchiveJob::stop, Qt::DirectConnection);
    stopped.run();
    report.check("packing cancelled", QStringLiteral("no archive is left"),
                 stopped.report().stopped && !QFile::exists(archive));
    CArchiveJob pack(task);
    pack.run();
    report.check("a folder packed", pack.report().summary(), pack.report().isComplete());
    CArchiveJob unpack(ArchiveTask::unpack(archive, unpacked));
    unpack.run();
    report.check("unpacked", unpack.report().summary(),
                 unpack.report().isComplete() && unpack.report().bytes == pack.report().bytes);
}

} // namespace

void walkFiles(Report& report)
{
    walkNames(report);
    const QTemporaryDir folder;
    const QDir scratch(folder.path());
    const QString archive = QDir::toNativeSeparators(scratch.filePath(QStringLiteral("folder.zip")));
    const QString unpacked = scratch.filePath(QStringLiteral("unpacked"));
    walkArchive(report, archive, unpacked);
    const QString renamed = QDir::toNativeSeparators(scratch.filePath(QStringLiteral("renamed.zip")));
    report.check("renamed", QStringLiteral("folder.zip to renamed.zip"),
                 renameFile(archive, renamed) && QFile::exists(renamed));
    // It stays in the user's bin, so it is a small one.
    const QString note = QDir::toNativeSeparators(scratch.filePath(QStringLiteral("trelio-showcase.txt")));
    QFile(note).open(QIODevice::WriteOnly);
    report.check("sent to the recycle bin", QStringLiteral("trelio-showcase.txt"),
                 moveFileToTrash(note) == FileOperationSucceeded && !QFile::exists(note));
    QFile(unpacked + QStringLiteral("/shown.txt")).open(QIODevice::WriteOnly);
    removeDirectoryContent(QDir(unpacked));
    const auto left = QDir(unpacked).entryList(QDir::Files | QDir::Hidden);
    report.check("folder emptied", QStringLiteral("%1 files left on top").arg(left.size()), left.isEmpty());
}

#include "FilesPage.moc"
