#pragma once

#include "Correction.h"
#include "LensSearch.h"
#include "pages/PageWidget.h"

/// The settings of each tool, one panel over the other; the one of the current tool is visible.
class ToolPanel : public PageWidget
{
    Q_OBJECT

public:
    explicit ToolPanel(QWidget* parent);

    /// Shows the panel of the tool of \a step, whose values the panel reads and changes; null shows the panel for
    /// no tool. \param size of the full picture
    void showStep(Step* step, const QSize& size);
    /// Reads the values again, for example after the guide lines were moved.
    void readValues();

Q_SIGNALS:
    void valuesChanged();
    void accepted();
    void cancelled();
    void resetRequested();

private:
    QVBoxLayout* addPanel(const char* title, const char* hint);
    void addField(QVBoxLayout* panel, const char* name, QWidget* field);
    void addHorizon(QVBoxLayout* panel);
    void addDistortion(QVBoxLayout* panel);
    void addCrop(QVBoxLayout* panel);
    void addTiltShift(QVBoxLayout* panel);
    QWidget* makeConfirm();
    QLabel* makeText(const char* text, const char* name = "pageSummary");
    QSlider* makeSlider(int least, int most, double Step::*value);
    void setAspect(int index);
    void listLenses(const QVector<Lens>& lenses, int total);

    QStackedWidget* m_stack;
    LensSearch* m_lensSearch;
    QDoubleSpinBox* m_angle = nullptr;
    QSlider* m_distortion = nullptr;
    QSlider* m_blur = nullptr;
    QSlider* m_width = nullptr;
    QLabel* m_cropSize = nullptr;
    QListWidget* m_lenses = nullptr;
    QLabel* m_lensCount = nullptr;
    QWidget* m_confirm;
    QElapsedTimer m_sinceQuestion;
    Step* m_step = nullptr;
    QSize m_size;
};
