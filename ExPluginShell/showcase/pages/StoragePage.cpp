#include "StoragePage.h"

#include "Pages.h"

#include <utilsDll/StorageLocation.h>

#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QTime>
#include <QVBoxLayout>

using Location = TOLVAN_NAMESPACE::CStorageLocation;

namespace
{

struct Place {
    const char* purpose; // of the context "StoragePage"
    QString (*path)();
};

/// The path of an operation, whether it returns a text or a reference to one.
template <auto path>
QString copyOf()
{
    return path();
}

const Place places[] = {
    {QT_TRANSLATE_NOOP("StoragePage", "Data of the product"), &Location::currentDataLocation},
    {QT_TRANSLATE_NOOP("StoragePage", "Cache on disk"), &Location::diskCacheLocation},
    {QT_TRANSLATE_NOOP("StoragePage", "Cached token"), &Location::cachedTokenFilePath},
    {QT_TRANSLATE_NOOP("StoragePage", "Packs of the user"), &Location::packUserStoragePath},
    {QT_TRANSLATE_NOOP("StoragePage", "Favourite presets"), &Location::favoritePresetPath},
    {QT_TRANSLATE_NOOP("StoragePage", "Calibration data"), &Location::cafDataPath},
    {QT_TRANSLATE_NOOP("StoragePage", "Crash reports"), &Location::crashFilesPath},
    {QT_TRANSLATE_NOOP("StoragePage", "Crash reports under way"), &Location::crashTempFilesPath},
    {QT_TRANSLATE_NOOP("StoragePage", "Logs"), &Location::loggerFilesPath},
    {QT_TRANSLATE_NOOP("StoragePage", "Sample pictures"), &copyOf<&Location::getSamplePicturesLocation>},
    {QT_TRANSLATE_NOOP("StoragePage", "Preferences of this computer"),
     &copyOf<&Location::getDefaultPreferencesFilePath>},
    {QT_TRANSLATE_NOOP("StoragePage", "Settings of the product family"),
     &copyOf<&Location::getOstraUserConfigFileLocation>},
};

} // namespace

QWidget* makeStoragePage(QWidget* parent)
{
    return new StoragePage(parent);
}

StoragePage::StoragePage(QWidget* parent)
    : PageWidget(parent)
    , m_table(new QTableWidget(0, 3, this))
{
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setWordWrap(false);
    m_table->setTextElideMode(Qt::ElideMiddle);
    column()->addWidget(m_table, 1);
    addButtons({makeButton(QT_TR_NOOP("Refresh"), [this] {
        fill();
        const QTime now = QTime::currentTime();
        answer([now] {
            return tr("Read again at %1.").arg(QLocale().toString(now, QStringLiteral("HH:mm:ss")));
        });
    })});
    addAnswer();
    languageChanged();
}

//! [code]
void StoragePage::fill()
{
    m_table->setRowCount(0);
    for (const Place& place : places) {
        const QString path = place.path();
        const bool exists = !path.isEmpty() && QFileInfo::exists(path);
        const int row = m_table->rowCount();
        m_table->insertRow(row);
        const QString cells[] = {tr(place.purpose), path.isEmpty() ? tr("not on this system") : path,
                                 exists ? tr("yes") : tr("no")};
        for (int column = 0; column < 3; ++column) {
            auto* const item = new QTableWidgetItem(cells[column]);
            item->setToolTip(path);
            m_table->setItem(row, column, item);
        }
    }
}

//! [code]

void StoragePage::languageChanged()
{
    m_table->setHorizontalHeaderLabels({tr("Purpose"), tr("Path"), tr("Exists")});
    fill();
}
