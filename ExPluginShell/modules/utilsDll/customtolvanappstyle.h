#pragma once

#include "utilsdll_global.h"

#include <QProxyStyle>

#include <memory>

namespace TOLVAN_NAMESPACE
{

/// The style of the product: the stock "Windows" style with some metrics, hints and pixmaps of its own. What
/// a widget looks like beyond that is said by the style sheets, see ApplicationStyle.h.
///
/// \code
/// QApplication::setStyle(new TOLVAN_NAMESPACE::CustomTolvanAppStyle); // the application owns it
/// \endcode
///
/// What differs from the stock style:
/// - no dotted focus rectangle, and no check mark on menu items: the style sheets show both;
/// - every item view (list, tree, the list of a combo box) draws its cells as a plain QTableView does;
/// - the label of a pressed button stays where it is on buttons that asked for it, see disableButtonShift();
/// - a tool bar that is too narrow shows a grey chevron pattern, mirrored in right-to-left layouts;
/// - sub-menus overlap their menu by -1 pixel and open after 300 ms; menus and combo boxes follow the mouse;
/// - a left click on a slider's groove moves the slider straight there;
/// - the corners of a tool tip are cut away by one pixel;
/// - disabled text is not etched; below the last row of a tree no alternating rows are painted.
///
/// \par Threads
/// User-interface thread only. Needs an application object: it owns a widget that is never shown.
class UTILSDLL_EXPORT CustomTolvanAppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Takes the style named "Windows" from the style factory as its base.
    CustomTolvanAppStyle();
    ~CustomTolvanAppStyle() override;

    /// Name of the dynamic property by which a widget opts out of the shift of pressed labels:
    /// "disableButtonShiftProperty". Only its presence counts, so a value of false opts out as well.
    static const char* disableButtonShiftPropertyName();

    /// Registers (\a disable true) or unregisters a button whose label must not move while it is pressed.
    ///
    /// Buttons are known by their object name: a second button of a registered name is not registered itself,
    /// yet its label does not move either. A registered button that is renamed is registered under its new
    /// name, or forgotten when that is empty; one that is destroyed is forgotten.
    ///
    /// A null \a button is ignored. Two programming errors are reported as failed assertions, after which the
    /// operation goes on: an empty object name, and unregistering a name that another widget registered,
    /// which unregisters that widget.
    /// \param button stays owned by the caller
    void disableButtonShift(const QWidget* button, bool disable);

    /// Draws nothing for focus rectangles and menu check marks.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    /// Hands a plain table view on as \a widget of item-view cells, whatever view they belong to.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    /// \return 0 pixels for the shift of a button that opted out by name or property. A widget without an
    /// object name is always shifted.
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
