#pragma once

#include <QGuiApplication>
#include <QPoint>
#include <QWidget>

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/Xlib.h>

/// Mouse and keyboard of an X server. Each call returns when the server has processed it. Include it last: the
/// headers of the X server define macros with common names.
class RealInput
{
public:
    ~RealInput() { XCloseDisplay(m_display); }

    /// Returns whether the program runs on an X server that accepts simulated input.
    bool isThere() const
    {
        int unused = 0;
        return QGuiApplication::platformName() == QLatin1String("xcb") && m_display &&
               XTestQueryExtension(m_display, &unused, &unused, &unused, &unused);
    }

    void moveTo(const QPoint& position) const
    {
        XTestFakeMotionEvent(m_display, -1, position.x(), position.y(), CurrentTime);
        XSync(m_display, False);
    }
    void moveTo(const QWidget& widget) const { moveTo(widget.mapToGlobal(widget.rect().center())); }

    /// Presses or releases a mouse button; 4 and 5 turn the wheel.
    void setButton(unsigned button, bool pressed) const
    {
        XTestFakeButtonEvent(m_display, button, pressed ? True : False, CurrentTime);
        XSync(m_display, False);
    }
    void click(unsigned button) const
    {
        setButton(button, true);
        setButton(button, false);
    }

    void type(KeySym key) const
    {
        const unsigned code = XKeysymToKeycode(m_display, key);
        XTestFakeKeyEvent(m_display, code, True, CurrentTime);
        XTestFakeKeyEvent(m_display, code, False, CurrentTime);
        XSync(m_display, False);
    }

private:
    Display* const m_display = XOpenDisplay(nullptr);
};
