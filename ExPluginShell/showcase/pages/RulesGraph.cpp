#include "RulesGraph.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{

constexpr QSizeF nodeSize(104, 34);
const QColor accent(69, 184, 204);

/// Where a rule leads from \a correction; empty if it does not start there or does not lead on.
QString targetOf(const RulesMachine::Rule& rule, const QString& correction)
{
    using Term = RulesMachine::Term;
    bool starts = false;
    for (const Term& condition : rule.conditions) {
        starts = starts || (condition.kind == Term::CurrentCorrection && condition.name == correction);
    }
    for (const Term& change : rule.changes) {
        if (starts && change.kind == Term::CurrentCorrection && change.name != correction) {
            return change.name;
        }
    }
    return {};
}

void paintArrow(QPainter& painter, const QPointF& from, const QPointF& to)
{
    QLineF line(from, to);
    const QPointF side(line.normalVector().unitVector().dx(), line.normalVector().unitVector().dy());
    line.translate(side * 5); // two arrows between the same nodes stand beside each other
    line.setLength(line.length() - 56);
    line = QLineF(line.pointAt(56 / line.length()), line.p2());
    painter.drawLine(line);
    QLineF barb(line.p2(), line.p1());
    barb.setLength(9);
    for (const double turn : {24.0, -24.0}) {
        QLineF turned = barb;
        turned.setAngle(barb.angle() + turn);
        painter.drawLine(turned);
    }
}

} // namespace

RulesGraph::RulesGraph(QWidget* parent)
    : QWidget(parent)
    , m_nodes({QStringLiteral("None"), QStringLiteral("Horizon"), QStringLiteral("Keystoning"),
               QStringLiteral("Crop"), QStringLiteral("TiltShift")})
{
    m_machine.load(QStringLiteral(":/other/CorrectionsStateMachine.xml"));
    setFocusPolicy(Qt::StrongFocus);
}

QStringList RulesGraph::rulesFrom(const QString& correction) const
{
    QStringList texts;
    for (const RulesMachine::Rule& rule : m_machine.rules()) {
        if (!targetOf(rule, correction).isEmpty()) {
            texts += RulesMachine::inWords(rule);
        }
    }
    return texts;
}

/// Where a node stands: "None" in the middle, the others about it.
QRectF RulesGraph::box(int node) const
{
    const double angle = M_PI / 4 + (node - 1) * M_PI / 2;
    const QPointF reach = node == 0 ? QPointF()
                                    : QPointF(std::cos(angle) * (width() * 0.46 - nodeSize.width() * 0.37),
                                              std::sin(angle) * (height() * 0.55 - nodeSize.height() * 1.1));
    QRectF place(QPointF(), nodeSize);
    place.moveCenter(QPointF(width(), height()) / 2 + reach);
    return place;
}

void RulesGraph::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const bool ofChosen : {false, true}) {
        painter.setPen(QPen(ofChosen ? accent : QColor(0x5A, 0x5E, 0x65), ofChosen ? 2.0 : 1.0));
        for (int from = 0; from < m_nodes.size(); ++from) {
            for (int to = 0; to < m_nodes.size(); ++to) {
                if ((from == m_chosen) == ofChosen && leads(m_nodes.at(from), m_nodes.at(to))) {
                    paintArrow(painter, box(from).center(), box(to).center());
                }
            }
        }
    }
    for (int node = 0; node < m_nodes.size(); ++node) {
        const bool chosen = node == m_chosen;
        painter.setPen(QPen(chosen ? accent : QColor(0x6B, 0x70, 0x78), chosen && hasFocus() ? 3.0 : 1.5));
        painter.setBrush(chosen ? QColor(0x1F, 0x7C, 0x8D) : QColor(0x2C, 0x2D, 0x31));
        painter.drawRoundedRect(box(node), 6, 6);
        painter.setPen(Qt::white);
        painter.drawText(box(node), Qt::AlignCenter, m_nodes.at(node));
    }
}

/// Whether a rule leads from one correction to another.
bool RulesGraph::leads(const QString& from, const QString& to) const
{
    const auto& rules = m_machine.rules();
    return std::any_of(rules.begin(), rules.end(),
                       [&](const RulesMachine::Rule& rule) { return targetOf(rule, from) == to; });
}

void RulesGraph::choose(int node)
{
    m_chosen = node;
    update();
    Q_EMIT nodeChosen();
}

void RulesGraph::mousePressEvent(QMouseEvent* event)
{
    for (int node = 0; node < m_nodes.size(); ++node) {
        if (box(node).contains(event->localPos())) {
            choose(node);
        }
    }
}

void RulesGraph::keyPressEvent(QKeyEvent* event)
{
    const bool next = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool previous = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (next || previous) {
        choose((m_chosen + (next ? 1 : m_nodes.size() - 1)) % m_nodes.size());
    } else {
        QWidget::keyPressEvent(event);
    }
}
