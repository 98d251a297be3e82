#pragma once

#include <QString>

/// The showcase's console report: aligned rows under headings, each with its verdict. Knows whether
/// everything did what it should.
class Report
{
public:
    /// Begins a section.
    void heading(const QString& title);
    /// A fact that has no verdict.
    void row(const char* name, const QString& value);
    /// A step and its result; \a ok: whether it did what it should
    void check(const QString& name, const QString& value, bool ok);
    void check(const char* name, const QString& value, bool ok)
    {
        check(QString::fromLatin1(name), value, ok);
    }
    /// Writes the closing line.
    /// \return whether every step did what it should
    bool finish();

private:
    void line(const QString& mark, const QString& name, const QString& value);

    int m_passed = 0;
    int m_failed = 0;
};
