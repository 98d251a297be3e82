#include "LensTable.h"

// A build without SQLite: the database cannot be opened, and the search reports that.

LensTable::~LensTable() = default;

QString LensTable::open()
{
    return QStringLiteral("This build has no SQLite.");
}

QVector<int> LensTable::rowsWith(const QString&) const
{
    return {};
}

Lens LensTable::at(int) const
{
    return {};
}
