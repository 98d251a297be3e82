#include "Report.h"

#include <cstdio>

namespace
{

constexpr int nameWidth = 38;

void print(const QString& text)
{
    const QByteArray line = text.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
}

} // namespace

void Report::heading(const QString& title)
{
    print(QStringLiteral("\n%1\n%2").arg(title, QString(title.size(), QLatin1Char('-'))));
}

void Report::row(const char* name, const QString& value)
{
    line(QStringLiteral("    "), QString::fromLatin1(name), value);
}

void Report::check(const QString& name, const QString& value, bool ok)
{
    ++(ok ? m_passed : m_failed);
    line(ok ? QStringLiteral("ok  ") : QStringLiteral("FAIL"), name, value);
}

bool Report::finish()
{
    print(QStringLiteral("\n%1 steps did what they should, %2 did not.").arg(m_passed).arg(m_failed));
    return m_failed == 0 && m_passed > 0;
}

void Report::line(const QString& mark, const QString& name, const QString& value)
{
    const QString row = mark + QLatin1Char(' ') + name.leftJustified(nameWidth) + QLatin1Char(' ') + value;
    print(QStringLiteral("  ") + row);
}
