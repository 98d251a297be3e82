#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Whether this Windows program runs under Wine.
bool underWine();

/// Makes a root process an unprivileged user for its lifetime, so that permissions take effect. Has no effect
/// in other processes and on Windows. Every user may then access the test's profile.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    Q_DISABLE_COPY(OrdinaryUser)

private:
    bool m_changed = false;
};

/// A file system in memory that only this process sees. Must be created before any thread is started and after
/// the application object.
class SecondVolume
{
public:
    /// \param options of the mount
    explicit SecondVolume(const char* options = "mode=777");
    ~SecondVolume();
    Q_DISABLE_COPY(SecondVolume)

    QString path() const { return m_path; }
    /// Why it could not be mounted; empty on success.
    QString problem() const { return m_problem; }

private:
    const QString m_path;
    QString m_problem;
};

/// How a program ended.
struct Outcome {
    int code = -1; ///< exit code; -1 if it could not be started or did not end in time
    QByteArray output;
};

/// Runs a program to its end. The output includes standard error.
Outcome runProgram(const QString& program, const QStringList& arguments, const QString& folder = {},
                   const QByteArray& input = {});
