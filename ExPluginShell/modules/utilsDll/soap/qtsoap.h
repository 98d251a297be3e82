#pragma once

/// \file qtsoap.h
/// \brief The SOAP 1.1 client classes, under the header name that web-service clients include.
///
/// Messages and values stand on Qt Xml, the HTTP transport on Qt Network. All classes are in `TOLVAN_NAMESPACE`.
/// Each forwarding header (`<QtSoapMessage>` and so on) brings all classes as well. The target
/// `Tolvan::UtilsDllTrelioFrame` has this folder in its include path.

#include "qtsoaparray.h"
#include "qtsoaparrayiterator.h"
#include "qtsoaphttptransport.h"
#include "qtsoaplimits.h"
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
#include <QNetworkAccessManager>
#include <QPointer>
#include <QString>
#include <QtXml/QtXml>
#include <QUrl>
#include <QVariant>
