#include "LanguageManager.h"

#include "frame/Logging.h"
#include "LanguageFonts.h"
#include "Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <memory>
#include <stdexcept>
#include <string>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr unsigned englishNumber = 2;

constexpr char catalogueContext[] = "CLanguageManager";
// The messages by which a catalogue of the product describes itself. This file reads the first two. Other
// modules of the product read the third, the Windows locale identifier, and the second context.
const char* const catalogueKeys[] = {
    QT_TRANSLATE_NOOP("CLanguageManager", "language name"),
    QT_TRANSLATE_NOOP("CLanguageManager", "ostra language number"),
    QT_TRANSLATE_NOOP("CLanguageManager", "language number"),
    QT_TRANSLATE_NOOP("CLanguageTest", "language name"),
    QT_TRANSLATE_NOOP("CLanguageTest", "ostra language number"),
    QT_TRANSLATE_NOOP("CLanguageTest", "language number"),
};

enum Column { NameColumn, NumberColumn, PathColumn, AbbreviationColumn, ColumnCount };

QString translationsFolder()
{
    return QStringLiteral(":/translations/");
}

QString abbreviationOf(const QString& fileName)
{
    const QString prefix = QStringLiteral("tolvan_");
    const int found = fileName.lastIndexOf(prefix);
    const int start = found < 0 ? 0 : found + prefix.size();
    return fileName.mid(start, fileName.lastIndexOf(QLatin1Char('.')) - start);
}

std::shared_ptr<CLanguageManager> managerOfProcess;

} // namespace

CLanguageManager::CLanguageManager(QObject* parent)
    : QObject(parent)
{
}

CLanguageManager::~CLanguageManager() = default;

CLanguageManager* CLanguageManager::instance()
{
    if (!managerOfProcess) {
        managerOfProcess = std::make_shared<CLanguageManager>();
    }
    return managerOfProcess.get();
}

QStandardItemModel* CLanguageManager::model()
{
    return &m_model;
}

int CLanguageManager::langCount() const
{
    return m_model.rowCount();
}

bool CLanguageManager::isFilled() const
{
    return m_model.rowCount() > 0 || m_model.columnCount() > 0;
}

QString CLanguageManager::textAt(int row, int column) const
{
    return m_model.index(row, column).data(Qt::DisplayRole).toString();
}

void CLanguageManager::loadLanguages()
{
    if (isFilled()) {
        return;
    }
    QStringList names;
    QStringList numbers;
    QStringList paths;
    QStringList abbreviations;
    const QDir folder(translationsFolder());
    const QStringList fileNames = folder.entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::NoSort);
    for (const QString& fileName : fileNames) {
        const QString path = translationsFolder() + fileName;
        QTranslator translator;
        if (!translator.load(path)) {
            continue;
        }
        const QString name = translator.translate(catalogueContext, catalogueKeys[0]);
        const QString number = translator.translate(catalogueContext, catalogueKeys[1]);
        if (!name.isEmpty() && !number.isEmpty()) {
            names.append(name);
            numbers.append(number);
            paths.append(path);
            abbreviations.append(abbreviationOf(fileName));
        }
    }
    createLanguageModel(names, numbers, paths, abbreviations);
}

void CLanguageManager::createLanguageModel(const QStringList& names, const QStringList& numbers,
                                           const QStringList& paths, const QStringList& abbreviations)
{
    if (isFilled() || names.size() != numbers.size() || numbers.size() != paths.size()) {
        return;
    }
    m_model.setColumnCount(ColumnCount);
    m_model.setRowCount(names.size());
    const QStringList* const columns[ColumnCount] = {&names, &numbers, &paths, &abbreviations};
    for (int column = 0; column < ColumnCount; ++column) {
        const int rows = qMin(columns[column]->size(), names.size());
        for (int row = 0; row < rows; ++row) {
            m_model.setData(m_model.index(row, column), columns[column]->at(row), Qt::DisplayRole);
        }
    }
}

int CLanguageManager::rowOfNumber(unsigned number) const
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (textAt(row, NumberColumn).toUInt() == number) {
            return row;
        }
    }
    return -1;
}

int CLanguageManager::getLanguageIndexFromID(unsigned id) const
{
    const int row = rowOfNumber(id);
    if (row < 0) {
        UTILSDLL_LOG(LogLevel::Error, "TOLVAN_NAMESPACE::CLanguageManager::getLanguageIndexFromID")
            << "Cannot find language with ID: " << id;
    }
    return row;
}

unsigned CLanguageManager::getLangIdFromIndex(int index) const
{
    return textAt(index, NumberColumn).toUInt();
}

int CLanguageManager::currentLanguageIndex() const
{
    return getLanguageIndexFromID(currentLanguageNumber());
}

QString CLanguageManager::currentLanguageAbbrv()
{
    return textAt(currentLanguageIndex(), AbbreviationColumn);
}

QString CLanguageManager::settingsAbbrv()
{
    try {
        return stringFromCodeLanguage(currentLanguageNumber());
    } catch (const std::exception& error) {
        UTILSDLL_LOG(LogLevel::Debug, "TOLVAN_NAMESPACE::CLanguageManager::settingsAbbrv") << error.what();
        return QStringLiteral("en");
    }
}

QString CLanguageManager::stringFromCodeLanguage(unsigned code)
{
    switch (code) {
    case 0:
        return QStringLiteral("de");
    case englishNumber:
        return QStringLiteral("en");
    case 5:
        return QStringLiteral("fr");
    case 12:
        return QStringLiteral("ja");
    case 13:
        return QStringLiteral("zh-CN");
    default:
        throw std::invalid_argument("The argument " + std::to_string(code) +
                                    " does not refer to a valid language");
    }
}

unsigned CLanguageManager::loadedLanguageID() const
{
    return m_loadedLanguageID;
}

unsigned CLanguageManager::currentLanguageNumber()
{
    bool isNumber = false;
    const unsigned number = CSettings::getLanguageFromOstraConfiguration().toUInt(&isNumber);
    return isNumber ? number : englishNumber;
}

void CLanguageManager::setCurrentLanguageNumber(unsigned number)
{
    CSettings::writeLanguageToOstraConfiguration(static_cast<int>(number));
}

QTranslator* CLanguageManager::installTranslator(const QString& path)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    static_cast<void>(translator->load(path)); // one without a catalogue leaves every text as it is
    QCoreApplication::installTranslator(translator.get());
    // Without an application object, which Qt warns about, nothing else would delete it.
    return QCoreApplication::instance() ? translator.release() : nullptr;
}

void CLanguageManager::releaseCurrentTranslator()
{
    if (m_currentTranslator) {
        QCoreApplication::removeTranslator(m_currentTranslator);
        delete m_currentTranslator;
    }
}

void CLanguageManager::loadLanguageForApp()
{
    loadLanguages();
    const int row = rowOfNumber(currentLanguageNumber());
    if (row < 0) {
        return;
    }
    setFontsOfLanguage(
        textAt(row, AbbreviationColumn)); // first: widgets measure their texts when they change
    releaseCurrentTranslator();
    m_currentTranslator = installTranslator(textAt(row, PathColumn));
    const QString qtPath = QStringLiteral(":/translations/qt_%1.qm").arg(currentLanguageAbbrv());
    if (QFile::exists(qtPath)) {
        m_currentTranslator = installTranslator(qtPath);
    }
    m_loadedLanguageID = currentLanguageNumber();
    QLocale::setDefault(QLocale(currentLanguageAbbrv()));
}

bool CLanguageManager::changeLanguage(int index)
{
    const unsigned number = getLangIdFromIndex(index);
    if (number == currentLanguageNumber()) {
        return false;
    }
    setCurrentLanguageNumber(number);
    loadLanguageForApp();
    Q_EMIT languageChanged();
    return true;
}

} // namespace TOLVAN_NAMESPACE
