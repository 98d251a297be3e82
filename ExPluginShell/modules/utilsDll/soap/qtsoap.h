#pragma once

/// \file qtsoap.h
/// \brief The SOAP 1.1 client classes, under the header name that web-service clients include.
///
/// Messages and values on Qt Xml, the HTTP transport on Qt Network. All classes are in `TOLVAN_NAMESPACE`.
/// Each class has a header of its own as well, named after it (`<QtSoapMessage>`).

#include "qtsoaparray.h"
#include "qtsoaparrayiterator.h"
#include "qtsoaphttptransport.h"
#include "qtsoapmessage.h"
#include "qtsoapnamespaces.h"
#include "qtsoapqname.h"
#include "qtsoapsimpletype.h"
#include "qtsoapsmartptr.h"
#include "qtsoapstruct.h"
#include "qtsoapstructiterator.h"
#include "qtsoaptype.h"
#include "qtsoaptypefactory.h"
#include "qtsoapuris.h"

#include <QHash>
#include <QLinkedList>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QString>
#include <QtXml/QtXml>
#include <QUrl>
#include <QVariant>
