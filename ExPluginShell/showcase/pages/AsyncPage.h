#pragma once

#include "PageWidget.h"

class QLabel;
class QProgressBar;
class QSlider;
class QVBoxLayout;

/// Page "Asynchronous": delayed calls, waits and the completion waiter, to try out by hand. Work items are at work
/// on the workplace.
class AsyncPage : public PageWidget
{
    Q_OBJECT

public:
    explicit AsyncPage(QWidget* parent);

    void prepareForPicture() override;

private Q_SLOTS: // called by name
    void render();
    void tick();
    void countHeldClicks();

private:
    QVBoxLayout* addBox(const char* title);
    QLabel* addNote(QVBoxLayout* box, const char* text);
    void addDelayedCalls();
    void addWaits();
    void togglePeriodic(bool on);
    void waitWithoutInput();
    void waitForWorker();
    void onClicked();

    QSlider* m_slider = nullptr;
    QLabel* m_burst = nullptr;
    QLabel* m_ticks = nullptr;
    QLabel* m_wait = nullptr;
    QLabel* m_clicks = nullptr;
    QProgressBar* m_bar = nullptr;
    int m_requests = 0;
    int m_renders = 0;
    int m_tickCount = 0;
    int m_clickCount = 0;
    int m_clicksBefore = 0;
};
