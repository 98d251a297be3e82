#pragma once

#include "utilsdll_global.h"

#include <QProxyStyle>

#include <memory>

namespace TOLVAN_NAMESPACE
{

/// The style of the product: the stock "Windows" style with some metrics, hints and pixmaps of its own. All
/// colours, borders and images come from the style sheets, see ApplicationStyle.h.
///
/// \code
/// QApplication::setStyle(new TOLVAN_NAMESPACE::CustomTolvanAppStyle); // the application owns it
/// \endcode
///
/// Differences from the stock style:
/// - no dotted focus rectangle and no check mark on menu items: the style sheets draw both;
/// - every item view (list, tree, the list of a combo box) draws its cells as a plain QTableView does;
/// - the label of a pressed button does not move on registered buttons, see disableButtonShift();
/// - a tool bar that is too narrow shows a grey chevron pattern, mirrored in right-to-left layouts;
/// - sub-menus overlap their menu by -1 pixel and open after 300 ms; menus and combo boxes follow the mouse;
/// - a left click on a slider's groove moves the slider to the click;
/// - a tool tip has no pixel at each of its four corners;
/// - disabled text is not etched; no alternating rows are painted below the last row of a tree.
///
/// \par Threads
/// Main thread only. Needs a QApplication, because the style owns a widget that is never shown.
class UTILSDLL_EXPORT CustomTolvanAppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Uses the style named "Windows" of QStyleFactory as its base. Most of the product's icons are SVG images: if
    /// Qt can't read those, because its plug-in for them is missing, one line at level "W" is logged.
    CustomTolvanAppStyle();
    ~CustomTolvanAppStyle() override;

    /// Returns "disableButtonShiftProperty", the name of the dynamic property that keeps the label of a pressed
    /// button in place. Only its presence counts: a value of false has the same effect.
    static const char* disableButtonShiftPropertyName();

    /// Registers or unregisters a button whose label must not move while it is pressed.
    ///
    /// Buttons are registered under their object name. A second button with a registered name is not
    /// registered, but its label does not move either. A registered button that is renamed is registered under
    /// its new name, or unregistered if that is empty. A destroyed button is unregistered.
    ///
    /// Two programming errors are reported as assertion failures, and the call is carried out: an empty object
    /// name, and unregistering a name that another widget registered, which unregisters that widget.
    /// \param button  stays owned by the caller; null is ignored
    /// \param disable true registers the button, false unregisters it
    void disableButtonShift(const QWidget* button, bool disable);

    /// Draws nothing for focus rectangles and menu check marks.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    /// Draws the cells of every item view as those of a plain QTableView.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    /// Returns 0 pixels for the shift of a button that is registered by name or has the property. A widget
    /// without an object name always has the shift of the stock style.
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    /// For SH_ToolTip_Mask the region in \a returnData is relative to the option's rectangle.
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;
    /// The direction of the tool bar's extension pattern comes from \a option, else from the application.
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                           const QWidget* widget = nullptr) const override;

private Q_SLOTS:
    void onNonShiftedButtonDestroy(QObject* object);
    void onNonShiftedButtonObjectNameChanged(const QString& newName);

private:
    struct pimpl;
    const std::unique_ptr<pimpl> m_impl;
};

} // namespace TOLVAN_NAMESPACE
