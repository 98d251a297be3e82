#include "FilesPage.h"

#include "FileWork.h"
#include "Pages.h"

#include <utilsDll/FileManagement.h>
#include <utilsDll/NativeDialogs.h>

#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

QWidget* makeFilesPage(QWidget* parent)
{
    return new FilesPage(parent);
}

FilesPage::FilesPage(QWidget* parent)
    : PageWidget(parent)
{
    addNames();
    addArchive();
    addFolderButtons();
    column()->addStretch(1);
    languageChanged();
}

FilesPage::~FilesPage() = default; // ends the work

void FilesPage::addNames()
{
    auto* form = addForm();
    m_name = new QLineEdit(QStringLiteral("Holiday.jpg"), this);
    m_verdict = new QLabel(this);
    m_sizes = new QLabel(this);
    connect(m_name, &QLineEdit::textChanged, this, &FilesPage::checkName);
    addRow(form, QT_TR_NOOP("File name"), m_name);
    addRow(form, QT_TR_NOOP("As a name and as a path"), m_verdict);
    auto* paths = new QWidget(this);
    auto* row = new QHBoxLayout(paths);
    row->setContentsMargins(0, 0, 0, 0);
    m_firstPath = new QLineEdit(QStringLiteral("photos/sea.jpg"), paths);
    m_secondPath = new QLineEdit(QStringLiteral("Photos/Sea.png"), paths);
    for (QLineEdit* const path : {m_firstPath, m_secondPath}) {
        row->addWidget(path);
        connect(path, &QLineEdit::textChanged, this, &FilesPage::comparePaths);
    }
    m_comparison = new QLabel(this);
    addRow(form, QT_TR_NOOP("Two paths"), paths);
    addRow(form, QT_TR_NOOP("As a whole and without suffix"), m_comparison);
    addRow(form, QT_TR_NOOP("Sizes as text"), m_sizes);
}

void FilesPage::addArchive()
{
    addTitle(QT_TR_NOOP("A folder as an archive"));
    auto* row = new QHBoxLayout;
    m_folder = new QLineEdit(QDir::toNativeSeparators(FileWork::sampleFolder()), this);
    row->addWidget(m_folder, 1);
    row->addWidget(makeButton(QT_TR_NOOP("Choose..."), [this] { chooseFolder(); }));
    column()->addLayout(row);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(makeButton(QT_TR_NOOP("Pack"), [this] { start(true); }));
    buttons->addWidget(makeButton(QT_TR_NOOP("Unpack and compare"), [this] { start(false); }));
    m_cancel = makeButton(QT_TR_NOOP("Cancel"), [this] {
        if (m_work) {
            m_work->requestInterruption();
        }
    });
    m_cancel->setEnabled(false);
    buttons->addWidget(m_cancel);
    m_bar = new QProgressBar(this);
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    buttons->addWidget(m_bar, 1);
    column()->addLayout(buttons);
    m_result = new QLabel(this);
    m_result->setWordWrap(true);
    column()->addWidget(m_result);
}

void FilesPage::addFolderButtons()
{
    addTitle(QT_TR_NOOP("The archive"));
    auto* row = new QHBoxLayout;
    row->addWidget(makeButton(QT_TR_NOOP("Show in the file browser"),
                              [this] { selectFilesInShell(QDir::tempPath(), {archivePath()}); }));
    row->addWidget(makeButton(QT_TR_NOOP("Send to the recycle bin"), [this] { trashArchive(); }));
    row->addStretch(1);
    column()->addLayout(row);
}

QString FilesPage::archivePath() const
{
    return QDir::toNativeSeparators(QDir::temp().filePath(QStringLiteral("trelio-showcase.zip")));
}

QString FilesPage::unpackedPath() const
{
    return QDir::temp().filePath(QStringLiteral("trelio-showcase-unpacked"));
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
    m_verdict->setText(verdict(false) + QStringLiteral("  ·  ") + verdict(true));
}

void FilesPage::comparePaths()
{
    const auto verdict = [this](FileCompareCondition condition) {
        return isEqualFileOrDirNames(QFileInfo(m_firstPath->text()), QFileInfo(m_secondPath->text()),
                                     condition)
                   ? tr("equal")
                   : tr("different");
    };
    m_comparison->setText(verdict(CompareFullPath) + QStringLiteral("  ·  ") +
                          verdict(CompareDirAndBaseName));
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

void FilesPage::start(bool pack)
{
    if (m_work) {
        return;
    }
    m_packing = pack;
    m_work = pack ? std::make_unique<FileWork>(FileWork::Pack, m_folder->text(), archivePath())
                  : std::make_unique<FileWork>(FileWork::Unpack, archivePath(), unpackedPath());
    connect(m_work.get(), &FileWork::progress, m_bar, &QProgressBar::setValue);
    connect(m_work.get(), &FileWork::finished, this, &FilesPage::workEnded);
    m_cancel->setEnabled(true);
    say(m_result, [] { return QString(); });
    m_bar->setValue(0);
    m_work->start();
}

void FilesPage::workEnded()
{
    m_cancel->setEnabled(false);
    const bool done = m_work->succeeded();
    const int files = m_work->fileCount();
    m_work.reset();
    if (!done) {
        say(m_result, [] { return tr("Not done: cancelled, or a file can't be read or written."); });
        return;
    }
    m_bar->setValue(100);
    if (m_packing) {
        const QString size = fileSizeToString(QFileInfo(archivePath()).size());
        say(m_result, [=] { return tr("Files packed: %1, archive: %2").arg(files).arg(size); });
        return;
    }
    const QString difference = FileWork::firstDifference(m_folder->text(), unpackedPath());
    say(m_result, [=] {
        return difference.isEmpty() ? tr("Files unpacked: %1. Both folders are equal.").arg(files)
                                    : tr("The folders differ: %1").arg(difference);
    });
    QDir(unpackedPath()).removeRecursively();
}

void FilesPage::trashArchive()
{
    const bool moved = moveFileToTrash(archivePath()) == FileOperationSucceeded;
    say(m_result,
        [moved] { return moved ? tr("The archive is in the recycle bin.") : tr("There is no archive."); });
}
