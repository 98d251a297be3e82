#pragma once

#include "qtsoapqname.h"

#include <QDomDocument>
#include <QPair>
#include <QString>
#include <QVector>

namespace TOLVAN_NAMESPACE
{

/// Internal: an attribute that SOAP knows; the names are literals.
struct SoapAttributeName {
    QLatin1String prefix;
    QLatin1String name;
    QLatin1String uri;
};

/// Internal: takes the elements of a message in the order of the document; what they become is up to the
/// derived class.
class SoapXmlSink
{
public:
    virtual ~SoapXmlSink() = default;

    /// Begins an element; without \a prefix, a \a uri without registered prefix becomes the default namespace.
    virtual void open(const QString& name, const QString& uri, const QString& prefix) = 0;
    virtual void attribute(const SoapAttributeName& name, const QString& value) = 0;
    virtual void plainAttribute(QLatin1String name, const QString& value) = 0;

    /// Adds an attribute of the client. Its name is an XML name without colon.
    virtual void clientAttribute(const QtSoapQName& name, const QString& value) = 0;

    /// The URI of a prefix that is in force; empty if it is not.
    virtual QString uriOf(const QString& prefix) const = 0;
    virtual void text(const QString& text) = 0;
    virtual void close() = 0;

    /// Adds an element that a class derived outside the library made; it may be null.
    virtual void tree(const QDomElement& element) = 0;

    /// The document in which such an element is to be made.
    virtual QDomDocument document() = 0;
};

/// Internal: writes the text of a document.
class SoapTextSink : public SoapXmlSink
{
public:
    /// Appends to \a xml; with an \a indent above 0 each element begins a line.
    SoapTextSink(QString& xml, int indent)
        : m_xml(xml)
        , m_indent(indent)
    {
    }

    void open(const QString& name, const QString& uri, const QString& prefix = QString()) override;
    void attribute(const SoapAttributeName& name, const QString& value) override;
    void plainAttribute(QLatin1String name, const QString& value) override;
    void clientAttribute(const QtSoapQName& name, const QString& value) override;
    QString uriOf(const QString& prefix) const override;
    void text(const QString& text) override;
    void close() override;
    void tree(const QDomElement& element) override;
    QDomDocument document() override;

    /// Declares \a prefix on the element just begun, for all it holds.
    void declare(QLatin1String prefix, QLatin1String uri);

private:
    struct Level {
        QString prefix;
        QString name;
        QString defaultUri;
        int declared = 0; ///< number of declarations in force outside
        bool hasElements = false;
    };
    template <class Name>
    void appendAttribute(const Name& name, const QString& value);
    void appendDeclaration(const QString& prefix, const QString& uri);
    void finishTag();
    void newLine(int level);

    QString& m_xml;
    int m_indent;
    QVector<Level> m_levels;
    QVector<QPair<QString, QString>> m_declared; ///< prefixes in force, each with its URI
    bool m_tagOpen = false;
    QDomDocument m_document;
};

/// Internal: builds a tree in a document of the caller.
class SoapDomSink : public SoapXmlSink
{
public:
    explicit SoapDomSink(const QDomDocument& document)
        : m_document(document)
    {
    }

    void open(const QString& name, const QString& uri, const QString& prefix = QString()) override;
    void attribute(const SoapAttributeName& name, const QString& value) override;
    void plainAttribute(QLatin1String name, const QString& value) override;
    void clientAttribute(const QtSoapQName& name, const QString& value) override;
    QString uriOf(const QString& prefix) const override;
    void text(const QString& text) override;
    void close() override;
    void tree(const QDomElement& element) override;
    QDomDocument document() override { return m_document; }

    /// The outermost element.
    QDomElement root() const { return m_root; }

private:
    QDomDocument m_document;
    QDomElement m_root;
    QDomElement m_current;
};

} // namespace TOLVAN_NAMESPACE
