#include "FileTree.h"
#include "FolderTest.h"
#include "ModalDialog.h"
#include "TestMain.h"

#include <utilsDll/NativeDialogs.h>

#include <QComboBox>
#include <QLibrary>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QToolButton>

#include <functional>

using namespace TOLVAN_NAMESPACE;

namespace
{

CNativeDialogs& dialogs()
{
    return Singleton<CNativeDialogs>::instance();
}

QPushButton* selectButton(const QFileDialog& dialog)
{
    return dialog.findChild<QPushButton*>(QStringLiteral("selectFolderButton"));
}

/// Returns the answer of the picker, which is closed after the step at the latest.
QString pick(const QString& dir, const std::function<void(QFileDialog&)>& step)
{
    QString picked;
    const bool shown = whileOpen<QFileDialog>(
        [&] {
            picked = dialogs().getFileBrowserDirectory(nullptr, QStringLiteral("Pictures"), dir,
                                                       QStringLiteral("*.png *.jpg"), QFileDialog::ReadOnly);
        },
        step);
    return shown ? picked : QStringLiteral("never shown");
}

/// Returns the row of \a name as soon as the view lists it: a thread reads the folder.
QModelIndex rowOf(const QFileDialog& dialog, const QString& name)
{
    const auto* const view = dialog.findChild<QListView*>(QStringLiteral("listView"));
    const auto row = [&] {
        const QModelIndex root = view->rootIndex();
        return view->model()->match(view->model()->index(0, 0, root), Qt::DisplayRole, name).value(0);
    };
    const bool listed = QTest::qWaitFor([&] { return row().isValid(); }, 30000);
    return listed ? row() : QModelIndex();
}

} // namespace

class NativeDialogsTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void oneObjectForAllModules();
    void standardDialogsGetNoOptions();
    void pickerShowsImages();
    void pickerReturnsTheOpenFolder_data();
    void pickerReturnsTheOpenFolder();
    void pickerWithoutAnAnswer();
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
    QImage photo(400, 200, QImage::Format_RGB32);
    photo.fill(Qt::red);
    photo.save(path("photo.png"));
    FileTree::write(path("broken.jpg"));
    FileTree::write(path("notes.txt"));
    FileTree::write(path("below/drawing.png"));
}

void NativeDialogsTest::oneObjectForAllModules()
{
    QLibrary module(QStringLiteral(DIALOGS_MODULE));
    QVERIFY2(module.load(), qPrintable(module.errorString()));
    const auto ofModule = reinterpret_cast<void* (*)()>(module.resolve("nativeDialogsOfModule"));
    QVERIFY(ofModule);
    QCOMPARE(ofModule(), static_cast<void*>(&dialogs()));
}

void NativeDialogsTest::standardDialogsGetNoOptions()
{
    const QFileDialog::Options options = QFileDialog::ReadOnly | QFileDialog::DontConfirmOverwrite;
    const QString title = QStringLiteral("Title");
    const QString filter = QStringLiteral("Text (*.txt);;All (*)");
    const QString in = folder();
    QString chosen = QStringLiteral("All (*)");
    QStringList answers;
    const std::function<void()> kinds[] = {
        [&] { answers += dialogs().getOpenFileName(nullptr, title, in, filter, &chosen, options); },
        [&] { answers += dialogs().getOpenFileNames(nullptr, title, in, filter, &chosen, options); },
        [&] { answers += dialogs().getSaveFileName(nullptr, title, in, filter, &chosen, options); },
        [&] { answers += dialogs().getExistingDirectory(nullptr, title, in, options); },
    };
    QList<int> modes;
    for (const auto& ask : kinds) {
        const auto check = [&](QFileDialog& dialog) {
            const bool forFolders = modes.size() == 3;
            modes += forFolders ? dialog.testOption(QFileDialog::ShowDirsOnly) : int(dialog.fileMode());
            QVERIFY(!(dialog.options() & options));
            QCOMPARE(dialog.windowTitle(), title);
            QCOMPARE(dialog.directory(), QDir(in));
            QVERIFY(forFolders || dialog.selectedNameFilter() == chosen);
        };
        QVERIFY(whileOpen<QFileDialog>(ask, check));
    }
    QCOMPARE(modes,
             QList<int>({QFileDialog::ExistingFile, QFileDialog::ExistingFiles, QFileDialog::AnyFile, 1}));
    QCOMPARE(answers.join(QString()), QString());
}

void NativeDialogsTest::pickerShowsImages()
{
    pick(folder(), [&](QFileDialog& dialog) {
        QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("Image Files (*.png *.jpg)")));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Pictures"));
        QVERIFY(selectButton(dialog)->isVisible() && selectButton(dialog)->isEnabled());
        QCOMPARE(selectButton(dialog)->text(), QStringLiteral("Select Folder"));
        QCOMPARE(dialog.findChild<QComboBox*>()->accessibleName(), QStringLiteral("Look in:"));
        const QPersistentModelIndex photo = rowOf(dialog, QStringLiteral("photo.png"));
        const QPersistentModelIndex broken = rowOf(dialog, QStringLiteral("broken.jpg"));
        QCOMPARE(photo.model()->rowCount(photo.parent()), 3); // and the folder
        const auto icon = [](const QModelIndex& row) { return row.data(Qt::DecorationRole).value<QIcon>(); };
        QTRY_COMPARE(icon(photo).availableSizes(), QList<QSize>{QSize(48, 24)}); // a thumbnail
        QTest::qWait(20);
        QVERIFY(!icon(broken).isNull()); // the icon of the file's type
        QCOMPARE(icon(photo).pixmap(48).toImage().pixelColor(5, 5), QColor(Qt::red));
    });
}

void NativeDialogsTest::pickerReturnsTheOpenFolder_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("below");
    QTest::addColumn<int>("key"); // on the button
    const auto row = [](const char* title, const char* steps, const char* below, Qt::Key key) {
        QTest::newRow(title) << QString::fromLatin1(steps) << QString::fromLatin1(below) << int(key);
    };
    row("at once", "", "", Qt::Key_Space);
    row("a file double-clicked", "double photo.png", "", Qt::Key_Return);
    row("Enter on a file", "enter photo.png", "", Qt::Key_Enter);
    row("a folder double-clicked", "double below", "below", Qt::Key_Space);
    row("a folder typed", "type below", "below", Qt::Key_Space);
    row("a folder marked only", "click below", "", Qt::Key_Space);
}

void NativeDialogsTest::pickerReturnsTheOpenFolder()
{
    QFETCH(QString, steps);
    QFETCH(QString, below);
    QFETCH(int, key);
    const QString what = steps.section(QLatin1Char(' '), 0, 0);
    const QString name = steps.section(QLatin1Char(' '), 1);
    const QString picked = pick(folder(), [&](QFileDialog& dialog) {
        const QModelIndex row = rowOf(dialog, name.isEmpty() ? QStringLiteral("photo.png") : name);
        QVERIFY(row.isValid());
        auto* const view = dialog.findChild<QListView*>(QStringLiteral("listView"));
        const QPoint middle = view->visualRect(row).center();
        if (what == QLatin1String("type")) {
            auto* const edit = dialog.findChild<QLineEdit*>();
            edit->setText(name);
            QTest::keyClick(edit, Qt::Key_Return);
        } else if (!what.isEmpty()) {
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, middle);
        }
        if (what == QLatin1String("double")) {
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, middle);
        } else if (what == QLatin1String("enter")) {
            QTest::keyClick(view, Qt::Key_Return);
        }
        QVERIFY(dialog.isVisible());
        QTRY_COMPARE(dialog.directory(), QDir(path(below)));
        selectButton(dialog)->setFocus();
        QTest::keyClick(selectButton(dialog), static_cast<Qt::Key>(key));
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(picked, QDir::toNativeSeparators(QDir::cleanPath(path(below))));
}

void NativeDialogsTest::pickerWithoutAnAnswer()
{
    QString second = QStringLiteral("not asked");
    QCOMPARE(pick(folder(),
                  [&](QFileDialog& dialog) {
                      second = dialogs().getFileBrowserDirectory(nullptr, {}, {}, {}, {}); // one at a time
                      QTest::keyClick(&dialog, Qt::Key_Escape);
                  }),
             QString());
    QCOMPARE(second, QString());
    bool stayed = true;
    QCOMPARE(pick(folder(),
                  [&](QFileDialog& dialog) {
                      QPushButton* const cancel = dialog.findChildren<QPushButton*>().constFirst();
                      cancel->setFocus();
                      QTest::keyClick(cancel, Qt::Key_Return);
                      stayed = dialog.isVisible();
                  }),
             QString());
    QVERIFY(!stayed);
    const auto missing = [&] { dialogs().getFileBrowserDirectory(nullptr, {}, path("missing"), {}, {}); };
    QVERIFY(!whileOpen<QFileDialog>(missing, [](QFileDialog&) {}));
}

TOLVAN_GUI_TEST_MAIN(NativeDialogsTest)
#include "tst_nativedialogs.moc"
