#include "RulesGraph.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

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

QPointF RulesGraph::place(int node) const
{
    const QPointF middle(width() / 2.0, height() / 2.0);
    if (node == 0) {
        return middle;
    }
    const double angle = M_PI / 4 + (node - 1) * M_PI / 2;
    return middle + QPointF(std::cos(angle) * (width() / 2.0 - nodeSize.width() * 0.4) * 0.92,
                            std::sin(angle) * (height() / 2.0 - nodeSize.height()) * 1.1);
}

void RulesGraph::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const bool ofChosen : {false, true}) {
        for (int from = 0; from < m_nodes.size(); ++from) {
            QStringList drawn;
            for (const RulesMachine::Rule& rule : m_machine.rules()) {
                const QString target = targetOf(rule, m_nodes.at(from));
                if ((from == m_chosen) == ofChosen && !target.isEmpty() && !drawn.contains(target)) {
                    drawn += target;
                    painter.setPen(QPen(ofChosen ? accent : QColor(0x5A, 0x5E, 0x65), ofChosen ? 2.0 : 1.0));
                    paintArrow(painter, place(from), place(m_nodes.indexOf(target)));
                }
            }
        }
    }
    for (int node = 0; node < m_nodes.size(); ++node) {
        const QRectF box(place(node) - QPointF(nodeSize.width(), nodeSize.height()) / 2, nodeSize);
        const bool chosen = node == m_chosen;
        painter.setPen(QPen(chosen ? accent : QColor(0x6B, 0x70, 0x78), chosen && hasFocus() ? 3.0 : 1.5));
        painter.setBrush(chosen ? QColor(0x1F, 0x7C, 0x8D) : QColor(0x2C, 0x2D, 0x31));
        painter.drawRoundedRect(box, 6, 6);
        painter.setPen(Qt::white);
        painter.drawText(box, Qt::AlignCenter, m_nodes.at(node));
    }
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
        const QRectF box(place(node) - QPointF(nodeSize.width(), nodeSize.height()) / 2, nodeSize);
        if (box.contains(event->localPos())) {
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
