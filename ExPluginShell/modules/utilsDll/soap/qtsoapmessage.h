#pragma once

#include "qtsoaplimits.h"
#include "qtsoapstruct.h"

#include <optional>
#include <QSharedData>

namespace TOLVAN_NAMESPACE
{

/// \brief A SOAP 1.1 message: built to be sent, or read from the answer of a service.
///
/// A copy is a message of its own; copies share their contents until one of them is changed. Items handed over as
/// pointers come from `new` and belong to the message from then on; null is ignored with a warning. References
/// that are returned live until the message changes. One thread at a time may use a message. No call waits;
/// reading and writing take time in proportion to the document.
///
/// Reading is safe for any document: a document type declaration is refused, and so are documents beyond
/// limits(), more than 256 levels of nesting, tags of more than 64 KiB, arrays that claim more than 16,777,216
/// items, and encodings other than UTF-8, UTF-16, US-ASCII, ISO 8859 and Windows 125x. The checks are made while
/// the text is read. References between elements (`href="#id"`) are resolved; a cycle of references is refused.
class UTILSDLL_EXPORT QtSoapMessage
{
public:
    /// An envelope with neither header nor body.
    QtSoapMessage();

    /// A message of its own with the same contents.
    QtSoapMessage(const QtSoapMessage& copy);
    ~QtSoapMessage();

    /// Replaces the contents by a copy of those of \a copy.
    QtSoapMessage& operator=(const QtSoapMessage& copy);

    /// \brief Replaces the message by the one in \a buffer, XML with or without declaration.
    /// \return true on success. On failure false, errorString() says what is wrong, with line and column where
    /// the XML is, and the message is a fault with that text: VersionMismatch for an envelope of another SOAP
    /// version, else Client.
    bool setContent(const QByteArray& buffer);

    /// Replaces the message by the one in \a d, which was parsed with namespace processing; result as above.
    bool setContent(QDomDocument& d);

    /// What setContent() may spend on a document.
    QtSoapLimits limits() const;

    /// Sets what setContent() may spend on a document. The contents stay, and clear() does not reset the limits.
    void setLimits(const QtSoapLimits& limits);

    /// Appends \a item to the body.
    void addBodyItem(QtSoapType* item);

    /// Appends \a item to the header.
    void addHeaderItem(QtSoapType* item);

    /// The method element of a request or an answer: the first item of the body; invalid in a fault.
    const QtSoapType& method() const;

    /// Number of items in the body.
    int bodyItemCount() const;

    /// The item number \a index of the body, counted from 0; invalid if there is none. The first one is the
    /// method or the fault, others are what a service added to it.
    const QtSoapType& bodyItem(int index) const;

    /// Number of items in the header.
    int headerItemCount() const;

    /// The item number \a index of the header, counted from 0; invalid if there is none.
    const QtSoapType& headerItem(int index) const;

    /// The result that an answer carries: the first child of method(), under any name; invalid when there
    /// is none.
    const QtSoapType& returnValue() const;

    /// Makes this a request for \a method; what the body held goes, the header stays.
    void setMethod(const QtSoapQName& method);

    /// Makes this a request for the method \a name in the namespace \a uri.
    void setMethod(const QString& name, const QString& uri = QString());

    /// \brief Appends \a arg to the arguments of the method.
    ///
    /// setMethod() comes first; without it the argument becomes an item of the body, and a warning is written.
    void addMethodArgument(QtSoapType* arg);

    /// Appends a String argument \a name in the namespace \a uri.
    void addMethodArgument(const QString& name, const QString& uri, const QString& value);

    /// Appends a Boolean argument; \a dummy only selects the overload, pass 0.
    void addMethodArgument(const QString& name, const QString& uri, bool value, int dummy);

    /// Appends an Int argument; three arguments with a `bool` select this one too.
    void addMethodArgument(const QString& name, const QString& uri, int value);

    /// What went wrong, as the protocol classes it.
    enum FaultCode {
        VersionMismatch, ///< the envelope is of another version
        MustUnderstand,  ///< a mandatory header entry was not understood
        Client,          ///< the message or the way it was sent is at fault
        Server,          ///< the service could not process a good message
        Other            ///< anything else, failures of the transport among them
    };

    /// Whether the message carries a fault.
    bool isFault() const;

    /// The class of the fault: of a dotted code its first component; Other when there is no fault.
    FaultCode faultCode() const;

    /// The text of the fault; an invalid value when there is none.
    const QtSoapType& faultString() const;

    /// The `detail` of the fault with its entries as children; an invalid value when there is none.
    const QtSoapType& faultDetail() const;

    /// Sets the class of the fault. This and the next two make the message a fault; what the body held goes.
    void setFaultCode(FaultCode code);

    /// Sets the text of the fault.
    void setFaultString(const QString& fstring);

    /// Appends \a detail to the detail of the fault.
    void addFaultDetail(QtSoapType* detail);

    /// Makes this an envelope with neither header nor body.
    void clear();

    /// \brief The message as XML, without declaration.
    /// \param indent number of blanks per level; with 0 all is on one line
    ///
    /// Characters that XML cannot carry at all (U+0000 to U+001F but for tab and line ends, U+FFFE, U+FFFF,
    /// half surrogate pairs) are written as U+FFFD. Send the text as UTF-8.
    QString toXmlString(int indent = 0) const;

    /// Why the latest setContent() failed; empty when it did not.
    QString errorString() const;

protected:
    /// What the message is, judged by its contents.
    enum MessageType { Fault, MethodRequest, MethodResponse, OtherType };

    /// Whether \a candidate is a SOAP 1.1 message that setContent() would take; errorString() returns why not.
    bool isValidSoapMessage(const QDomDocument& candidate);

    /// The items of the body, which is made when there is none; it belongs to the message.
    QtSoapStruct& body() const;

    /// The items of the header, which is made when there is none; it belongs to the message.
    QtSoapStruct& header() const;

    /// Brings the message back to the state of a new one.
    void init();

private:
    friend class QtSoapHttpServer;

    struct Contents : QSharedData {
        MessageType type = OtherType;
        std::optional<QtSoapStruct> header;
        std::optional<QtSoapStruct> body;
        bool isExposed = false; ///< a derived class has a reference into it, so it cannot be shared
    };

    bool take(class SoapMessageReader& reader);
    Contents& own() const;
    QtSoapStruct& part(std::optional<QtSoapStruct> Contents::*which, QLatin1String name) const;
    QtSoapStruct& ownBody() const;
    QtSoapStruct& ownHeader() const;
    QtSoapStruct& faultStruct();
    const QtSoapType& faultEntry(const QString& name) const;

    mutable QExplicitlySharedDataPointer<Contents> d;
    QString m_error;
    QtSoapLimits m_limits;
};

} // namespace TOLVAN_NAMESPACE
