#include "SettingsPage.h"

#include "Pages.h"

#include <utilsDll/Settings.h>
#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString suiteGroup = QStringLiteral("Showcase");
const QString suiteKey = QStringLiteral("note");

} // namespace

QWidget* makeSettingsPage(QWidget* parent)
{
    return new SettingsPage(parent);
}

SettingsPage::SettingsPage(QWidget* parent)
    : PageWidget(parent)
{
    addSwitches();
    addValues();
    addSuiteFile();
    column()->addStretch();
    languageChanged();
}

void SettingsPage::addSwitches()
{
    m_store = new QLabel(this);
    auto* const level = new QComboBox(this);
    level->addItems({QStringLiteral("D"), QStringLiteral("I"), QStringLiteral("W"), QStringLiteral("E")});
    level->setCurrentText(getLogLevel());
    connect(level, &QComboBox::textActivated, this, [](const QString& letter) { setLogLevel(letter); });
    auto* const form = addForm();
    addRow(form, QT_TR_NOOP("Values are kept in"), m_store);
    addRow(form, QT_TR_NOOP("Minimum log level"), level);
    const struct {
        const char* text;
        bool (*get)();
        void (*set)(bool);
    } switches[] = {
        {QT_TR_NOOP("Write a log, from the next start on"), &isLoggerEnabled, &setLoggerEnabled},
        {QT_TR_NOOP("Crash reports may be sent"), &crashReportSendingAllowed, &allowCrashReportSending},
    };
    for (const auto& entry : switches) {
        auto* const box = new QCheckBox(this);
        box->setChecked(entry.get());
        translate(entry.text, [box](const QString& text) { box->setText(text); });
        connect(box, &QCheckBox::toggled, this, entry.set);
        form->addRow(QString(), box);
    }
}

void SettingsPage::addValues()
{
    addTitle(QT_TR_NOOP("Any value"));
    m_key = new QLineEdit(QStringLiteral("showcase/example"), this);
    m_value = new QLineEdit(this);
    auto* const form = addForm();
    addRow(form, QT_TR_NOOP("Key"), m_key);
    addRow(form, QT_TR_NOOP("Value"), m_value);
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(
        makeButton(QT_TR_NOOP("Write"), [this] { CSettings().setValue(m_key->text(), m_value->text()); }));
    row->addWidget(makeButton(QT_TR_NOOP("Remove"), [this] {
        CSettings().remove(m_key->text());
        readValue();
    }));
    row->addStretch();
    form->addRow(QString(), row);
    connect(m_key, &QLineEdit::textChanged, this, &SettingsPage::readValue);
    readValue();
}

void SettingsPage::addSuiteFile()
{
    addTitle(QT_TR_NOOP("The file of the product family"));
    auto* const path = new QLabel(CStorageLocation::getOstraUserConfigFileLocation(), this);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_suiteValue =
        new QLineEdit(CSettings::getSettingFromOstraUserConfigFile(suiteGroup, suiteKey, QString()), this);
    auto* const form = addForm();
    addRow(form, QT_TR_NOOP("File"), path);
    addRow(form, QT_TR_NOOP("Note to the other products"), m_suiteValue);
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(makeButton(QT_TR_NOOP("Write into the file"), [this] { writeSuiteValue(); }));
    row->addStretch();
    form->addRow(QString(), row);
}

void SettingsPage::readValue()
{
    m_value->setText(CSettings().value(m_key->text()).toString());
}

void SettingsPage::writeSuiteValue()
{
    QDir().mkpath(QFileInfo(CStorageLocation::getOstraUserConfigFileLocation()).path());
    CSettings::writeSettingToOstraUserConfigFile(suiteGroup, suiteKey, m_suiteValue->text(),
                                                 QStringLiteral("string"));
}

void SettingsPage::languageChanged()
{
    m_store->setText(CSettings().usingTemporarySettings() ? tr("a temporary file, gone at the end")
                                                          : tr("the system's own store"));
}
