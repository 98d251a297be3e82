#include "platform/FolderPicker.h"

#include <QCache>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTimer>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

bool pickerIsOpen = false; // main thread only

constexpr int thumbnailEdge = 48;

/// Returns a small picture of an image file; null if it can't be read. A JPEG file is decoded at the small size.
QPixmap thumbnailOf(const QString& file)
{
    QImageReader reader(file);
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    if (!whole.isValid()) {
        return {};
    }
    reader.setScaledSize(whole.scaled(thumbnailEdge, thumbnailEdge, Qt::KeepAspectRatio));
    return QPixmap::fromImage(reader.read());
}

/// Shows thumbnails in place of the icons of image files. The files in view are read one at a time, whenever
/// the user leaves the program time for it.
class ThumbnailProxy : public QIdentityProxyModel
{
    Q_OBJECT

public:
    explicit ThumbnailProxy(QObject* parent)
        : QIdentityProxyModel(parent)
    {
        m_reading.setInterval(0);
        connect(&m_reading, SIGNAL(timeout()), this, SLOT(readNext()));
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DecorationRole || index.column() != 0) {
            return QIdentityProxyModel::data(index, role);
        }
        const QString file = index.data(QFileSystemModel::FilePathRole).toString();
        if (const QIcon* const known = m_icons.object(file)) {
            return known->isNull() ? QIdentityProxyModel::data(index, role) : QVariant(*known);
        }
        if (!index.model()->hasChildren(index) && !m_waiting.contains(index)) {
            m_waiting.append(index);
            m_reading.start();
        }
        return QIdentityProxyModel::data(index, role);
    }

private Q_SLOTS:
    void readNext()
    {
        if (m_waiting.isEmpty()) {
            m_reading.stop();
            return;
        }
        const QPersistentModelIndex index = m_waiting.takeLast(); // what came into view last is in view still
        if (index.isValid()) {
            const QString file = index.data(QFileSystemModel::FilePathRole).toString();
            m_icons.insert(file, new QIcon(thumbnailOf(file)));
            Q_EMIT dataChanged(index, index, {Qt::DecorationRole});
        }
    }

private:
    mutable QCache<QString, QIcon> m_icons{2000};
    mutable QList<QPersistentModelIndex> m_waiting;
    mutable QTimer m_reading;
};

QIcon bundledIcon(const char* name)
{
    return QIcon(QStringLiteral(":/icons/toolbar/filebrowser/%1.svg").arg(QLatin1String(name)));
}

/// The product's icons of folders and files, which Qt asks for in a thread of its own.
class BundledIcons : public QFileIconProvider
{
public:
    QIcon icon(IconType type) const override
    {
        switch (type) {
        case Folder:
            return m_folder;
        case File:
            return m_file;
        case Computer:
            return m_computer;
        case Drive:
            return m_drive;
        default:
            return QFileIconProvider::icon(type);
        }
    }

    QIcon icon(const QFileInfo& info) const override
    {
        return info.isRoot() ? m_drive : info.isDir() ? m_folder : m_file;
    }

private:
    const QIcon m_folder = bundledIcon("folder");
    const QIcon m_file = bundledIcon("file");
    const QIcon m_computer = bundledIcon("computer");
    const QIcon m_drive = bundledIcon("drive");
};

/// Qt's file dialog with its accept button replaced, because files are shown but not chosen.
class FolderPickerDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// \param icons have to outlive the dialog
    FolderPickerDialog(QWidget* parent, const QString& caption, const QString& dir, const QString& filter,
                       BundledIcons& icons)
        : QFileDialog(parent, caption, dir)
    {
        setOption(QFileDialog::DontUseNativeDialog);
        setIconProvider(&icons);
        setFileMode(QFileDialog::ExistingFile);
        const QString patterns = QString(filter).replace(QLatin1Char(';'), QLatin1Char(' ')).simplified();
        setNameFilter(
            QStringLiteral("Image Files (%1)").arg(patterns.isEmpty() ? QStringLiteral("*") : patterns));
        setProxyModel(new ThumbnailProxy(this));
        for (auto* const view : findChildren<QAbstractItemView*>()) {
            const bool isList = view->objectName() == QLatin1String("listView");
            view->setIconSize(isList ? QSize(thumbnailEdge, thumbnailEdge) : view->iconSize());
        }
        if (auto* const sidebar = findChild<QAbstractItemView*>(QStringLiteral("sidebar"))) {
            constexpr int margins = 24; // Qt counts those of the sheet too small and elides the names
            sidebar->setMinimumWidth(sidebar->sizeHintForColumn(0) + margins);
        }
        replaceAcceptButton();
        nameCombo("fileType");
        if (auto* const folders = nameCombo("lookIn")) {
            folders->setItemIcon(0, icons.icon(QFileIconProvider::Folder)); // the first was taken too early
        }
    }

    /// Returns the folder that was open when the button was clicked.
    QString folder() const { return m_folder; }

    /// Called by a double click and by Enter. Opens a chosen folder and ignores a file.
    void accept() override
    {
        const QStringList chosen = selectedFiles();
        if (chosen.size() == 1 && QFileInfo(chosen.constFirst()).isDir()) {
            QFileDialog::accept(); // in this file mode it opens the folder and keeps the dialog open
        }
    }

protected:
    /// Enter presses the button that has the focus; QDialog would press the default button, and there is none.
    void keyPressEvent(QKeyEvent* event) override
    {
        auto* const button = qobject_cast<QPushButton*>(focusWidget());
        const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (button && isEnter) {
            button->click();
        } else {
            QFileDialog::keyPressEvent(event);
        }
    }

private Q_SLOTS:
    void takeOpenFolder()
    {
        m_folder = QDir::toNativeSeparators(directory().absolutePath());
        done(QDialog::Accepted);
    }

private:
    /// Assistive technology would read the current entry only.
    QComboBox* nameCombo(const char* purpose)
    {
        const auto* const label = findChild<QLabel*>(QLatin1String(purpose) + QStringLiteral("Label"));
        auto* const combo = findChild<QComboBox*>(QLatin1String(purpose) + QStringLiteral("Combo"));
        if (label && combo) {
            combo->setAccessibleName(label->text());
        }
        return combo;
    }

    void replaceAcceptButton()
    {
        auto* const box = findChild<QDialogButtonBox*>();
        if (!box) {
            return;
        }
        delete box->button(QDialogButtonBox::Open); // the dialog would show and hide it itself
        if (QPushButton* const cancel = box->button(QDialogButtonBox::Cancel)) {
            cancel->setAutoDefault(false); // it would become the default button
            cancel->setDefault(false);
        }
        auto* const select = new QPushButton(QStringLiteral("Select Folder"), this);
        select->setObjectName(QStringLiteral("selectFolderButton"));
        select->setAutoDefault(false); // Enter in the name field must not choose
        box->addButton(select, QDialogButtonBox::ActionRole);
        connect(select, SIGNAL(clicked()), this, SLOT(takeOpenFolder()));
    }

    QString m_folder;
};

} // namespace

QString pickFolder(QWidget* parent, const QString& caption, const QString& dir, const QString& filter)
{
    if (pickerIsOpen || (!dir.isEmpty() && !QFileInfo(dir).isDir())) {
        return {};
    }
    pickerIsOpen = true;
    BundledIcons icons;
    FolderPickerDialog dialog(parent, caption, dir, filter, icons);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    pickerIsOpen = false;
    return chosen ? dialog.folder() : QString();
}

} // namespace TOLVAN_NAMESPACE::Platform

#include "FolderPicker_unix.moc"
