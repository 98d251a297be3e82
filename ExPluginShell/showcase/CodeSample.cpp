#include "CodeSample.h"

#include <QFile>

QString codeSample(const QString& name)
{
    QFile file(QStringLiteral(":/showcase/code/") + name);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QStringList parts = QString::fromUtf8(file.readAll()).split(QStringLiteral("//! [code]\n"));
    return parts.value(1).trimmed();
}
