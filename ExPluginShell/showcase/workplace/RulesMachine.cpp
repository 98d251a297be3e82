#include "RulesMachine.h"

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace
{

using Term = RulesMachine::Term;

Term readTerm(QXmlStreamReader& xml)
{
    const QString element = xml.name().toString();
    const QString module = xml.attributes().value(QLatin1String("name")).toString();
    const QString text = xml.readElementText().trimmed();
    if (element == QLatin1String("currentCorrection")) {
        return {Term::CurrentCorrection, text, true};
    }
    const bool on = text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
    return {element == QLatin1String("moduleApply") ? Term::ModuleApply : Term::ModuleActivity, module, on};
}

RulesMachine::Rule readRule(QXmlStreamReader& xml, const QString& module)
{
    RulesMachine::Rule rule{module, {}, {}, {}};
    while (xml.readNextStartElement()) {
        const QString part = xml.name().toString();
        while (xml.readNextStartElement()) {
            if (part == QLatin1String("userActivities")) {
                rule.activities += xml.readElementText().trimmed();
            } else {
                (part == QLatin1String("conditions") ? rule.conditions : rule.changes) += readTerm(xml);
            }
        }
    }
    return rule;
}

QString inWords(const QVector<Term>& terms)
{
    QStringList texts;
    for (const Term& term : terms) {
        const QString on = term.on ? QStringLiteral("on") : QStringLiteral("off");
        texts += term.kind == Term::CurrentCorrection ? QStringLiteral("current = ") + term.name
                 : term.kind == Term::ModuleApply     ? QStringLiteral("apply ") + term.name
                                                      : term.name + QLatin1Char(' ') + on;
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace

QString RulesMachine::load(const QString& path)
{
    m_rules.clear();
    m_active.clear();
    m_current = QStringLiteral("None");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    QXmlStreamReader xml(&file);
    QString module;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("module")) {
            module = xml.attributes().value(QLatin1String("name")).toString();
        } else if (xml.name() == QLatin1String("action")) {
            m_rules += readRule(xml, module);
        }
    }
    return xml.hasError() ? xml.errorString() : QString();
}

bool RulesMachine::holds(const Term& condition) const
{
    return condition.kind == Term::CurrentCorrection ? m_current == condition.name
                                                     : m_active.contains(condition.name) == condition.on;
}

//! [code]
const RulesMachine::Rule* RulesMachine::perform(const QString& module, const QString& activity)
{
    const auto fits = [&](const Rule& rule) {
        return rule.module == module && rule.activities.contains(activity) &&
               std::all_of(rule.conditions.begin(), rule.conditions.end(),
                           [this](const Term& condition) { return holds(condition); });
    };
    const auto rule = std::find_if(m_rules.cbegin(), m_rules.cend(), fits);
    if (rule == m_rules.cend()) {
        return nullptr;
    }
    for (const Term& change : rule->changes) {
        if (change.kind == Term::CurrentCorrection) {
            m_current = change.name;
        } else if (change.kind == Term::ModuleActivity && change.on) {
            m_active.insert(change.name);
        } else if (change.kind == Term::ModuleActivity) {
            m_active.remove(change.name);
        }
    }
    return &*rule;
}
//! [code]

QString RulesMachine::inWords(const Rule& rule)
{
    const QString conditions =
        rule.conditions.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(::inWords(rule.conditions));
    return QStringLiteral("%1: %2%3 → %4")
        .arg(rule.module, rule.activities.join(QLatin1Char('/')), conditions, ::inWords(rule.changes));
}
