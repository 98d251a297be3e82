#include "FilesPage.h"

#include "Pages.h"

#include <utilsDll/ArchiveJob.h>
#include <utilsDll/FileManagement.h>
#include <utilsDll/NativeDialogs.h>
#include <utilsDll/ProgressBox.h>

#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr int fieldWidth = 340;

} // namespace

QWidget* makeFilesPage(QWidget* parent)
{
    return new FilesPage(parent);
}

FilesPage::FilesPage(QWidget* parent)
    : PageWidget(parent)
{
    addNames();
    addArchive();
    addAnswer();
    column()->addStretch(1);
    languageChanged();
}

void FilesPage::addNames()
{
    auto* const form = addForm();
    const auto addField = [&](const char* title, const QString& text, void (FilesPage::*check)()) {
        auto* const field = new QLineEdit(text, this);
        field->setFixedWidth(fieldWidth);
        connect(field, &QLineEdit::textChanged, this, check);
        addRow(form, title, field);
        return field;
    };
    const auto addVerdict = [&](const char* title) {
        auto* const label = new QLabel(this);
        addRow(form, title, label);
        return label;
    };
    m_name = addField(QT_TR_NOOP("File name"), QStringLiteral("Holiday.jpg"), &FilesPage::checkName);
    m_asName = addVerdict(QT_TR_NOOP("As a name"));
    m_asPath = addVerdict(QT_TR_NOOP("As a path"));
    m_firstPath =
        addField(QT_TR_NOOP("First path"), QStringLiteral("photos/sea.jpg"), &FilesPage::comparePaths);
    m_secondPath =
        addField(QT_TR_NOOP("Second path"), QStringLiteral("Photos/Sea.png"), &FilesPage::comparePaths);
    m_whole = addVerdict(QT_TR_NOOP("Compared as a whole"));
    m_withoutSuffix = addVerdict(QT_TR_NOOP("Compared without the suffix"));
    m_sizes = addVerdict(QT_TR_NOOP("Sizes as text"));
}

void FilesPage::addArchive()
{
    addTitle(QT_TR_NOOP("A folder as an archive"));
    auto* const row = new QHBoxLayout;
    m_folder = new QLineEdit(QDir::toNativeSeparators(QCoreApplication::applicationDirPath()), this);
    m_folder->setMinimumWidth(fieldWidth);
    translate(QT_TR_NOOP("Folder"), [this](const QString& text) { m_folder->setAccessibleName(text); });
    row->addWidget(m_folder);
    row->addWidget(makeButton(QT_TR_NOOP("Choose…"), [this] { chooseFolder(); }));
    row->addStretch();
    column()->addLayout(row);
    const auto unpacked = [] { return QDir::temp().filePath(QStringLiteral("trelio-showcase-unpacked")); };
    addButtons(
        {makeButton(QT_TR_NOOP("Pack"),
                    [this] { runJob(ArchiveTask::pack({m_folder->text()}, archivePath()), tr("Packing")); }),
         makeButton(QT_TR_NOOP("Unpack"),
                    [=] {
                        runJob(ArchiveTask::unpack(archivePath(), unpacked()), tr("Unpacking"));
                        QDir(unpacked()).removeRecursively();
                    }),
         makeButton(QT_TR_NOOP("Show in the file browser"),
                    [this] {
                        selectFilesInShell(QDir::tempPath(), {archivePath()});
                        answer(
                            [this] { return tr("Asked the file browser to show %1.").arg(archivePath()); });
                    }),
         makeButton(QT_TR_NOOP("Send to the recycle bin"), [this] {
             const bool moved = moveFileToTrash(archivePath()) == FileOperationSucceeded;
             answer([moved] {
                 return moved ? tr("The archive is in the recycle bin.") : tr("There is no archive.");
             });
         })});
}

//! [code]
void FilesPage::runJob(const ArchiveTask& task, const QString& title)
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

QString FilesPage::archivePath() const
{
    return QDir::toNativeSeparators(QDir::temp().filePath(QStringLiteral("trelio-showcase.zip")));
}

void FilesPage::languageChanged()
{
    checkName();
    comparePaths();
    m_sizes->setText(
        QStringList{fileSizeToString(1024), fileSizeToString(1572864), sizeToString(QSize(6000, 4000))}.join(
            QStringLiteral("  ·  ")));
}

void FilesPage::checkName()
{
    const auto verdict = [this](bool isPath) {
        return validateFileName(m_name->text(), isPath) ? tr("may be used") : tr("refused");
    };
    m_asName->setText(verdict(false));
    m_asPath->setText(verdict(true));
}

void FilesPage::comparePaths()
{
    const auto verdict = [this](FileCompareCondition condition) {
        const QFileInfo first(m_firstPath->text());
        return isEqualFileOrDirNames(first, QFileInfo(m_secondPath->text()), condition) ? tr("equal")
                                                                                        : tr("different");
    };
    m_whole->setText(verdict(CompareFullPath));
    m_withoutSuffix->setText(verdict(CompareDirAndBaseName));
}

void FilesPage::chooseFolder()
{
    auto& dialogs = Singleton<CNativeDialogs>::instance();
    const QString folder = dialogs.getFileBrowserDirectory(this, tr("Choose a folder"), m_folder->text(),
                                                           QStringLiteral("*.jpg *.png *.tif *.svg"), {});
    if (!folder.isEmpty()) {
        m_folder->setText(folder);
    }
}

void FilesPage::prepareForPicture()
{
    CArchiveJob job(ArchiveTask::pack({QCoreApplication::applicationFilePath()}, archivePath()));
    job.run();
    answer([report = job.report()] { return report.summary(); });
}
