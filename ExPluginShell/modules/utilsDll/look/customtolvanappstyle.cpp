#include "customtolvanappstyle.h"

#include "frame/Logging.h"
#include "look/ThemeDetails.h"

#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

namespace TOLVAN_NAMESPACE
{

namespace
{

const char* const unitName = "customtolvanappstyle";

// clang-format off
const char* const extensionButtonXpm[] = {
    "8 5 3 1",
    "            c None",
    ".            c #808080",
    "+            c none",
    "..++..++",
    "+..++..+",
    "++..++..",
    "+..++..+",
    "..++..++"};
// clang-format on

const QPixmap& mirroredExtensionButton()
{
    static const QPixmap pixmap = QPixmap::fromImage(
        QImage(extensionButtonXpm).convertToFormat(QImage::Format_ARGB32).mirrored(true, false));
    return pixmap;
}

/// Returns whether Qt has a plug-in that reads SVG images.
bool svgImagesCanBeRead()
{
    const QByteArray image("<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>");
    return !QImage::fromData(image, "svg").isNull();
}

/// Returns a rectangle of this size without the pixel at each corner.
QRegion withoutCorners(const QSize& size)
{
    const int width = size.width();
    const int height = size.height();
    return QRegion(1, 1, width - 2, height - 2) + QRegion(0, 1, width, height - 2) +
           QRegion(1, 0, width - 2, height);
}

} // namespace

struct Q_DECL_HIDDEN CustomTolvanAppStyle::pimpl {
    bool disableButtonShift(const QWidget* button);
    bool enableButtonShift(const QObject* button);
    bool isShiftDisabled(const QWidget* widget) const;

    QTableView substituteView;
    QPixmap extensionButton{extensionButtonXpm};
    QHash<QString, const QWidget*> nonShiftedButtons;
};

/// Returns whether the table changed.
bool CustomTolvanAppStyle::pimpl::disableButtonShift(const QWidget* button)
{
    const QString name = button->objectName();
    if (nonShiftedButtons.contains(name)) {
        return false;
    }
    nonShiftedButtons.insert(name, button);
    return true;
}

/// Returns whether the table changed. Takes a QObject because a button being destroyed is no QWidget any more.
bool CustomTolvanAppStyle::pimpl::enableButtonShift(const QObject* button)
{
    const auto entry = nonShiftedButtons.constFind(button->objectName());
    if (entry == nonShiftedButtons.constEnd()) {
        return false;
    }
    if (entry.value() != button) {
        Logging::reportAssertion("TOLVAN_NAMESPACE::CustomTolvanAppStyle::pimpl::disableButtonShift",
                                 unitName, 58);
    }
    nonShiftedButtons.erase(entry);
    return true;
}

bool CustomTolvanAppStyle::pimpl::isShiftDisabled(const QWidget* widget) const
{
    if (!widget) {
        return false;
    }
    const QString name = widget->objectName();
    return !name.isEmpty() &&
           (nonShiftedButtons.contains(name) || widget->property(disableButtonShiftPropertyName()).isValid());
}

CustomTolvanAppStyle::CustomTolvanAppStyle()
    : m_impl(std::make_unique<pimpl>())
{
    setBaseStyle(QStyleFactory::create(QStringLiteral("Windows")));
    new ThemeDetails(this);
    if (!svgImagesCanBeRead()) {
        UTILSDLL_LOG(LogLevel::Warning, "TOLVAN_NAMESPACE::CustomTolvanAppStyle::CustomTolvanAppStyle")
            << "SVG images cannot be read, icons stay empty: Qt's plug-in imageformats/qsvg is missing";
    }
}

CustomTolvanAppStyle::~CustomTolvanAppStyle() = default;

const char* CustomTolvanAppStyle::disableButtonShiftPropertyName()
{
    return "disableButtonShiftProperty";
}

void CustomTolvanAppStyle::disableButtonShift(const QWidget* button, bool disable)
{
    if (!button) {
        return;
    }
    if (button->objectName().isEmpty()) {
        Logging::reportAssertion("TOLVAN_NAMESPACE::CustomTolvanAppStyle::disableButtonShift", unitName, 75);
    }
    if (!(disable ? m_impl->disableButtonShift(button) : m_impl->enableButtonShift(button))) {
        return;
    }
    if (disable) {
        connect(button, SIGNAL(destroyed(QObject*)), this, SLOT(onNonShiftedButtonDestroy(QObject*)));
        connect(button, SIGNAL(objectNameChanged(QString)), this,
                SLOT(onNonShiftedButtonObjectNameChanged(QString)));
    } else {
        disconnect(button, nullptr, this, nullptr);
    }
}

void CustomTolvanAppStyle::onNonShiftedButtonDestroy(QObject* object)
{
    if (object) {
        m_impl->enableButtonShift(object);
    }
}

void CustomTolvanAppStyle::onNonShiftedButtonObjectNameChanged(const QString& newName)
{
    const auto* const button = qobject_cast<QWidget*>(sender());
    if (!button) {
        return;
    }
    auto& table = m_impl->nonShiftedButtons;
    const auto entry = std::find(table.begin(), table.end(), button);
    if (entry == table.end()) {
        Logging::reportAssertion(
            "TOLVAN_NAMESPACE::CustomTolvanAppStyle::onNonShiftedButtonObjectNameChanged", unitName, 107);
        return;
    }
    table.erase(entry);
    disconnect(button, nullptr, this, nullptr);
    if (!newName.isEmpty()) {
        disableButtonShift(button, true);
    }
}

void CustomTolvanAppStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                         QPainter* painter, const QWidget* widget) const
{
    if (element != PE_FrameFocusRect && element != PE_IndicatorMenuCheckMark) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void CustomTolvanAppStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                       const QWidget* widget) const
{
    if (option && option->type == QStyleOption::SO_ViewItem &&
        !(widget && widget->metaObject() == m_impl->substituteView.metaObject())) {
        widget = &m_impl->substituteView;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

int CustomTolvanAppStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                      const QWidget* widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        if (m_impl->isShiftDisabled(widget)) {
            return 0;
        }
        break;
    case PM_SubMenuOverlap:
        return -1;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int CustomTolvanAppStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                    QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_Menu_AllowActiveAndDisabled:
        return 0;
    case SH_ProgressDialog_CenterCancelButton:
    case SH_MenuBar_AltKeyNavigation:
    case SH_ComboBox_ListMouseTracking:
    case SH_Menu_MouseTracking:
    case SH_MenuBar_MouseTracking:
        return 1;
    case SH_Menu_SubMenuPopupDelay:
        return 300;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton;
    case SH_ToolTip_Mask:
        if (auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(returnData); mask && option) {
            mask->region = withoutCorners(option->rect.size());
            return 1;
        }
        break;
    case SH_ItemView_PaintAlternatingRowColorsForEmptyArea:
        if (qobject_cast<const QTreeView*>(widget)) {
            return 0;
        }
        break;
    default:
        break;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QPixmap CustomTolvanAppStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                                             const QWidget* widget) const
{
    if (pixmap != SP_ToolBarHorizontalExtensionButton) {
        return QProxyStyle::standardPixmap(pixmap, option, widget);
    }
    const bool rightToLeft = option ? option->direction == Qt::RightToLeft : QGuiApplication::isRightToLeft();
    return rightToLeft ? mirroredExtensionButton() : m_impl->extensionButton;
}

} // namespace TOLVAN_NAMESPACE
