#include "SoapExtra.h"

#include <QMutexLocker>

namespace TOLVAN_NAMESPACE
{

namespace
{

struct Table {
    QMutex mutex;
    QHash<const QtSoapType*, std::shared_ptr<SoapExtra>> entries;
};
Q_GLOBAL_STATIC(Table, table) // outlived by values that are static objects of a client

bool isSame(const QtSoapQName& a, const QtSoapQName& b)
{
    return a.name() == b.name() && a.uri() == b.uri();
}

std::shared_ptr<SoapExtra> entry(const QtSoapType* value)
{
    if (table.isDestroyed()) {
        return nullptr;
    }
    const QMutexLocker lock(&table->mutex);
    return table->entries.value(value);
}

} // namespace

void SoapExtra::set(const QtSoapQName& name, const QString& text)
{
    for (int k = 0; k < attributes.size(); ++k) {
        if (isSame(attributes.at(k).first, name)) {
            attributes.removeAt(k);
            break;
        }
    }
    if (!text.isNull()) {
        attributes.append({name, text});
    }
}

QString SoapExtra::get(const QtSoapQName& name) const
{
    for (const Attribute& attribute : attributes) {
        if (isSame(attribute.first, name)) {
            return attribute.second;
        }
    }
    return QString();
}

std::shared_ptr<SoapExtra> SoapExtra::of(const QtSoapType* value)
{
    if (table.isDestroyed()) {
        return std::make_shared<SoapExtra>();
    }
    const QMutexLocker lock(&table->mutex);
    std::shared_ptr<SoapExtra>& extra = table->entries[value];
    if (!extra) {
        extra = std::make_shared<SoapExtra>();
    }
    return extra;
}

bool SoapExtra::copyAttributes(const QtSoapType* source, const QtSoapType* target)
{
    const std::shared_ptr<SoapExtra> from = entry(source);
    const std::shared_ptr<SoapExtra> to = entry(target);
    if (to) {
        to->attributes = from ? from->attributes : QList<Attribute>();
        return true;
    }
    if (!from || from->attributes.isEmpty()) {
        return false;
    }
    of(target)->attributes = from->attributes;
    return true;
}

void SoapExtra::remove(const QtSoapType* value)
{
    if (table.isDestroyed()) {
        return;
    }
    std::shared_ptr<SoapExtra>
        extra; // is destroyed after the lock is released: its value may have an entry, too
    const QMutexLocker lock(&table->mutex);
    extra = table->entries.take(value);
}

} // namespace TOLVAN_NAMESPACE
