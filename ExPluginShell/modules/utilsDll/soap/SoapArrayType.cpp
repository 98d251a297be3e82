#include "SoapLimits.h"
#include "SoapValueReader.h"

namespace TOLVAN_NAMESPACE
{

namespace
{

QString quoted(const QString& what, const QString& text)
{
    return QStringLiteral("%1: \"%2\"").arg(what, text.left(80));
}

/// The numbers between the brackets; an empty place is -1. Empty when the text is something else.
QVector<int> bracketed(const QString& text)
{
    QVector<int> result;
    if (text.size() < 2 || !text.startsWith(QLatin1Char('[')) || !text.endsWith(QLatin1Char(']'))) {
        return result;
    }
    const auto places = QStringView(text).mid(1, text.size() - 2).split(QLatin1Char(','));
    for (const QStringView place : places) {
        bool ok = false;
        const int number = place.trimmed().isEmpty() ? -1 : place.trimmed().toInt(&ok);
        if (!place.trimmed().isEmpty() && (!ok || number < 0)) {
            return {};
        }
        result.append(number);
    }
    return result;
}

} // namespace

SoapArrayType SoapArrayType::fromAttribute(const QString& text)
{
    SoapArrayType result;
    const int bracket = text.lastIndexOf(QLatin1Char('['));
    result.itemType = soapLocalPart(bracket < 0 ? text : text.left(bracket));
    result.sizes = bracketed(bracket < 0 ? QString() : text.mid(bracket));
    if (result.sizes.isEmpty()) {
        result.error = quoted(QStringLiteral("The size of an array is not readable"), text);
    } else if (result.sizes.size() > SoapLimits::ArrayDimensions) {
        result.error = quoted(QStringLiteral("An array has more than five dimensions"), text);
    } else if (result.sizes.indexOf(-1, 1) > 0) {
        result.error = quoted(QStringLiteral("An array leaves the size of an inner dimension open"), text);
    }
    qint64 items = 1;
    for (int k = 0; k < result.sizes.size() && result.error.isEmpty(); ++k) {
        items *= result.sizes.at(k) < 0 ? 1 : result.sizes.at(k);
        if (items > SoapLimits::ArrayItems) { // checked at each factor: the product cannot overflow
            result.error = quoted(
                QStringLiteral("An array claims more than %1 items").arg(SoapLimits::ArrayItems), text);
        }
    }
    return result;
}

QVector<int> SoapArrayType::numbers(const QString& text)
{
    const QVector<int> result = bracketed(text);
    return result.contains(-1) ? QVector<int>() : result;
}

} // namespace TOLVAN_NAMESPACE
