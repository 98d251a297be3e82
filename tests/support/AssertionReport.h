#pragma once

#include "InstalledLogger.h"

#include <QtTest>

/// Verifies that \a call reports exactly this failed assertion of the library, to the log and to the debug
/// stream. Pass a null \a message for an assertion without one.
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
