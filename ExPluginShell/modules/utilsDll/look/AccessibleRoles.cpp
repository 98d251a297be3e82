#include "look/AccessibleRoles.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// Qt asks for the interface of a class, and for that of its base class if there is none.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget && className == QLatin1String("CMessageBox")) {
        return new QAccessibleWidget(widget, QAccessible::AlertMessage);
    }
    if (widget && className == QLatin1String("TOLVAN_NAMESPACE::CIconViewer")) {
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    }
    return nullptr;
}

struct Factory {
    Factory() { QAccessible::installFactory(&makeInterface); }
    ~Factory() { QAccessible::removeFactory(&makeInterface); }
    Factory(const Factory&) = delete;
    Factory& operator=(const Factory&) = delete;
};

} // namespace

void installAccessibleRoles()
{
    static const Factory factory;
}

} // namespace TOLVAN_NAMESPACE
