#pragma once

#include "../utilsdll_global.h"

#include <QIcon>
#include <QSize>
#include <QWidget>

namespace TOLVAN_NAMESPACE
{

/// Shows an icon as large as the widget allows, centred and in proportion, sharp at any device pixel ratio.
///
/// Drawings fill the widget. Of an icon made of bitmaps the nearest one is shown, and never enlarged. A
/// disabled widget shows the icon's disabled mode. Nothing else is painted; a background from the style sheet
/// needs Qt::WA_StyledBackground, as for any QWidget.
///
/// \code
/// auto* viewer = new TOLVAN_NAMESPACE::CIconViewer(dialog);
/// viewer->setSizeHint({34, 34});
/// viewer->setIcon(QIcon(QStringLiteral(":/icons/messagebox/info_dark_icon.svg")));
/// \endcode
///
/// Main thread only.
class UTILSDLL_EXPORT CIconViewer : public QWidget
{
    Q_OBJECT

public:
    /// Makes a viewer without an icon and with the size hint 0 × 0.
    explicit CIconViewer(QWidget* parent = nullptr);
    ~CIconViewer() override;

    /// Shows \a icon; a null icon shows nothing.
    void setIcon(const QIcon& icon);
    /// Returns the icon that is shown.
    QIcon icon() const;

    /// Sets the value of sizeHint(), in logical pixels.
    void setSizeHint(const QSize& size);
    /// Returns the size set with setSizeHint().
    QSize sizeHint() const override;

protected:
    /// Paints the icon.
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_icon;
    QSize m_sizeHint{0, 0};
};

} // namespace TOLVAN_NAMESPACE
