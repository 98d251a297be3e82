#include "SettingsPage.h"

#include "LogModel.h"
#include "Pages.h"

#include <utilsDll/Settings.h>
#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
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
constexpr int fieldWidth = 340;
constexpr char levels[] = {'D', 'I', 'W', 'E'};

} // namespace

QWidget* makeSettingsPage(QWidget* parent)
{
    return new SettingsPage(parent);
}

SettingsPage::SettingsPage(QWidget* parent)
    : PageWidget(parent)
{
    addMode();
    addSwitches();
    addValues();
    addSuiteFile();
    addAnswer();
    column()->addStretch();
    languageChanged();
}

SettingsPage::~SettingsPage() = default;

void SettingsPage::addMode()
{
    auto* const temporary = new QCheckBox(this);
    temporary->setChecked(CSettings().usingTemporarySettings());
    temporary->setEnabled(!temporary->isChecked()); // the program was started with --temporary
    translate(QT_TR_NOOP("Keep all settings in a temporary file, which is removed afterwards"),
              [temporary](const QString& text) { temporary->setText(text); });
    connect(temporary, &QCheckBox::toggled, this, &SettingsPage::setTemporary);
    column()->addWidget(temporary);
}

//! [code]
void SettingsPage::setTemporary(bool on)
{
    if (on) {
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
        m_temporary = std::make_unique<CTemporarySettings>(program.constData());
        CSettings::setTemporarySettings(*m_temporary);
        answer([path = m_temporary->tempSettingsPath()] { return tr("Settings are kept in %1.").arg(path); });
    } else {
        m_temporary.reset(); // and with it the file
        answer([] { return tr("Settings are kept in the system's own store again."); });
    }
    readValue();
}
//! [code]

void SettingsPage::addSwitches()
{
    m_level = new QComboBox(this);
    connect(m_level, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        setLogLevel(QString(QLatin1Char(levels[index])));
        answer([index] {
            return tr("Logged from the next start on: %1").arg(LogModel::levelName(levels[index]));
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
        auto* const box = new QCheckBox(this);
        box->setChecked(entry.get());
        translate(entry.text, [box](const QString& text) { box->setText(text); });
        connect(box, &QCheckBox::toggled, this, [this, set = entry.set](bool on) {
            set(on);
            answer([on] { return on ? tr("Stored: on") : tr("Stored: off"); });
        });
        column()->addWidget(box);
    }
}

void SettingsPage::addValues()
{
    addTitle(QT_TR_NOOP("Any value"));
    m_key = new QLineEdit(QStringLiteral("showcase/example"), this);
    m_value = new QLineEdit(this);
    auto* const form = addForm();
    for (QLineEdit* const field : {m_key, m_value}) {
        field->setFixedWidth(fieldWidth);
    }
    addRow(form, QT_TR_NOOP("Key"), m_key);
    addRow(form, QT_TR_NOOP("Value"), m_value);
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(makeButton(QT_TR_NOOP("Write"), [this] { write(); }));
    row->addWidget(makeButton(QT_TR_NOOP("Remove"), [this] {
        CSettings().remove(m_key->text());
        readValue();
        answer([key = m_key->text()] { return tr("Removed: %1").arg(key); });
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
    m_suiteValue->setFixedWidth(fieldWidth);
    auto* const form = addForm();
    addRow(form, QT_TR_NOOP("File"), path);
    addRow(form, QT_TR_NOOP("Note to the other products"), m_suiteValue);
    auto* const row = new QHBoxLayout;
    row->addWidget(makeButton(QT_TR_NOOP("Write into the file"), [this] { writeSuiteValue(); }));
    row->addStretch();
    form->addRow(QString(), row);
}

void SettingsPage::readValue()
{
    m_value->setText(CSettings().value(m_key->text()).toString());
}

void SettingsPage::write()
{
    CSettings settings;
    settings.setValue(m_key->text(), m_value->text());
    settings.sync();
    const QString key = m_key->text();
    const QString read = CSettings().value(key).toString();
    answer([=] { return tr("Written and read back: %1 = %2").arg(key, read); });
}

void SettingsPage::writeSuiteValue()
{
    CStorageLocation::ensureOstraUserConfigFolder();
    const bool written = CSettings::writeSettingToOstraUserConfigFile(
        suiteGroup, suiteKey, m_suiteValue->text(), QStringLiteral("string"));
    answer([written] {
        return written ? tr("Written into the file of the product family.")
                       : tr("The file of the product family cannot be written.");
    });
}

void SettingsPage::languageChanged()
{
    m_level->clear();
    for (const char level : levels) {
        m_level->addItem(LogModel::levelName(level));
    }
    const QString stored = getLogLevel();
    m_level->setCurrentIndex(
        qMax(0, QByteArray("DIWE").indexOf(stored.isEmpty() ? 'D' : stored.at(0).toLatin1())));
}

void SettingsPage::prepareForPicture()
{
    m_value->setText(QStringLiteral("24 mm"));
    const QString key = m_key->text();
    answer([=] { return tr("Written and read back: %1 = %2").arg(key, QStringLiteral("24 mm")); });
}
