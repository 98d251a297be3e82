#pragma once

#include "workplace/RulesMachine.h"

#include <QWidget>

/// The rules of the correction tools as a graph: a node for each current correction, an arrow for each way from
/// one to another. The chosen node shows the rules that leave it. Arrow keys or the mouse choose.
class RulesGraph : public QWidget
{
    Q_OBJECT

public:
    explicit RulesGraph(QWidget* parent);

    /// The rules that lead from \a correction to another one, in words.
    QStringList rulesFrom(const QString& correction) const;
    QString chosen() const { return m_nodes.at(m_chosen); }

Q_SIGNALS:
    void nodeChosen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QSize sizeHint() const override { return {420, 380}; }
    QSize minimumSizeHint() const override { return {320, 300}; }

private:
    QRectF box(int node) const;
    void choose(int node);
    bool leads(const QString& from, const QString& to) const;

    RulesMachine m_machine;
    const QStringList m_nodes;
    int m_chosen = 0;
};
