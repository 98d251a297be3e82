#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>

#include <QStyleOption>
#include <QTableWidget>
#include <QTreeWidget>

using TOLVAN_NAMESPACE::CustomTolvanAppStyle;

namespace
{

/// A base style that draws nothing and remembers what it was asked for.
struct RecordingStyle : QProxyStyle {
    void drawPrimitive(PrimitiveElement element, const QStyleOption*, QPainter*,
                       const QWidget*) const override
    {
        drawn += element;
    }
    void drawControl(ControlElement, const QStyleOption*, QPainter*, const QWidget* widget) const override
    {
        drawnFor = widget;
    }
    mutable QList<int> drawn;
    mutable const QWidget* drawnFor = nullptr;
};

} // namespace

/// The product's style, held against the stock style that it builds on.
class CustomStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(m_style.baseStyle()->objectName(), QStringLiteral("windows"));
        m_style.setBaseStyle(m_base);
    }

    void ownAnswersAndThoseOfTheBase()
    {
        const QTreeWidget tree; // a subclass of the tree view
        const auto hint = [&](QStyle::StyleHint which) { return m_style.styleHint(which, nullptr, &tree); };
        QCOMPARE(hint(QStyle::SH_EtchDisabledText), 0);
        QCOMPARE(hint(QStyle::SH_Menu_SubMenuPopupDelay), 300);
        QCOMPARE(hint(QStyle::SH_Menu_MouseTracking), 1);
        QCOMPARE(hint(QStyle::SH_ItemView_PaintAlternatingRowColorsForEmptyArea), 0);
        QCOMPARE(hint(QStyle::SH_ToolTipLabel_Opacity), m_base->styleHint(QStyle::SH_ToolTipLabel_Opacity));
        QCOMPARE(m_style.pixelMetric(QStyle::PM_SubMenuOverlap), -1);
        QCOMPARE(m_style.pixelMetric(QStyle::PM_SliderLength), m_base->pixelMetric(QStyle::PM_SliderLength));
        for (const auto element : {QStyle::PE_FrameFocusRect, QStyle::PE_IndicatorMenuCheckMark,
                                   QStyle::PE_Frame}) { // the first two are not drawn
            m_style.drawPrimitive(element, nullptr, nullptr);
        }
        QCOMPARE(m_base->drawn, QList<int>{QStyle::PE_Frame});
    }

    void toolTipMask()
    {
        QStyleOption option;
        option.rect = QRect(100, -7, 11, 5);
        QStyleHintReturnMask mask;
        QCOMPARE(m_style.styleHint(QStyle::SH_ToolTip_Mask, &option, nullptr, &mask), 1);
        QRegion expected(0, 0, 11, 5);
        for (const QPoint corner : {QPoint(0, 0), QPoint(10, 0), QPoint(0, 4), QPoint(10, 4)}) {
            expected -= QRect(corner, QSize(1, 1));
        }
        QCOMPARE(mask.region, expected);
        QStyleHintReturnVariant other;
        QCOMPARE(m_style.styleHint(QStyle::SH_ToolTip_Mask, &option, nullptr, &other),
                 m_base->styleHint(QStyle::SH_ToolTip_Mask));
    }

    /// The stripes begin in a corner. The option decides on the direction, if there is one.
    void extensionButton()
    {
        QStyleOption option;
        const auto corner = [&](const QStyleOption* given) {
            const QPixmap drawn = m_style.standardPixmap(QStyle::SP_ToolBarHorizontalExtensionButton, given);
            const QImage image = drawn.toImage().convertToFormat(QImage::Format_ARGB32);
            return image.size() == QSize(8, 5) ? image.pixelColor(0, 0).name(QColor::HexArgb) : QString();
        };
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const QString ofApplication = corner(nullptr);
        const QString ofOption = corner(&option);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(ofOption, QStringLiteral("#ff808080"));
        QCOMPARE(ofApplication, QStringLiteral("#00000000"));
        QCOMPARE(corner(nullptr), ofOption);
    }

    void cellsLookLikeThoseOfATable()
    {
        const QTableView table;
        const QTableWidget subclass;
        const QStyleOptionViewItem cell;
        const QStyleOptionButton button; // what is no cell keeps its widget
        for (const QWidget* const view :
             {static_cast<const QWidget*>(&table), static_cast<const QWidget*>(&subclass)}) {
            m_style.drawControl(QStyle::CE_ItemViewItem, &cell, nullptr, view);
            QCOMPARE(m_base->drawnFor->metaObject()->className(), "QTableView");
            QCOMPARE(m_base->drawnFor == view, view == &table);
            m_style.drawControl(QStyle::CE_PushButton, &button, nullptr, view);
            QCOMPARE(m_base->drawnFor, view);
        }
    }

private:
    CustomTolvanAppStyle m_style;
    RecordingStyle* const m_base = new RecordingStyle;
};

TOLVAN_GUI_TEST_MAIN(CustomStyleTest)
#include "tst_customstyle.moc"
