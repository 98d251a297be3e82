#pragma once

/// \file qtsoapuris.h
/// \brief The namespace URIs under which the SOAP 1.1 classes name things.
///
/// The macros keep the names and values that clients know. `XML_SCHEMA` and `XML_SCHEMA_INSTANCE` are the
/// schema of 1999; messages are *written* with the recommendation of 2001, the only one that today's services
/// type values by, and *read* with the schemas of 1999, 2000 and 2001 alike.

/// Namespace of `Envelope`, `Header`, `Body` and `Fault`; any other one is a version mismatch.
#define SOAPv11_ENVELOPE "http://schemas.xmlsoap.org/soap/envelope/"

/// Namespace of `Array`, `arrayType`, `position` and `offset`, and the value of `encodingStyle`.
#define SOAPv11_ENCODING "http://schemas.xmlsoap.org/soap/encoding/"

/// The `actor` that addresses a header entry to the next node on the way.
#define SOAPv11_ACTORNEXT "http://schemas.xmlsoap.org/soap/actor/next"

/// The type names of the 1999 draft of XML Schema.
#define XML_SCHEMA "http://www.w3.org/1999/XMLSchema"

/// `type` and `null` of the 1999 draft of XML Schema.
#define XML_SCHEMA_INSTANCE "http://www.w3.org/1999/XMLSchema-instance"

/// The namespace that the prefix `xml` stands for in every document.
#define XML_NAMESPACE "http://www.w3.org/XML/1998/namespace"
