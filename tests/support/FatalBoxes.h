#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// Records fatal messages while they are shown and closes them.
///
/// On Windows a thread looks for the message box of this process, reads it and presses its button. On Unix a
/// script of this class becomes the only message program that the process can find.
class FatalBoxes
{
public:
    /// \param program name of the message program that the script replaces, empty for none; unused on Windows
    explicit FatalBoxes(const QString& program = QStringLiteral("zenity"));
    ~FatalBoxes();

    /// The boxes since the last call, each as "caption|text".
    QStringList take();
    /// The message program's arguments, one list for each box.
    QList<QStringList> takeArguments();

private:
    class Watcher;
    QTemporaryDir m_folder;
    QByteArray m_path;
    QByteArray m_display;
    std::unique_ptr<Watcher> m_watcher;
};
