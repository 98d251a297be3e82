#include "FileTree.h"
#include "FolderTest.h"
#include "TestMain.h"

#include <utilsDll/NativeDialogs.h>

#include <QLibrary>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <functional>

using namespace TOLVAN_NAMESPACE;

using Ask = std::function<QString(const QString& folder, QString* selectedFilter)>;
Q_DECLARE_METATYPE(Ask)

namespace
{

CNativeDialogs& dialogs()
{
    return Singleton<CNativeDialogs>::instance();
}

/// Runs a step as soon as a file dialog is open and ready; closes the dialog if the step did not.
class DialogStep
{
public:
    explicit DialogStep(std::function<void(QFileDialog&)> step)
        : m_step(std::move(step))
    {
        m_timer.callOnTimeout([this] { look(); });
        m_timer.start(20);
    }
    bool happened() const { return m_happened; }

private:
    void look()
    {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            return;
        }
        m_timer.stop();
        m_happened = true;
        m_step(*dialog);
        if (dialog->isVisible()) {
            dialog->reject();
        }
    }

    std::function<void(QFileDialog&)> m_step;
    QTimer m_timer;
    bool m_happened = false;
};

QPushButton* selectButton(const QFileDialog& dialog)
{
    return dialog.findChild<QPushButton*>(QStringLiteral("selectFolderButton"));
}

} // namespace

class NativeDialogsTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void oneObjectForAllModules();
    void standardDialogsGetNoOptions_data();
    void standardDialogsGetNoOptions();
    void pickerShowsImagesOnly();
    void pickerReturnsTheOpenFolder_data();
    void pickerReturnsTheOpenFolder();
    void pickerWithoutAnAnswer();
    void onePickerAtATime();

private:
    /// Answer of the picker, which is closed after the step at the latest.
    QString pick(const QString& dir, const std::function<void(QFileDialog&)>& step) const
    {
        DialogStep watcher(step);
        const QString picked = dialogs().getFileBrowserDirectory(
            nullptr, QStringLiteral("Pictures"), dir, QStringLiteral("*.jpg *.png"), QFileDialog::ReadOnly);
        return watcher.happened() ? picked : QStringLiteral("never shown");
    }
    /// The view that lists the folder, once it shows \a name, and that row.
    static QModelIndex rowOf(const QFileDialog& dialog, const QString& name, QAbstractItemView*& view);
};

/// Sets the answers for scripted runs: every dialog has to be shown nevertheless.
void NativeDialogsTest::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    dialogs().setOpenFileName(QStringLiteral("x"));
    dialogs().setSaveFileName(QStringLiteral("x"));
    dialogs().setExistingDirectory(QStringLiteral("x"));
    dialogs().setOpenFileNames({QStringLiteral("x"), 1});
}

void NativeDialogsTest::init()
{
    FolderTest::init();
    FileTree::write(path("photo.jpg"));
    FileTree::write(path("notes.txt"));
    FileTree::write(path("below/drawing.png"));
}

QModelIndex NativeDialogsTest::rowOf(const QFileDialog& dialog, const QString& name, QAbstractItemView*& view)
{
    view = dialog.findChild<QListView*>(QStringLiteral("listView"));
    const auto row = [&] {
        const QModelIndex root = view->rootIndex();
        return view->model()
            ->match(root.model()->index(0, 0, root), Qt::DisplayRole, name, 1, Qt::MatchExactly)
            .value(0);
    };
    if (!QTest::qWaitFor([&] { return row().isValid(); }, 30000)) { // the folder is read by a thread
        qWarning("%s is not shown", qPrintable(name));
    }
    return row();
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
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<int>("fileMode");
    const QFileDialog::Options options =
        QFileDialog::ReadOnly | QFileDialog::DontConfirmOverwrite | QFileDialog::HideNameFilterDetails;
    const QString title = QStringLiteral("Title");
    const QString filter = QStringLiteral("Text (*.txt);;All (*)");
    const auto row = [](const char* name, QFileDialog::FileMode mode, const Ask& ask) {
        QTest::newRow(name) << ask << int(mode);
    };
    row("open file", QFileDialog::ExistingFile, [=](const QString& in, QString* chosen) {
        return dialogs().getOpenFileName(nullptr, title, in, filter, chosen, options);
    });
    row("open files", QFileDialog::ExistingFiles, [=](const QString& in, QString* chosen) {
        return dialogs().getOpenFileNames(nullptr, title, in, filter, chosen, options).join(QLatin1Char(','));
    });
    row("save file", QFileDialog::AnyFile, [=](const QString& in, QString* chosen) {
        return dialogs().getSaveFileName(nullptr, title, in, filter, chosen, options);
    });
    row("existing folder", QFileDialog::Directory, [=](const QString& in, QString*) {
        return dialogs().getExistingDirectory(nullptr, title, in, options);
    });
}

void NativeDialogsTest::standardDialogsGetNoOptions()
{
    QFETCH(Ask, ask);
    QFETCH(int, fileMode);
    const bool forFolders = fileMode == QFileDialog::Directory;
    DialogStep step([&](QFileDialog& dialog) {
        QVERIFY(forFolders || dialog.fileMode() == fileMode);
        const QFileDialog::Options expected = forFolders ? QFileDialog::ShowDirsOnly : QFileDialog::Options();
        QCOMPARE(dialog.options() & ~QFileDialog::DontUseNativeDialog, expected);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Title"));
        QCOMPARE(dialog.directory(), QDir(folder()));
        QVERIFY(forFolders || dialog.selectedNameFilter() == QLatin1String("All (*)"));
    });
    QString chosen = QStringLiteral("All (*)");
    QCOMPARE(ask(folder(), &chosen), QString());
    QVERIFY(step.happened());
}

void NativeDialogsTest::pickerShowsImagesOnly()
{
    pick(folder(), [&](QFileDialog& dialog) {
        QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("Image Files (*.jpg *.png)")));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Pictures"));
        QVERIFY(selectButton(dialog) && selectButton(dialog)->isVisible());
        QCOMPARE(selectButton(dialog)->text(), QStringLiteral("Select Folder"));
        QVERIFY(selectButton(dialog)->isEnabled());
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
    QTest::addColumn<QString>("below");
    const auto row = [](const char* title, const char* steps, const char* below) {
        QTest::newRow(title) << QString::fromLatin1(steps) << QString::fromLatin1(below);
    };
    row("at once", "", "");
    row("a file double-clicked", "double photo.jpg", "");
    row("Enter on a file", "enter photo.jpg", "");
    row("a file typed", "type photo.jpg", "");
    row("a folder double-clicked", "double below", "below");
    row("a folder typed", "type below", "below");
    row("a folder marked only", "click below", "");
}

void NativeDialogsTest::pickerReturnsTheOpenFolder()
{
    QFETCH(QString, steps);
    QFETCH(QString, below);
    const QString what = steps.section(QLatin1Char(' '), 0, 0);
    const QString name = steps.section(QLatin1Char(' '), 1);
    const QString picked = pick(folder(), [&](QFileDialog& dialog) {
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
        QTRY_COMPARE(dialog.directory(), QDir(path(below)));
        if (steps.isEmpty()) {
            selectButton(dialog)->setFocus();
            QTest::keyClick(selectButton(dialog), Qt::Key_Space);
        } else {
            QTest::mouseClick(selectButton(dialog), Qt::LeftButton);
        }
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(picked, QDir::toNativeSeparators(QDir::cleanPath(path(below))));
}

void NativeDialogsTest::pickerWithoutAnAnswer()
{
    QCOMPARE(pick(folder(), [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }),
             QString());
    QCOMPARE(pick(folder(), [](QFileDialog& dialog) { dialog.close(); }), QString());
    DialogStep step([](QFileDialog&) {});
    QCOMPARE(dialogs().getFileBrowserDirectory(nullptr, {}, path("missing"), {}, {}), QString());
    QVERIFY(!step.happened());
}

void NativeDialogsTest::onePickerAtATime()
{
    QString second = QStringLiteral("not asked");
    const QString first = pick(folder(), [&](QFileDialog& dialog) {
        second = dialogs().getFileBrowserDirectory(nullptr, QString(), QString(), QString(), {});
        QTest::mouseClick(selectButton(dialog), Qt::LeftButton);
    });
    QVERIFY(second.isEmpty());
    QCOMPARE(first, QDir::toNativeSeparators(folder()));
}

TOLVAN_GUI_TEST_MAIN(NativeDialogsTest)
#include "tst_nativedialogs.moc"
