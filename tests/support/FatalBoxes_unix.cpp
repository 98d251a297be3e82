#include "FatalBoxes.h"

#include <QFile>
#include <QtTest>

class FatalBoxes::Watcher
{
};

FatalBoxes::FatalBoxes(const QString& program)
    : m_path(qgetenv("PATH"))
    , m_display(qgetenv("DISPLAY"))
{
    qputenv("PATH", QFile::encodeName(m_folder.path()));
    qputenv("DISPLAY", ":no-real-one");
    if (program.isEmpty()) {
        return;
    }
    QFile script(m_folder.filePath(program));
    QVERIFY(script.open(QIODevice::WriteOnly));
    // An argument and a call each end with a character that no text has.
    script.write("#!/bin/sh\n{ for argument in \"$@\"; do printf '%s\\036' \"$argument\"; done; printf "
                 "'\\035'; } >>'" +
                 QFile::encodeName(m_folder.filePath(QStringLiteral("calls"))) + "'\n");
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

FatalBoxes::~FatalBoxes()
{
    qputenv("PATH", m_path);
    if (m_display.isNull()) {
        qunsetenv("DISPLAY");
    } else {
        qputenv("DISPLAY", m_display);
    }
}

QList<QStringList> FatalBoxes::takeArguments()
{
    QList<QStringList> calls;
    QFile file(m_folder.filePath(QStringLiteral("calls")));
    if (!file.open(QIODevice::ReadOnly)) {
        return calls;
    }
    const QStringList texts = QString::fromUtf8(file.readAll()).split(QChar(0x1D));
    for (const QString& text : texts.mid(0, texts.size() - 1)) {
        calls.append(text.split(QChar(0x1E)));
        calls.last().removeLast();
    }
    file.remove();
    return calls;
}

QStringList FatalBoxes::take()
{
    QStringList boxes;
    for (const QStringList& arguments : takeArguments()) {
        const int title = arguments.indexOf(QRegularExpression(QStringLiteral("--?title")));
        boxes.append(arguments.value(title + 1) + QLatin1Char('|') + arguments.value(arguments.size() - 1));
    }
    return boxes;
}
