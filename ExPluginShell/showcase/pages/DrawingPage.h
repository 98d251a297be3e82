#pragma once

#include "PageWidget.h"

class GuideCanvas;
class QHBoxLayout;
class QLabel;

/// A photo under guide lines, the tool cursors, and a caption that reads upwards.
class DrawingPage : public PageWidget
{
    Q_OBJECT

public:
    explicit DrawingPage(QWidget* parent);

protected:
    void languageChanged() override;

private:
    QHBoxLayout* makePicture();
    QHBoxLayout* makeTools();

    GuideCanvas* m_canvas = nullptr;
    QLabel* m_state = nullptr;
    int m_lines = 3;
    double m_angle = 0.0;
};
