#include "InstalledLogger.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QSettings>

#include <memory>

using TOLVAN_NAMESPACE::CSettings;

namespace
{

/// The store behind the facade, seen through a plain QSettings: the native one or the temporary file.
std::unique_ptr<QSettings> store(bool temporary, const CTemporarySettings& settings)
{
    return temporary ? std::make_unique<QSettings>(settings.tempSettingsPath(), QSettings::IniFormat)
                     : std::make_unique<QSettings>(text("Tolvan"), text("Trelio Frame"));
}

/// Ends the mode as old callers do: with a reference to nothing.
#if defined(__GNUC__)
__attribute__((no_sanitize("undefined"), noinline))
#endif
void
setTemporarySettingsToNull()
{
    static CTemporarySettings* volatile nothing = nullptr; // which the compiler may not know
    CSettings::setTemporarySettings(*nothing);
}

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        IsolatedProfile::clearStores();
        m_temporary = std::make_unique<CTemporarySettings>(nullptr);
        installedLogger().take();
    }

    void cleanup() { CSettings::resetTemporarySettings(); }

    void operationsReachTheStore_data()
    {
        QTest::addColumn<bool>("temporary");
        QTest::newRow("native store") << false;
        QTest::newRow("temporary file") << true;
        QTest::newRow("native store in every mode") << false;
    }

    void operationsReachTheStore()
    {
        QFETCH(bool, temporary);
        CSettings settings(nullptr, isPersistentOnly());
        QCOMPARE(settings.usingTemporarySettings(), temporary);
        settings.setValue(text("k"), 7);
        settings.setValue(text("ключ 日本"), text("значение"));
        settings.beginWriteArray(text("list"), 2);
        settings.setArrayIndex(1);
        settings.setValue(text("entry"), text("second"));
        settings.endArray();
        settings.sync();
        const auto native = store(temporary, *m_temporary);
        QCOMPARE(native->value(text("ключ 日本")).toString(), text("значение"));
        QCOMPARE(native->value(text("list/2/entry")).toString(), text("second"));
        QCOMPARE(settings.value(text("k"), 0).toInt(), 7);
        QVERIFY(settings.contains(text("k")) && !settings.contains(text("absent")));
        QCOMPARE(settings.beginReadArray(text("list")), 2);
        settings.setArrayIndex(1);
        QCOMPARE(settings.value(text("entry")).toString(), text("second"));
        settings.endArray();
        settings.remove(text("k"));
        settings.sync();
        QVERIFY(!store(temporary, *m_temporary)->contains(text("k")));
        // Nothing leaks into the other store.
        QVERIFY(!store(!temporary, *m_temporary)->contains(text("list/size")));
    }

    void groups_data() { operationsReachTheStore_data(); }

    void groups()
    {
        QFETCH(bool, temporary);
        CSettings settings(nullptr, isPersistentOnly());
        settings.beginGroup(text("A"));
        QCOMPARE(settings.group(), text("A"));
        QCOMPARE(settings.localKey(text("k")), text(temporary ? "A/k" : "k"));
        settings.setValue(text("k"), 1);
        temporary ? void() : settings.sync(); // the temporary file has it at once
        QCOMPARE(store(temporary, *m_temporary)->value(text("A/k")).toInt(), 1);
        QCOMPARE(settings.value(text("k")).isValid(), !temporary); // read without the prefix, as documented
        QVERIFY(settings.contains(text("k")) && !settings.contains(text("A/k")));
        settings.beginGroup(text("B")); // replaces the prefix of the temporary file, which does not nest
        QCOMPARE(settings.group(), text(temporary ? "B" : "A/B"));
        temporary ? settings.beginGroup(text("A")) : settings.endGroup();
        settings.remove(text("k"));
        settings.sync();
        QVERIFY(!store(temporary, *m_temporary)->contains(text("A/k")));
        settings.endGroup();
        QVERIFY(settings.group().isEmpty());
    }

    void modeFollowsTheObject()
    {
        const auto line = [](const char* function, const char* message) {
            return text("D TOLVAN_NAMESPACE::CSettings::") + text(function) + text(": ") + text(message);
        };
        CSettings before;
        CSettings::setTemporarySettings(*m_temporary);
        const QString path = m_temporary->tempSettingsPath();
        QCOMPARE(installedLogger().take(),
                 QStringList(line("setTemporarySettings", "Info: settings are now stored in file: ") + path));
        CSettings after;
        after.setValue(text("k"), text("temporary"));
        QVERIFY(before.usingTemporarySettings() && after.usingTemporarySettings());
        m_temporary.reset();
        QVERIFY(!before.usingTemporarySettings() && !after.usingTemporarySettings());
        // Only the instance made after the switch is connected.
        const char* const function = "logWhenTempSettingsDeleted";
        QCOMPARE(installedLogger().take(),
                 QStringList({line(function, "Temporary settings file is to be destoyed: ") + path,
                              line(function, "Persistent settings will be used")}));
        QVERIFY(!after.contains(text("k")));
        after.setValue(text("k"), text("persistent"));
        QCOMPARE(after.value(text("k")).toString(), text("persistent"));
    }

    void modeEndsWithNull()
    {
        CSettings::setTemporarySettings(*m_temporary);
        setTemporarySettingsToNull();
        QVERIFY(!CSettings().usingTemporarySettings());
        QVERIFY(installedLogger().take().last().endsWith(text("settings are now stored in system")));
    }

    void familyLanguage()
    {
        CSettings::setTemporarySettings(*m_temporary); // plays no part here
        installedLogger().take();
        QCOMPARE(CSettings::getLanguageFromOstraConfiguration(), QVariant(2)); // nothing stored
        for (const int code : {0, 5, 12, 13}) {
            CSettings::writeLanguageToOstraConfiguration(code);
            QCOMPARE(CSettings::getLanguageFromOstraConfiguration().toInt(), code);
        }
        QVERIFY(installedLogger().take().isEmpty());
        QSettings(text("Tolvan"), text("Ostra Collection")).setValue(text("currentLanguage"), 7);
        QCOMPARE(CSettings::getLanguageFromOstraConfiguration(), QVariant(2));
        const QString line = text(
            "I TOLVAN_NAMESPACE::CSettings::getLanguageFromOstraConfiguration: OSTRA Collection uses the "
            "language with code 7 that is not supported by Trelio Frame. English is used instead.");
        QCOMPARE(installedLogger().take(), QStringList(line));
    }

    void preferencesFile()
    {
        const QString path = m_temporary->tempSettingsPath();
        m_temporary->setValue(text("k"), text("v"));
        m_temporary->setValue(text("empty"), QString());
        TOLVAN_NAMESPACE::CStorageLocation::setPreferencesFilePath(path);
        QCOMPARE(CSettings::getStringFromPreferencesFile(text("k"), text("d")), text("v"));
        QCOMPARE(CSettings::getStringFromPreferencesFile(text("empty"), text("d")), text("d"));
        QCOMPARE(CSettings::getStringFromPreferencesFile(text("absent"), text("d")), text("d"));
        TOLVAN_NAMESPACE::CStorageLocation::setPreferencesFilePath(QString());
        QVERIFY_EXCEPTION_THROWN(CSettings::getStringFromPreferencesFile(text("k"), text("d")),
                                 std::runtime_error);
    }

private:
    /// What the row asks for; begins the temporary mode where it plays a part.
    bool isPersistentOnly() const
    {
        const QByteArray row = QTest::currentDataTag();
        if (row != "native store") {
            CSettings::setTemporarySettings(*m_temporary);
        }
        return row.endsWith("every mode");
    }
    std::unique_ptr<CTemporarySettings> m_temporary;
};

TOLVAN_CORE_TEST_MAIN(SettingsTest)
#include "tst_settings.moc"
