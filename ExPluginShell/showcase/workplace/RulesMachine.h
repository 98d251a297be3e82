#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

/// The rules of "CorrectionsStateMachine.xml" at work: which tools are active, which one is the current
/// correction, and what an activity of the user changes. Main thread only.
class RulesMachine
{
public:
    /// A condition or a change: one element of the file.
    struct Term {
        enum Kind {
            ModuleActivity,    ///< the module \a name is active, or not
            CurrentCorrection, ///< the current correction is \a name
            ModuleApply,       ///< the correction of the module \a name is applied; a change only
        };
        Kind kind;
        QString name;
        bool on;
    };

    /// One action of the file.
    struct Rule {
        QString module;
        QStringList activities;
        QVector<Term> conditions;
        QVector<Term> changes;
    };

    /// Reads the rules from \a path, with no tool active.
    /// \return an empty text, or what is wrong with the file
    QString load(const QString& path);

    const QVector<Rule>& rules() const { return m_rules; }
    bool isActive(const QString& module) const { return m_active.contains(module); }
    QString current() const { return m_current; }

    /// Looks for the first rule of \a module for \a activity whose conditions hold, and carries out its
    /// changes in their order.
    /// \return the rule, null if none holds; valid until the next load()
    const Rule* perform(const QString& module, const QString& activity);

    /// The rule in one line, as the file words it.
    static QString inWords(const Rule& rule);

private:
    bool holds(const Term& condition) const;

    QVector<Rule> m_rules;
    QSet<QString> m_active;
    QString m_current = QStringLiteral("None");
};
