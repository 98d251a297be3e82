#include "NativeDialogs.h"

#include "platform/FolderPicker.h"

template class UTILSDLL_TEMPLATE_DEFINED Singleton<TOLVAN_NAMESPACE::CNativeDialogs>;

namespace TOLVAN_NAMESPACE
{

CNativeDialogs::CNativeDialogs() = default;
CNativeDialogs::~CNativeDialogs() = default;

QString CNativeDialogs::getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                                        const QString& filter, QString* selectedFilter,
                                        QFileDialog::Options /*options*/)
{
    return QFileDialog::getOpenFileName(parent, caption, dir, filter, selectedFilter, {});
}

QStringList CNativeDialogs::getOpenFileNames(QWidget* parent, const QString& caption, const QString& dir,
                                             const QString& filter, QString* selectedFilter,
                                             QFileDialog::Options /*options*/)
{
    return QFileDialog::getOpenFileNames(parent, caption, dir, filter, selectedFilter, {});
}

QString CNativeDialogs::getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                        const QString& filter, QString* selectedFilter,
                                        QFileDialog::Options /*options*/)
{
    return QFileDialog::getSaveFileName(parent, caption, dir, filter, selectedFilter, {});
}

QString CNativeDialogs::getExistingDirectory(QWidget* parent, const QString& caption, const QString& dir,
                                             QFileDialog::Options /*options*/)
{
    return QFileDialog::getExistingDirectory(parent, caption, dir, QFileDialog::ShowDirsOnly);
}

QString CNativeDialogs::getFileBrowserDirectory(QWidget* parent, const QString& caption, const QString& dir,
                                                const QString& filter, QFileDialog::Options /*options*/)
{
    return Platform::pickFolder(parent, caption, dir, filter);
}

void CNativeDialogs::setOpenFileName(const QString& name)
{
    m_openFileName = name;
}

void CNativeDialogs::setSaveFileName(const QString& name)
{
    m_saveFileName = name;
}

void CNativeDialogs::setExistingDirectory(const QString& directory)
{
    m_existingDirectory = directory;
}

void CNativeDialogs::setOpenFileNames(const QList<QVariant>& names)
{
    m_openFileNames.clear();
    for (const QVariant& name : names) {
        m_openFileNames += name.toString();
    }
}

} // namespace TOLVAN_NAMESPACE
