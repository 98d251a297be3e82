#include "LogModel.h"
#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"

#include <utilsDll/Settings.h>
#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <memory>

using namespace TOLVAN_NAMESPACE;

namespace
{
const QString suiteGroup = QStringLiteral("Showcase");
constexpr int fieldWidth = 340;

QString suiteValue(const char* key, const char* otherwise = "")
{
    return CSettings::getSettingFromOstraUserConfigFile(suiteGroup, QLatin1String(key),
                                                        QLatin1String(otherwise));
}

bool writeSuiteValue(const char* key, const QString& value)
{
    CStorageLocation::ensureOstraUserConfigFolder();
    return CSettings::writeSettingToOstraUserConfigFile(suiteGroup, QLatin1String(key), value,
                                                        QStringLiteral("string"));
}

/// Settings in a temporary file for as long as the result lives.
std::unique_ptr<CTemporarySettings> turnToTemporaryFile()
{
    const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
    auto temporary = std::make_unique<CTemporarySettings>(program.constData());
    CSettings::setTemporarySettings(*temporary);
    return temporary;
}

} // namespace

/// Switches of the product, values by key, and the file that the product family shares.
class SettingsPage : public PageWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget* parent)
        : PageWidget(parent)
    {
        addMode();
        addSwitches();
        addValues();
        addSuiteFile();
        column()->addWidget(makeAnswer());
        column()->addStretch();
        languageChanged();
    }

    void prepareForPicture() override
    {
        m_value->setText(QStringLiteral("24 mm"));
        write();
        CSettings().remove(m_key->text());
    }

protected:
    void languageChanged() override
    {
        refill(m_level, LogModel::levelNames());
        m_level->setCurrentIndex(LogModel::rankOf(getLogLevel()));
    }

private:
    void addMode()
    {
        auto* const temporary =
            withText(new QCheckBox(this),
                     QT_TR_NOOP("Keep all settings in a temporary file, which is removed afterwards"));
        temporary->setChecked(CSettings().usingTemporarySettings());
        temporary->setEnabled(!temporary->isChecked()); // the program was started with --temporary
        connect(temporary, &QCheckBox::toggled, this, &SettingsPage::setTemporary);
        column()->addWidget(temporary);
    }

    void addSwitches()
    {
        m_level = new QComboBox(this);
        connect(m_level, qOverload<int>(&QComboBox::activated), this, [this](int index) {
            setLogLevel(QString(QLatin1Char(LogModel::levels[index])));
            answer([index] {
                return tr("Logged from the next start on: %1").arg(LogModel::levelNames().at(index));
            });
        });
        addRow(addForm(), QT_TR_NOOP("Minimum log level"), m_level);
        const struct {
            const char* text;
            bool (*get)();
            void (*set)(bool);
        } switches[] = {
            {QT_TR_NOOP("Write a log, from the next start on"), &isLoggerEnabled, &setLoggerEnabled},
            {QT_TR_NOOP("Crash reports may be sent"), &crashReportSendingAllowed, &allowCrashReportSending},
        };
        for (const auto& entry : switches) {
            auto* const box = withText(new QCheckBox(this), entry.text);
            box->setChecked(entry.get());
            connect(box, &QCheckBox::toggled, this, [this, set = entry.set](bool on) {
                set(on);
                answer([on] { return on ? tr("Stored: on") : tr("Stored: off"); });
            });
            column()->addWidget(box);
        }
    }

    void addValues()
    {
        addTitle(QT_TR_NOOP("Any value"));
        m_key = new QLineEdit(QStringLiteral("showcase/example"), this);
        m_value = new QLineEdit(this);
        for (QLineEdit* const field : {m_key, m_value}) {
            field->setFixedWidth(fieldWidth);
        }
        auto* const form = addForm();
        addRow(form, QT_TR_NOOP("Key"), m_key);
        addRow(form, QT_TR_NOOP("Value"), m_value);
        addButtons(
            {makeButton(QT_TR_NOOP("Write"), [this] { write(); }), makeButton(QT_TR_NOOP("Remove"), [this] {
                 CSettings().remove(m_key->text());
                 readValue();
                 answer([key = m_key->text()] { return tr("Removed: %1").arg(key); });
             })});
        connect(m_key, &QLineEdit::textChanged, this, &SettingsPage::readValue);
        readValue();
    }

    void addSuiteFile()
    {
        addTitle(QT_TR_NOOP("The file of the product family"));
        auto* const note = new QLineEdit(suiteValue("note"), this);
        note->setFixedWidth(fieldWidth);
        auto* const form = addForm();
        addFact(form, QT_TR_NOOP("File"), [] { return CStorageLocation::getOstraUserConfigFileLocation(); });
        addRow(form, QT_TR_NOOP("Note to the other products"), note);
        addButtons({makeButton(QT_TR_NOOP("Write into the file"), [=] {
            const bool written = writeSuiteValue("note", note->text());
            answer([written] {
                return written ? tr("Written into the file of the product family.")
                               : tr("The file of the product family cannot be written.");
            });
        })});
    }

    //! [code]
    void setTemporary(bool on)
    {
        if (on) {
            m_temporary = turnToTemporaryFile();
            answer([path = m_temporary->tempSettingsPath()] {
                return tr("Settings are kept in %1.").arg(path);
            });
        } else {
            m_temporary.reset(); // and with it the file
            answer([] { return tr("Settings are kept in the system's own store again."); });
        }
        readValue();
    }
    //! [code]
    void readValue() { m_value->setText(CSettings().value(m_key->text()).toString()); }

    void write()
    {
        CSettings settings;
        settings.setValue(m_key->text(), m_value->text());
        settings.sync();
        const QString key = m_key->text();
        const QString read = CSettings().value(key).toString();
        answer([=] { return tr("Written and read back: %1 = %2").arg(key, read); });
    }

    std::unique_ptr<CTemporarySettings> m_temporary;
    QComboBox* m_level = nullptr;
    QLineEdit* m_key = nullptr;
    QLineEdit* m_value = nullptr;
};

QWidget* makeSettingsPage(QWidget* parent)
{
    return new SettingsPage(parent);
}

namespace
{
void walkRuns(Report& report)
{
    const QString runsKey = QStringLiteral("showcase/runs");
    CSettings settings;
    const int runs = settings.value(runsKey, 0).toInt();
    report.row("earlier runs on this profile", QString::number(runs));
    settings.setValue(runsKey, runs + 1);
    settings.sync();
    report.check("setValue, read by another instance", CSettings().value(runsKey).toString(),
                 CSettings().value(runsKey).toInt() == runs + 1);
}

/// While settings are kept in a temporary file.
void walkTemporaryMode(Report& report)
{
    CSettings current;
    const CSettings persistent(nullptr, true);
    const QString seed = current.value(QStringLiteral("showcaseSeed")).toString();
    report.check("value from the seed file", seed, !seed.isEmpty());
    current.setValue(QStringLiteral("A/k"), 1);
    report.check("a persistent-only instance", QStringLiteral("stays on the native store"),
                 !persistent.usingTemporarySettings() && !persistent.contains(QStringLiteral("A/k")));
}

/// Both modes: a run on the native store turns to a temporary file for a moment.
void walkModes(Report& report)
{
    const CSettings settings;
    if (settings.usingTemporarySettings()) {
        report.row("mode", QStringLiteral("temporary file"));
        walkTemporaryMode(report);
        return;
    }
    report.row("mode", QStringLiteral("native store"));
    auto temporary = turnToTemporaryFile();
    report.check("turned to a temporary file", temporary->tempSettingsPath(),
                 settings.usingTemporarySettings());
    walkTemporaryMode(report);
    temporary.reset();
    report.check("the temporary file gone", QStringLiteral("native store again"),
                 !settings.usingTemporarySettings() && !settings.contains(QStringLiteral("A/k")));
}

} // namespace

void walkSettings(Report& report)
{
    walkModes(report);
    walkRuns(report);
    report.row("suite file, value of the last run", suiteValue("lastRun", "(none)"));
    const QString now = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    report.check("suite file written", CStorageLocation::getOstraUserConfigFileLocation(),
                 writeSuiteValue("lastRun", now));
    report.check("suite file read back", suiteValue("lastRun"), suiteValue("lastRun") == now);
    const QVariant language = CSettings::getLanguageFromOstraConfiguration();
    report.check("language of the family", language.toString(),
                 QVector<int>({0, 2, 5, 12, 13}).contains(language.toInt()));
}

#include "SettingsPage.moc"
