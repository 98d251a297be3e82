#pragma once

#include "Correction.h"
#include "pages/PageWidget.h"

class LensSearch;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSlider;
class QStackedWidget;
struct Lens;

/// The settings of each tool, one panel over the other; the one of the current tool is visible.
class ToolPanel : public PageWidget
{
    Q_OBJECT

public:
    explicit ToolPanel(QWidget* parent);

    /// Shows the panel of \a tool with the values of \a step, which the panel reads and changes; null shows the
    /// panel for no tool. \param size of the full picture
    void showStep(Step* step, const QSize& size);
    /// Reads the values again, for example after the guide lines were moved.
    void readValues();
    /// Types \a text into the lens search.
    void searchLens(const QString& text);

Q_SIGNALS:
    void valuesChanged();
    void accepted();
    void cancelled();
    void resetRequested();
    /// A search was answered after \a milliseconds.
    void lensesListed(int total, qint64 milliseconds);

private:
    QWidget* makeEmpty();
    QWidget* makeHorizon();
    QWidget* makeKeystoning();
    QWidget* makeDistortion();
    QWidget* makeCrop();
    QWidget* makeTiltShift();
    QWidget* makeConfirm();
    QLabel* makeText(const char* text, const char* name = "pageSummary");
    QSlider* makeSlider(int least, int most, void (ToolPanel::*changed)(int));
    void setDistortion(int value);
    void setBlur(int value);
    void setWidth(int value);
    void setAspect(int index);
    void listLenses(const QVector<Lens>& lenses, int total);

    QStackedWidget* m_stack;
    QWidget* m_confirm;
    QDoubleSpinBox* m_angle = nullptr;
    QSlider* m_distortion = nullptr;
    QSlider* m_blur = nullptr;
    QSlider* m_width = nullptr;
    QComboBox* m_aspect = nullptr;
    QLabel* m_cropSize = nullptr;
    QLineEdit* m_search = nullptr;
    QListWidget* m_lenses = nullptr;
    QLabel* m_lensCount = nullptr;
    LensSearch* m_lensSearch;
    qint64 m_askedAt = 0;
    Step* m_step = nullptr;
    QSize m_size;
};
