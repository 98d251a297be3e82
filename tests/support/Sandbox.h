#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Whether this is a Windows program that runs under Wine.
bool underWine();

/// Turns a root process into an ordinary user ("nobody") while it lives, so that permissions mean something.
/// Does nothing for a process that is no root, nor on Windows. The test's profile is opened to everybody.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool m_changed = false;
};

/// A file system of the process's own, in memory, which nobody else sees. Made before any thread is started,
/// after the application object.
class SecondVolume
{
public:
    SecondVolume();
    ~SecondVolume();
    SecondVolume(const SecondVolume&) = delete;
    SecondVolume& operator=(const SecondVolume&) = delete;

    QString path() const { return m_path; }
    /// Why there is none; empty when there is.
    QString problem() const { return m_problem; }

private:
    const QString m_path;
    QString m_problem;
};

/// What a program answered.
struct Outcome {
    int code = -1; ///< -1 when it could not be started or did not end in time
    QByteArray output;
};

/// Runs a program to its end; what it writes to standard error is part of the output.
Outcome runProgram(const QString& program, const QStringList& arguments, const QString& folder = {},
                   const QByteArray& input = {});
