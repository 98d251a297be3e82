#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// Stands in for the user while fatal messages are shown: notes each box and closes it.
///
/// Windows: a thread looks for the real box of this process, reads it and presses its button. Elsewhere: a
/// message program of the test's own becomes the only one that this process can find.
class FatalBoxes
{
public:
    /// \param program name of the message program to stand in for, empty for none; no matter on Windows
    explicit FatalBoxes(const QString& program = QStringLiteral("zenity"));
    ~FatalBoxes();

    /// The boxes since the last call, each as "caption|text".
    QStringList take();
    /// The same as the message program's arguments, one list a box.
    QList<QStringList> takeArguments();
    /// Removes the message program.
    void removeProgram();

private:
    class Watcher;
    QTemporaryDir m_folder;
    QByteArray m_path;
    QByteArray m_display;
    std::unique_ptr<Watcher> m_watcher;
};
