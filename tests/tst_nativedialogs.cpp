#include "FileTree.h"
#include "TestMain.h"

#include <utilsDll/NativeDialogs.h>

#include <QDialogButtonBox>
#include <QLibrary>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <functional>

using namespace TOLVAN_NAMESPACE;

namespace
{

CNativeDialogs& dialogs()
{
    return Singleton<CNativeDialogs>::instance();
}

/// Runs a step as soon as a file dialog is open and ready; closes the dialog if the step did not.
class DialogStep : public QObject
{
    Q_OBJECT

public:
    explicit DialogStep(std::function<void(QFileDialog&)> step)
        : m_step(std::move(step))
    {
        connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
        m_timer.start(20);
    }
    bool happened() const { return m_happened; }

private Q_SLOTS:
    void look()
    {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || m_happened) {
            return;
        }
        m_timer.stop();
        m_happened = true;
        m_step(*dialog);
        if (dialog->isVisible()) {
            dialog->reject();
        }
    }

private:
    std::function<void(QFileDialog&)> m_step;
    QTimer m_timer;
    bool m_happened = false;
};

QPushButton* selectButton(const QFileDialog& dialog)
{
    const auto buttons = dialog.findChildren<QPushButton*>();
    for (QPushButton* const button : buttons) {
        if (button->text() == QLatin1String("Select Folder") && button->isVisible()) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

class NativeDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneObjectForAllModules();
    void standardDialogsGetNoOptions_data();
    void standardDialogsGetNoOptions();
    void answersAreNotRead();
    void pickerShowsImagesOnly();
    void pickerReturnsTheOpenFolder_data();
    void pickerReturnsTheOpenFolder();
    void pickerCancelled();
    void onePickerAtATime();
    void pickerNeedsItsFolder();

private:
    QString pick(const std::function<void(QFileDialog&)>& step, bool* shown = nullptr) const
    {
        DialogStep watcher(step);
        const QString folder =
            dialogs().getFileBrowserDirectory(nullptr, QStringLiteral("Pictures"), m_folder->path(),
                                              QStringLiteral("*.jpg *.png"), QFileDialog::ReadOnly);
        if (shown) {
            *shown = watcher.happened();
        }
        return folder;
    }
    /// The view that lists the folder, once it shows \a name, and that row.
    static QModelIndex rowOf(const QFileDialog& dialog, const QString& name, QAbstractItemView*& view);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void NativeDialogsTest::init()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_folder = std::make_unique<QTemporaryDir>();
    FileTree::write(m_folder->filePath(QStringLiteral("photo.jpg")));
    FileTree::write(m_folder->filePath(QStringLiteral("notes.txt")));
    FileTree::write(m_folder->filePath(QStringLiteral("below/drawing.png")));
}

QModelIndex NativeDialogsTest::rowOf(const QFileDialog& dialog, const QString& name, QAbstractItemView*& view)
{
    view = dialog.findChild<QListView*>(QStringLiteral("listView"));
    QModelIndexList rows;
    for (int i = 0; view && rows.isEmpty() && i < 250; ++i) {
        QTest::qWait(20); // the folder is read by a thread
        rows = view->model()->match(view->rootIndex().model()->index(0, 0, view->rootIndex()),
                                    Qt::DisplayRole, name, 1, Qt::MatchExactly);
    }
    return rows.value(0);
}

void NativeDialogsTest::oneObjectForAllModules()
{
    QLibrary module(QStringLiteral(DIALOGS_MODULE));
    QVERIFY2(module.load(), qPrintable(module.errorString()));
    const auto ofModule = reinterpret_cast<void* (*)()>(module.resolve("nativeDialogsOfModule"));
    QVERIFY(ofModule);
    QCOMPARE(ofModule(), static_cast<void*>(&dialogs()));
}

void NativeDialogsTest::standardDialogsGetNoOptions_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<bool>("foldersOnly");
    QTest::newRow("open file") << 0 << int(QFileDialog::ExistingFile) << false;
    QTest::newRow("open files") << 1 << int(QFileDialog::ExistingFiles) << false;
    QTest::newRow("save file") << 2 << int(QFileDialog::AnyFile) << false;
    QTest::newRow("existing folder") << 3 << -1 << true;
}

void NativeDialogsTest::standardDialogsGetNoOptions()
{
    QFETCH(int, which);
    QFETCH(int, fileMode);
    QFETCH(bool, foldersOnly);
    DialogStep step([&](QFileDialog& dialog) {
        QVERIFY(fileMode < 0 || int(dialog.fileMode()) == fileMode);
        QCOMPARE(dialog.testOption(QFileDialog::ShowDirsOnly), foldersOnly);
        QVERIFY(!dialog.testOption(QFileDialog::ReadOnly));
        QVERIFY(!dialog.testOption(QFileDialog::DontConfirmOverwrite));
        QVERIFY(!dialog.testOption(QFileDialog::HideNameFilterDetails));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Title"));
        QCOMPARE(dialog.directory(), QDir(m_folder->path()));
        if (!foldersOnly) {
            QCOMPARE(dialog.nameFilters(),
                     QStringList({QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")}));
            QCOMPARE(dialog.selectedNameFilter(), QStringLiteral("All (*)"));
        }
    });
    const QFileDialog::Options options =
        QFileDialog::ReadOnly | QFileDialog::DontConfirmOverwrite | QFileDialog::HideNameFilterDetails;
    const QString title = QStringLiteral("Title");
    const QString filter = QStringLiteral("Text (*.txt);;All (*)");
    QString chosen = QStringLiteral("All (*)");
    const QString folder = m_folder->path();
    switch (which) {
    case 0:
        QVERIFY(dialogs().getOpenFileName(nullptr, title, folder, filter, &chosen, options).isEmpty());
        break;
    case 1:
        QVERIFY(dialogs().getOpenFileNames(nullptr, title, folder, filter, &chosen, options).isEmpty());
        break;
    case 2:
        QVERIFY(dialogs().getSaveFileName(nullptr, title, folder, filter, &chosen, options).isEmpty());
        break;
    default:
        QVERIFY(dialogs().getExistingDirectory(nullptr, title, folder, options).isEmpty());
    }
    QVERIFY(step.happened());
}

void NativeDialogsTest::answersAreNotRead()
{
    dialogs().setOpenFileName(QStringLiteral("x"));
    dialogs().setSaveFileName(QStringLiteral("x"));
    dialogs().setExistingDirectory(QStringLiteral("x"));
    dialogs().setOpenFileNames({QStringLiteral("x"), 1});
    DialogStep step([](QFileDialog&) {});
    QVERIFY(
        dialogs().getOpenFileName(nullptr, QString(), m_folder->path(), QString(), nullptr, {}).isEmpty());
    QVERIFY(step.happened());
}

void NativeDialogsTest::pickerShowsImagesOnly()
{
    pick([&](QFileDialog& dialog) {
        QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("Image Files (*.jpg *.png)")));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Pictures"));
        QVERIFY(selectButton(dialog) && selectButton(dialog)->isEnabled());
        QAbstractItemView* view = nullptr;
        QVERIFY(rowOf(dialog, QStringLiteral("photo.jpg"), view).isValid());
        QCOMPARE(view->model()->rowCount(view->rootIndex()), 2); // and the folder
        const QString shot = qEnvironmentVariable("TOLVAN_SCREENSHOTS");
        QVERIFY(shot.isEmpty() || dialog.grab().save(shot + QStringLiteral("/folder-picker.png")));
    });
}

void NativeDialogsTest::pickerReturnsTheOpenFolder_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("folder");
    QTest::newRow("at once") << QString() << QString();
    QTest::newRow("a file double-clicked") << QStringLiteral("double photo.jpg") << QString();
    QTest::newRow("Enter on a file") << QStringLiteral("enter photo.jpg") << QString();
    QTest::newRow("a file typed") << QStringLiteral("type photo.jpg") << QString();
    QTest::newRow("a folder double-clicked") << QStringLiteral("double below") << QStringLiteral("/below");
    QTest::newRow("a folder typed") << QStringLiteral("type below") << QStringLiteral("/below");
    QTest::newRow("a folder marked only") << QStringLiteral("click below") << QString();
}

void NativeDialogsTest::pickerReturnsTheOpenFolder()
{
    QFETCH(QString, steps);
    QFETCH(QString, folder);
    const QString what = steps.section(QLatin1Char(' '), 0, 0);
    const QString name = steps.section(QLatin1Char(' '), 1);
    const QString picked = pick([&](QFileDialog& dialog) {
        QAbstractItemView* view = nullptr;
        const QModelIndex row = rowOf(dialog, name.isEmpty() ? QStringLiteral("photo.jpg") : name, view);
        QVERIFY(row.isValid());
        const QPoint middle = view->visualRect(row).center();
        if (what == QLatin1String("type")) {
            auto* const edit = dialog.findChild<QLineEdit*>();
            edit->setText(name);
            QTest::keyClick(edit, Qt::Key_Return);
        } else if (!what.isEmpty()) {
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, middle);
            if (what == QLatin1String("double")) {
                QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, middle);
            } else if (what == QLatin1String("enter")) {
                QTest::keyClick(view, Qt::Key_Return);
            }
        }
        QVERIFY(dialog.isVisible());
        QTRY_COMPARE(dialog.directory(), QDir(m_folder->path() + folder));
        if (steps.isEmpty()) {
            selectButton(dialog)->setFocus();
            QTest::keyClick(selectButton(dialog), Qt::Key_Space);
        } else {
            QTest::mouseClick(selectButton(dialog), Qt::LeftButton);
        }
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(picked, QDir::toNativeSeparators(m_folder->path() + folder));
}

void NativeDialogsTest::pickerCancelled()
{
    bool shown = false;
    QVERIFY(pick([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, &shown).isEmpty());
    QVERIFY(shown);
    QVERIFY(pick([](QFileDialog& dialog) { dialog.close(); }, &shown).isEmpty());
    QVERIFY(shown);
}

void NativeDialogsTest::onePickerAtATime()
{
    QString second = QStringLiteral("not asked");
    const QString first = pick([&](QFileDialog& dialog) {
        second = dialogs().getFileBrowserDirectory(nullptr, QString(), QString(), QString(), {});
        QTest::mouseClick(selectButton(dialog), Qt::LeftButton);
    });
    QVERIFY(second.isEmpty());
    QCOMPARE(first, QDir::toNativeSeparators(m_folder->path()));
}

void NativeDialogsTest::pickerNeedsItsFolder()
{
    DialogStep step([](QFileDialog&) {});
    QVERIFY(dialogs()
                .getFileBrowserDirectory(nullptr, QString(), m_folder->filePath(QStringLiteral("missing")),
                                         QString(), {})
                .isEmpty());
    QVERIFY(!step.happened());
}

TOLVAN_GUI_TEST_MAIN(NativeDialogsTest)
#include "tst_nativedialogs.moc"
