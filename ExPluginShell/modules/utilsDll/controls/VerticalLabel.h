#pragma once

#include "../utilsdll_global.h"

#include <QLabel>

/// A label whose text reads from bottom to top, for the narrow captions at the side of panels.
///
/// It has the whole interface of QLabel, but paints only its plain text: no frame, picture, alignment,
/// elision or rich text. The caller places the text with the two margins and knows the label's size:
///
/// - The baseline lies \c font().pixelSize() + top margin from the left edge. A font that was given in points
///   has the pixel size -1.
/// - The text starts \c width() - left margin from the top edge, on purpose the width and not the height, and
///   runs upwards from there.
///
/// Main thread only.
class UTILSDLL_EXPORT CVerticalLabel : public QLabel
{
    Q_OBJECT

public:
    /// A label without text.
    explicit CVerticalLabel(QWidget* parent = nullptr);
    /// A label with \a text.
    explicit CVerticalLabel(const QString& text, QWidget* parent = nullptr);
    ~CVerticalLabel() override;

    /// Moves the start of the text; visible at the next repaint, which the caller asks for.
    void setLeftMargin(int margin);
    /// Moves the baseline; visible at the next repaint, which the caller asks for.
    void setTopMargin(int margin);

    /// The hint of QLabel with width and height exchanged.
    QSize sizeHint() const override;
    /// The minimum hint of QLabel with width and height exchanged.
    QSize minimumSizeHint() const override;

protected:
    /// Paints the text, and nothing else of QLabel, upwards.
    void paintEvent(QPaintEvent* event) override;

private:
    int m_leftMargin = 0;
    int m_topMargin = 0;
};
