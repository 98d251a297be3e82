#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"

#include <utilsDll/StorageLocation.h>

#include <stdexcept>

using Location = TOLVAN_NAMESPACE::CStorageLocation;

namespace
{
/// The path of an operation, whether it returns a text or a reference to one.
template <auto path>
QString copyOf()
{
    return path();
}

struct Place {
    const char* purpose; // of the context "StoragePage"
    QString (*path)();
    const char* part; // of the path of what is not created when its path is asked for
};

const Place places[] = {
    {QT_TRANSLATE_NOOP("StoragePage", "Data of the product"), &Location::currentDataLocation, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Cache on disk"), &Location::diskCacheLocation, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Cached token"), &Location::cachedTokenFilePath, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Packs of the user"), &Location::packUserStoragePath, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Favourite presets"), &Location::favoritePresetPath, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Calibration data"), &Location::cafDataPath, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Crash reports"), &Location::crashFilesPath, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Crash reports under way"), &Location::crashTempFilesPath, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Logs"), &Location::loggerFilesPath, ""},
    {QT_TRANSLATE_NOOP("StoragePage", "Sample pictures"), &copyOf<&Location::getSamplePicturesLocation>,
     "Trelio Frame Samples"},
    {QT_TRANSLATE_NOOP("StoragePage", "Preferences of this computer"),
     &copyOf<&Location::getDefaultPreferencesFilePath>, "Preferences.ini"},
    {QT_TRANSLATE_NOOP("StoragePage", "Settings of the product family"),
     &copyOf<&Location::getOstraUserConfigFileLocation>, "/Tolvan/Ostra Collection/OstraCollection.cfg"},
};

} // namespace

/// Every folder and file that the product knows, and whether it is there.
class StoragePage : public PageWidget
{
    Q_OBJECT

public:
    explicit StoragePage(QWidget* parent)
        : PageWidget(parent)
        , m_table(new QTableWidget(0, 3, this))
    {
        prepareTable(m_table);
        m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
        m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
        m_table->setTextElideMode(Qt::ElideMiddle);
        column()->addWidget(m_table, 1);
        addButtons({makeButton(QT_TR_NOOP("Refresh"), [this] {
            fill();

            answer([now = QTime::currentTime()] {
                return tr("Read again at %1.").arg(QLocale().toString(now, QStringLiteral("HH:mm:ss")));
            });
        })});
        column()->addWidget(makeAnswer());
        languageChanged();
    }

protected:
    void languageChanged() override
    {
        m_table->setHorizontalHeaderLabels({tr("Purpose"), tr("Path"), tr("Exists")});
        fill();
    }

private:
    //! [code]
    void fill()
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

    QTableWidget* m_table;
};

QWidget* makeStoragePage(QWidget* parent)
{
    return new StoragePage(parent);
}

void walkStorage(Report& report)
{
    for (const Place& place : places) {
        const QString path = place.path();
        const bool created = path.endsWith(QDir::separator()) && QFileInfo(path).isDir();
        report.check(place.purpose, path,
                     *place.part ? path.isEmpty() || path.contains(QLatin1String(place.part)) : created);
    }
    const QString session = Location::sessionSingleAppDirectory();
    report.check("folder of this session", session,
                 QDir(session).exists() && !session.endsWith(QLatin1Char('/')));
    QString unset = QStringLiteral("(no error)");
    try {
        Location::getCurrentPreferencesFilePath();
    } catch (const std::runtime_error& error) {
        unset = QString::fromLatin1(error.what());
    }
    report.check("getCurrentPreferencesFilePath unset", unset,
                 unset == QStringLiteral("Preferences file path not set"));
    const QString program = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    for (const auto script : {&Location::miniatureBlurShapesPath, &Location::framePackPath,
                              &Location::texturesPackPath, &Location::defectsPackPath}) {
        const QString path = script();
        report.check("script of the product", path,
                     path.startsWith(program) && path.endsWith(QStringLiteral(".lua")));
    }
}

#include "StoragePage.moc"
