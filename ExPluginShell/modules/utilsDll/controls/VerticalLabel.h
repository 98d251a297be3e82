#pragma once

#include "../utilsdll_global.h"

#include <QLabel>

/// A label whose text reads from bottom to top, for the narrow captions at the side of panels.
///
/// It has the whole interface of QLabel, but paints only its plain text: no frame, picture, alignment,
/// elision or rich text. The caller places the text with the two margins:
///
/// - The baseline is \c font().pixelSize() + top margin away from the left edge. The pixel size of a font
///   given in points is -1.
/// - The text starts \c width() - left margin below the top edge and runs upwards. The formula uses the
///   width on purpose, not the height.
///
/// Main thread only.
class UTILSDLL_EXPORT CVerticalLabel : public QLabel
{
    Q_OBJECT

public:
    /// Makes a label without text.
    explicit CVerticalLabel(QWidget* parent = nullptr);
    /// Makes a label with \a text.
    explicit CVerticalLabel(const QString& text, QWidget* parent = nullptr);
    ~CVerticalLabel() override;

    /// Moves the start of the text. Visible after the next repaint, which the caller requests.
    void setLeftMargin(int margin);
    /// Moves the baseline. Visible after the next repaint, which the caller requests.
    void setTopMargin(int margin);

    /// Returns the hint of QLabel with width and height exchanged.
    QSize sizeHint() const override;
    /// Returns the minimum hint of QLabel with width and height exchanged.
    QSize minimumSizeHint() const override;

protected:
    /// Paints only the text, upwards.
    void paintEvent(QPaintEvent* event) override;

private:
    int m_leftMargin = 0;
    int m_topMargin = 0;
};
