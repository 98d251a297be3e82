#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>

#include <QComboBox>
#include <QListWidget>
#include <QStyleOption>
#include <QTableWidget>
#include <QTreeWidget>

#include <memory>

using TOLVAN_NAMESPACE::CustomTolvanAppStyle;

namespace
{

/// A base style with recognisable answers, which draws nothing and remembers what it was asked for.
struct RecordingStyle : QProxyStyle {
    int styleHint(StyleHint hint, const QStyleOption*, const QWidget*, QStyleHintReturn*) const override
    {
        return 1000 + hint;
    }
    int pixelMetric(PixelMetric metric, const QStyleOption*, const QWidget*) const override
    {
        return 1000 + metric;
    }
    void drawPrimitive(PrimitiveElement, const QStyleOption*, QPainter*, const QWidget*) const override
    {
        ++primitives;
    }
    void drawControl(ControlElement, const QStyleOption*, QPainter*, const QWidget* widget) const override
    {
        drawnFor = widget;
    }
    mutable int primitives = 0;
    mutable const QWidget* drawnFor = nullptr;
};

const char* const extension[] = {"8 5 2 1",  "  c None", ". c #808080", "..  ..  ",
                                 " ..  .. ", "  ..  ..", " ..  .. ",    "..  ..  "};

} // namespace

/// The product's style, held against the stock style that it builds on.
class CustomStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hintsAndMetrics();
    void toolTipMask();
    void focusRectangleAndMenuCheckMarkAreMissing();
    void extensionButton();
    void cellsLookLikeThoseOfATable();

private:
    std::unique_ptr<CustomTolvanAppStyle> m_style;
    RecordingStyle* m_base = nullptr;
};

void CustomStyleTest::init()
{
    m_style = std::make_unique<CustomTolvanAppStyle>();
    QCOMPARE(m_style->baseStyle()->objectName(), QStringLiteral("windows"));
    m_base = new RecordingStyle;
    m_style->setBaseStyle(m_base);
}

void CustomStyleTest::hintsAndMetrics()
{
    const QHash<int, int> own = {{QStyle::SH_EtchDisabledText, 0},
                                 {QStyle::SH_Menu_AllowActiveAndDisabled, 0},
                                 {QStyle::SH_ProgressDialog_CenterCancelButton, 1},
                                 {QStyle::SH_Menu_SubMenuPopupDelay, 300},
                                 {QStyle::SH_MenuBar_AltKeyNavigation, 1},
                                 {QStyle::SH_ComboBox_ListMouseTracking, 1},
                                 {QStyle::SH_Menu_MouseTracking, 1},
                                 {QStyle::SH_MenuBar_MouseTracking, 1},
                                 {QStyle::SH_Slider_AbsoluteSetButtons, Qt::LeftButton}};
    const QListWidget list;
    for (int hint = 0; hint <= int(QStyle::SH_SpinBox_StepModifier); ++hint) {
        QCOMPARE(m_style->styleHint(static_cast<QStyle::StyleHint>(hint), nullptr, &list),
                 own.value(hint, 1000 + hint));
    }
    const QTreeWidget tree; // a subclass of the tree view
    QCOMPARE(m_style->styleHint(QStyle::SH_ItemView_PaintAlternatingRowColorsForEmptyArea, nullptr, &tree),
             0);
    for (int metric = 0; metric <= int(QStyle::PM_HeaderDefaultSectionSizeVertical); ++metric) {
        QCOMPARE(m_style->pixelMetric(static_cast<QStyle::PixelMetric>(metric), nullptr, &list),
                 metric == QStyle::PM_SubMenuOverlap ? -1 : 1000 + metric);
    }
}

void CustomStyleTest::toolTipMask()
{
    QStyleOption option;
    option.rect = QRect(100, -7, 11, 5);
    QStyleHintReturnMask mask;
    QCOMPARE(m_style->styleHint(QStyle::SH_ToolTip_Mask, &option, nullptr, &mask), 1);
    QRegion expected(0, 0, 11, 5);
    for (const QPoint corner : {QPoint(0, 0), QPoint(10, 0), QPoint(0, 4), QPoint(10, 4)}) {
        expected -= QRect(corner, QSize(1, 1));
    }
    QCOMPARE(mask.region, expected);
    QStyleHintReturnVariant other;
    QStyleHintReturnMask newer;
    newer.version = 2;
    for (QStyleHintReturn* const data :
         {static_cast<QStyleHintReturn*>(nullptr), static_cast<QStyleHintReturn*>(&other),
          static_cast<QStyleHintReturn*>(&newer)}) {
        QCOMPARE(m_style->styleHint(QStyle::SH_ToolTip_Mask, &option, nullptr, data),
                 1000 + QStyle::SH_ToolTip_Mask);
    }
}

void CustomStyleTest::focusRectangleAndMenuCheckMarkAreMissing()
{
    const QStyleOption option;
    for (int element = 0; element <= int(QStyle::PE_IndicatorTabTearRight); ++element) {
        const auto e = static_cast<QStyle::PrimitiveElement>(element);
        const bool missing = e == QStyle::PE_FrameFocusRect || e == QStyle::PE_IndicatorMenuCheckMark;
        m_base->primitives = 0;
        m_style->drawPrimitive(e, &option, nullptr);
        QCOMPARE(m_base->primitives, missing ? 0 : 1);
    }
}

void CustomStyleTest::extensionButton()
{
    const QImage pattern = QImage(extension).convertToFormat(QImage::Format_ARGB32);
    const auto drawn = [this](const QStyleOption* option) {
        return m_style->standardPixmap(QStyle::SP_ToolBarHorizontalExtensionButton, option)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32);
    };
    QStyleOption option;
    for (const auto application : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(application);
        QCOMPARE(drawn(nullptr), application == Qt::LeftToRight ? pattern : pattern.mirrored(true, false));
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction; // the option decides if there is one
            QCOMPARE(drawn(&option), direction == Qt::LeftToRight ? pattern : pattern.mirrored(true, false));
        }
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void CustomStyleTest::cellsLookLikeThoseOfATable()
{
    const QTableView table;
    const QTableWidget subclass;
    const QComboBox box;
    for (const QWidget* const view :
         {static_cast<const QWidget*>(nullptr), static_cast<const QWidget*>(&table),
          static_cast<const QWidget*>(&subclass), static_cast<const QWidget*>(box.view())}) {
        const QStyleOptionViewItem cell;
        m_style->drawControl(QStyle::CE_ItemViewItem, &cell, nullptr, view);
        QCOMPARE(m_base->drawnFor->metaObject()->className(), "QTableView");
        QCOMPARE(m_base->drawnFor == view, view == &table);
        const QStyleOptionButton button; // what is no cell keeps its widget
        m_style->drawControl(QStyle::CE_PushButton, &button, nullptr, view);
        QCOMPARE(m_base->drawnFor, view);
    }
}

TOLVAN_GUI_TEST_MAIN(CustomStyleTest)
#include "tst_customstyle.moc"
