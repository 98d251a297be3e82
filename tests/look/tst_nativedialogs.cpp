#include "FileTree.h"
#include "FolderTest.h"
#include "ModalDialog.h"
#include "TestMain.h"

#include <utilsDll/NativeDialogs.h>

#include <QLibrary>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

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
    /// Sets the answers for scripted runs: every dialog has to be shown nevertheless.
    void initTestCase()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        dialogs().setOpenFileName(QStringLiteral("x"));
        dialogs().setSaveFileName(QStringLiteral("x"));
        dialogs().setExistingDirectory(QStringLiteral("x"));
        dialogs().setOpenFileNames({QStringLiteral("x"), 1});
    }

    void init()
    {
        FolderTest::init();
        QImage photo(400, 200, QImage::Format_RGB32);
        photo.fill(Qt::red);
        photo.save(path("photo.png"));
        FileTree::write(path("broken.jpg"));
        FileTree::write(path("notes.txt"));
        FileTree::write(path("below/drawing.png"));
    }

    void oneObjectForAllModules()
    {
        QLibrary module(QStringLiteral(DIALOGS_MODULE));
        QVERIFY2(module.load(), qPrintable(module.errorString()));
        const auto ofModule = reinterpret_cast<void* (*)()>(module.resolve("nativeDialogsOfModule"));
        QVERIFY(ofModule);
        QCOMPARE(ofModule(), static_cast<void*>(&dialogs()));
    }

    void standardDialogsGetNoOptions()
    {
        const QFileDialog::Options options = QFileDialog::ReadOnly | QFileDialog::DontConfirmOverwrite;
        const QString title = QStringLiteral("Title");
        const QString filter = QStringLiteral("Text (*.txt);;All (*)");
        const QString in = folder();
        QStringList answers;
        const std::function<void()> kinds[] = {
            [&] { answers += dialogs().getOpenFileName(nullptr, title, in, filter, nullptr, options); },
            [&] { answers += dialogs().getOpenFileNames(nullptr, title, in, filter, nullptr, options); },
            [&] { answers += dialogs().getSaveFileName(nullptr, title, in, filter, nullptr, options); },
            [&] { answers += dialogs().getExistingDirectory(nullptr, title, in, options); },
        };
        QList<int> modes;
        for (const auto& ask : kinds) {
            const auto check = [&](QFileDialog& dialog) {
                modes += dialog.testOption(QFileDialog::ShowDirsOnly) ? -1 : int(dialog.fileMode());
                QVERIFY(!(dialog.options() & options));
            };
            QVERIFY(whileOpen<QFileDialog>(ask, check));
        }
        QCOMPARE(modes, QList<int>({QFileDialog::ExistingFile, QFileDialog::ExistingFiles,
                                    QFileDialog::AnyFile, -1}));
        QCOMPARE(answers.join(QString()), QString());
    }

    void pickerShowsImages()
    {
        pick(folder(), [&](QFileDialog& dialog) {
            QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("Image Files (*.png *.jpg)")));
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Pictures"));
            QCOMPARE(selectButton(dialog)->text(), QStringLiteral("Select Folder"));
            const QPersistentModelIndex photo = rowOf(dialog, QStringLiteral("photo.png"));
            const QPersistentModelIndex broken = rowOf(dialog, QStringLiteral("broken.jpg"));
            QCOMPARE(photo.model()->rowCount(photo.parent()), 3); // and the folder
            const auto icon = [](const QModelIndex& row) {
                return row.data(Qt::DecorationRole).value<QIcon>();
            };
            QTRY_COMPARE(icon(photo).availableSizes(), QList<QSize>{QSize(48, 24)}); // a thumbnail
            QTest::qWait(20);
            const QIcon file(QStringLiteral(":/icons/toolbar/filebrowser/file.svg"));
            QCOMPARE(icon(broken).pixmap(16).toImage(), file.pixmap(16).toImage());
            QCOMPARE(icon(photo).pixmap(48).toImage().pixelColor(5, 5), QColor(Qt::red));
        });
    }

    void pickerReturnsTheOpenFolder()
    {
        struct Row {
            QString step;
            QString name;
            QString below;
            Qt::Key key; // on the button
        };
        const QString below = QStringLiteral("below");
        for (const Row& row :
             {Row{QStringLiteral("double-click"), QStringLiteral("photo.png"), {}, Qt::Key_Return},
              Row{QStringLiteral("double-click"), below, below, Qt::Key_Space},
              Row{QStringLiteral("type"), below, below, Qt::Key_Enter},
              Row{QStringLiteral("click"), below, {}, Qt::Key_Space}}) {
            const QString picked = pick(folder(), [&](QFileDialog& dialog) {
                const QModelIndex index = rowOf(dialog, row.name);
                QVERIFY(index.isValid());
                auto* const view = dialog.findChild<QListView*>(QStringLiteral("listView"));
                const QPoint middle = view->visualRect(index).center();
                if (row.step == QLatin1String("type")) {
                    auto* const edit = dialog.findChild<QLineEdit*>();
                    edit->setText(row.name);
                    QTest::keyClick(edit, Qt::Key_Return);
                } else {
                    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, middle);
                }
                if (row.step == QLatin1String("double-click")) {
                    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, middle);
                }
                QVERIFY(dialog.isVisible());
                QTRY_COMPARE(dialog.directory(), QDir(path(row.below)));
                selectButton(dialog)->setFocus();
                QTest::keyClick(selectButton(dialog), row.key);
                QVERIFY(!dialog.isVisible());
            });
            QCOMPARE(picked, QDir::toNativeSeparators(QDir::cleanPath(path(row.below))));
        }
    }

    void pickerWithoutAnAnswer()
    {
        QString second = QStringLiteral("not asked");
        const auto escape = [&](QFileDialog& dialog) {
            second = dialogs().getFileBrowserDirectory(nullptr, {}, {}, {}, {}); // one at a time
            QTest::keyClick(&dialog, Qt::Key_Escape);
        };
        QCOMPARE(pick(folder(), escape), QString());
        QCOMPARE(second, QString());
        bool stayed = true;
        const auto cancel = [&](QFileDialog& dialog) {
            auto* const button = dialog.findChildren<QPushButton*>().constFirst();
            button->setFocus();
            QTest::keyClick(button, Qt::Key_Return);
            stayed = dialog.isVisible();
        };
        QCOMPARE(pick(folder(), cancel), QString());
        QVERIFY(!stayed);
        const auto missing = [&] { dialogs().getFileBrowserDirectory(nullptr, {}, path("missing"), {}, {}); };
        QVERIFY(!whileOpen<QFileDialog>(missing, [](QFileDialog&) {}));
    }
};

TOLVAN_GUI_TEST_MAIN(NativeDialogsTest)
#include "tst_nativedialogs.moc"
