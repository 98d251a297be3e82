#include "Settings.h"

#include "frame/Logging.h"
#include "frame/XmlBounds.h"
#include "platform/SharedFile.h"
#include "StorageLocation.h"

#include <QDomDocument>
#include <QFile>

#include <stdexcept>

// The part of CSettings that reads and writes the suite configuration file of the product family.

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int indentation = 4;
constexpr int deepestNesting = 1000; // the file has three levels; QDomDocument recurses

const QString groupTag = QStringLiteral("group");
const QString keyTag = QStringLiteral("key");
const QString nameAttribute = QStringLiteral("name");
const QString valueAttribute = QStringLiteral("value");
const QString typeAttribute = QStringLiteral("type");

std::runtime_error failure(const char* message, const QString& detail)
{
    return std::runtime_error(message + detail.toStdString());
}

QDomDocument parsed(const QString& xml)
{
    QDomDocument document;
    if (nestsDeeperThan(xml, deepestNesting) || !document.setContent(xml)) {
        throw failure("The stream is not a valid XML:\n", xml);
    }
    return document;
}

/// Result of \a operation; \a fallback if it throws, which is logged.
template <class Result, class Operation>
Result resultOf(const char* function, const Result& fallback, const Operation& operation)
{
    try {
        return operation();
    } catch (const std::exception& error) {
        UTILSDLL_LOG(LogLevel::Error, function) << error.what();
        return fallback;
    }
}

} // namespace

QString CSettings::getSettingFromOstraUserConfigFile(const QString& group, const QString& key,
                                                     const QString& defaultValue)
{
    return resultOf("TOLVAN_NAMESPACE::CSettings::getSettingFromOstraUserConfigFile", defaultValue, [&] {
        return getSettingFromConfigFile(CStorageLocation::getOstraUserConfigFileLocation(), group, key,
                                        defaultValue);
    });
}

QString CSettings::getSettingFromOstraGlobalConfigFile(const QString& group, const QString& key,
                                                       const QString& defaultValue)
{
    return resultOf("TOLVAN_NAMESPACE::CSettings::getSettingFromOstraGlobalConfigFile", defaultValue, [&] {
        return getSettingFromConfigFile(CStorageLocation::getOstraGlobalConfigFileLocation(), group, key,
                                        defaultValue);
    });
}

bool CSettings::writeSettingToOstraUserConfigFile(const QString& group, const QString& key,
                                                  const QString& value, const QString& type)
{
    return resultOf("TOLVAN_NAMESPACE::CSettings::writeSettingToOstraUserConfigFile", false, [&] {
        writeSettingToConfigFile(CStorageLocation::getOstraUserConfigFileLocation(), group, key, value, type);
        return true;
    });
}

bool CSettings::writeSettingToOstraGlobalConfigFile(const QString& group, const QString& key,
                                                    const QString& value, const QString& type)
{
    return resultOf("TOLVAN_NAMESPACE::CSettings::writeSettingToOstraGlobalConfigFile", false, [&] {
        writeSettingToConfigFile(CStorageLocation::getOstraGlobalConfigFileLocation(), group, key, value,
                                 type);
        return true;
    });
}

QString CSettings::getSettingFromConfigFile(const QString& path, const QString& group, const QString& key,
                                            const QString& defaultValue)
{
    QFile file(path);
    // Opened before its existence is checked: a file that is being replaced may seem absent for a moment.
    if (!Platform::openSharedFile(file, QIODevice::ReadOnly | QIODevice::Text)) {
        if (file.exists()) {
            throw failure("Fail to open the Ostra Collection configuration file: ", path);
        }
        UTILSDLL_LOG(LogLevel::Warning, "TOLVAN_NAMESPACE::CSettings::getSettingFromConfigFile")
            << "Ostra Collection configuration file was not found: " << path;
        return defaultValue;
    }
    const QString xml = QString::fromUtf8(file.readAll());
    file.close();
    return getSettingFromOstraCollectionXML(xml, group, key, defaultValue);
}

QString CSettings::getSettingFromOstraCollectionXML(const QString& xml, const QString& group,
                                                    const QString& key, const QString& defaultValue)
{
    QDomDocument document = parsed(xml);
    const QDomElement match = searchKeyInXML(document, group, key);
    // The file's first use was the family language, and a key without a value means English.
    return match.isNull() ? defaultValue : match.attribute(valueAttribute, QStringLiteral("en"));
}

QDomElement CSettings::searchKeyInXML(QDomDocument& document, const QString& group, const QString& key)
{
    for (QDomElement candidate = document.documentElement().firstChildElement(groupTag); !candidate.isNull();
         candidate = candidate.nextSiblingElement(groupTag)) {
        if (candidate.attribute(nameAttribute) != group) {
            continue;
        }
        for (QDomElement entry = candidate.firstChildElement(); !entry.isNull();
             entry = entry.nextSiblingElement()) {
            if (entry.attribute(nameAttribute) == key) {
                return entry;
            }
        }
    }
    return {};
}

void CSettings::writeSettingToConfigFile(const QString& path, const QString& group, const QString& key,
                                         const QString& value, const QString& type)
{
    const auto replace = [&path](const QString& xml, const char* message) {
        // A character that XML can't hold would make the file unreadable for every product of the family.
        parsed(xml);
        if (!Platform::replaceSharedFile(path, xml.toUtf8())) {
            throw failure(message, path);
        }
    };
    const char* const openFailure = "Fail to open Ostra Collection configuration file: ";
    QFile file(path);
    if (!Platform::openSharedFile(file, QIODevice::ReadWrite | QIODevice::Text)) {
        if (file.exists()) {
            throw failure(openFailure, path);
        }
        replace(createOstraCollectionXMLWithGivenSetting(group, key, value, type),
                "Fail to create Ostra Collection configuration file : ");
        return;
    }
    QString xml = QString::fromUtf8(file.readAll());
    file.close();
    writeSettingToOstraCollectionXML(group, key, value, type, xml);
    replace(xml, openFailure);
}

void CSettings::writeSettingToOstraCollectionXML(const QString& group, const QString& key,
                                                 const QString& value, const QString& type, QString& xml)
{
    QDomDocument document = parsed(xml);
    QDomElement match = searchKeyInXML(document, group, key);
    if (match.isNull()) {
        // A group of its own, also beside one of the same name: readers search all groups of a name.
        document.documentElement().appendChild(createOstraCollectionGroup(group, key, value, type));
    } else {
        match.setAttribute(valueAttribute, value);
    }
    xml = document.toString(indentation);
}

QString CSettings::createOstraCollectionXMLWithGivenSetting(const QString& group, const QString& key,
                                                            const QString& value, const QString& type)
{
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("configuration"));
    document.appendChild(root);
    root.appendChild(createOstraCollectionGroup(group, key, value, type));
    return document.toString(indentation);
}

QDomElement CSettings::createOstraCollectionGroup(const QString& group, const QString& key,
                                                  const QString& value, const QString& type)
{
    // Lives as long as the elements may: an element refers to the document that created it.
    static QDomDocument factory = QDomDocument(QString());
    QDomElement entry = factory.createElement(keyTag);
    entry.setAttribute(valueAttribute, value);
    entry.setAttribute(typeAttribute, type);
    entry.setAttribute(nameAttribute, key);
    QDomElement element = factory.createElement(groupTag);
    element.setAttribute(nameAttribute, group);
    element.appendChild(entry);
    return element;
}

} // namespace TOLVAN_NAMESPACE
