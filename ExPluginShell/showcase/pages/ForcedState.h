#pragma once

#include <QStyleOption>
#include <QStylePainter>

/// A button (push, tool or check button, QRadioButton) that is drawn in a state of the caller's choice, such
/// as QStyle::State_MouseOver, independent of mouse and keyboard.
template <class Button, class Option, QStyle::ControlElement element>
class ForcedState : public Button
{
public:
    explicit ForcedState(QStyle::State state, QWidget* parent = nullptr)
        : Button(parent)
        , m_state(state)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter painter(this);
        Option option;
        this->initStyleOption(&option);
        option.state |= m_state;
        if (m_state & QStyle::State_Sunken) {
            option.state &= ~QStyle::State_Raised;
        }
        painter.drawControl(element, option);
    }

private:
    const QStyle::State m_state;
};
