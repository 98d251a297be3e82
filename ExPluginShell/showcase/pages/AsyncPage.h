#pragma once

#include "PageWidget.h"

#include <QThreadPool>

#include <memory>
#include <vector>

class CQRunnableItem;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSlider;

/// Page "Asynchronous": delayed calls, work items, waits and the completion waiter, to try out by hand.
class AsyncPage : public PageWidget
{
    Q_OBJECT

public:
    explicit AsyncPage(QWidget* parent);
    ~AsyncPage() override;

private Q_SLOTS:
    void onSliderMoved();
    void render();
    void togglePeriodic(bool on);
    void tick();
    void startItems();
    void stopItems();
    void onStep();
    void onItemFinished(bool ok, bool stopped);
    void waitWithoutInput();
    void waitForWorker();
    void onClicked();

private:
    QGroupBox* makeBox(const char* title);
    QLabel* makeNote(const char* text);
    void setText(QPushButton* button, const char* text);
    QWidget* makeDelayedCalls();
    QWidget* makeItems();
    QWidget* makeWaits();

    QSlider* m_slider;
    QLabel* m_burst;
    QLabel* m_ticks;
    QProgressBar* m_progress;
    QPushButton* m_start;
    QPushButton* m_stop;
    QLabel* m_items;
    QLabel* m_wait;
    QLabel* m_clicks;
    int m_requests = 0;
    int m_renders = 0;
    int m_tickCount = 0;
    int m_clickCount = 0;
    int m_finished = 0;
    int m_stopped = 0;
    std::vector<std::unique_ptr<CQRunnableItem>> m_running;
    QThreadPool m_pool; ///< of its own: the global pool also serves Qt's painting
};
