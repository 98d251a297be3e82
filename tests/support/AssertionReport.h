#pragma once

#include "InstalledLogger.h"

#include <QtTest>

/// Runs \a call and compares: it reports this failed assertion of the library to the log and to the debug
/// stream, and nothing else. Without a \a message the assertion has none.
template <class Call>
void verifyReport(const char* function, const char* unit, int line, const char* message, Call call)
{
    const QString path =
        QStringLiteral("ExPluginShell\\modules\\utilsDll\\%1").arg(QString::fromLatin1(unit));
    const QString report = message ? QStringLiteral("ASSERT_X in %1 line %2:").arg(path).arg(line)
                                   : QStringLiteral("ASSERT in %1:%2").arg(path).arg(line);
    const QByteArray debugText = report.toUtf8() + (message ? QByteArray(" ") + message : QByteArray());
    QTest::ignoreMessage(QtDebugMsg, debugText);
    installedLogger().take();
    call();
    QCOMPARE(installedLogger().take(),
             QStringList(QStringLiteral("E %1: ").arg(QString::fromLatin1(function)) + report +
                         QString::fromLatin1(message)));
}
