#include "platform/FolderPicker.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

bool pickerIsOpen = false; // main thread only

/// Qt's file dialog with its accept button replaced, because files are shown but not chosen.
class FolderPickerDialog : public QFileDialog
{
    Q_OBJECT

public:
    FolderPickerDialog(QWidget* parent, const QString& caption, const QString& dir, const QString& filter)
        : QFileDialog(parent, caption, dir)
    {
        setOption(QFileDialog::DontUseNativeDialog);
        setFileMode(QFileDialog::ExistingFile);
        const QString patterns = QString(filter).replace(QLatin1Char(';'), QLatin1Char(' ')).simplified();
        setNameFilter(
            QStringLiteral("Image Files (%1)").arg(patterns.isEmpty() ? QStringLiteral("*") : patterns));
        replaceAcceptButton();
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

private Q_SLOTS:
    void takeOpenFolder()
    {
        m_folder = QDir::toNativeSeparators(directory().absolutePath());
        done(QDialog::Accepted);
    }

private:
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
    FolderPickerDialog dialog(parent, caption, dir, filter);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    pickerIsOpen = false;
    return chosen ? dialog.folder() : QString();
}

} // namespace TOLVAN_NAMESPACE::Platform

#include "FolderPicker_unix.moc"
