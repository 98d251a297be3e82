#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>

#include <QComboBox>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableWidget>
#include <QTreeView>
#include <QTreeWidget>

#include <memory>

using TOLVAN_NAMESPACE::CustomTolvanAppStyle;

namespace
{

/// A base style that remembers which widget it was asked to draw for.
struct RecordingStyle : QProxyStyle {
    RecordingStyle()
        : QProxyStyle(QStringLiteral("windows"))
    {
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        drawnFor = widget;
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    mutable const QWidget* drawnFor = nullptr;
};

QImage canvas(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

QImage drawnPrimitive(const QStyle& style, QStyle::PrimitiveElement element)
{
    QStyleOptionFocusRect option;
    option.rect = QRect(2, 2, 16, 16);
    option.state = QStyle::State_Enabled | QStyle::State_On | QStyle::State_KeyboardFocusChange;
    option.palette = QPalette(Qt::lightGray);
    QImage image = canvas(QSize(20, 20));
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter);
    return image;
}

QImage drawnCell(const QStyle& style, const QWidget* widget)
{
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 90, 24);
    option.state = QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_Active;
    option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasCheckIndicator;
    option.text = QStringLiteral("Cell");
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    option.showDecorationSelected = true;
    QImage image = canvas(option.rect.size());
    QPainter painter(&image);
    style.drawControl(QStyle::CE_ItemViewItem, &option, &painter, widget);
    return image;
}

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
    std::unique_ptr<QStyle> m_stock{QStyleFactory::create(QStringLiteral("windows"))};
};

void CustomStyleTest::init()
{
    m_style = std::make_unique<CustomTolvanAppStyle>();
}

void CustomStyleTest::hintsAndMetrics()
{
    struct BaseStyle : QProxyStyle {
        int styleHint(StyleHint hint, const QStyleOption*, const QWidget*, QStyleHintReturn*) const override
        {
            return 1000 + hint;
        }
        int pixelMetric(PixelMetric metric, const QStyleOption*, const QWidget*) const override
        {
            return 1000 + metric;
        }
    };
    m_style->setBaseStyle(new BaseStyle);
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
    const int stock = m_stock->styleHint(QStyle::SH_ToolTip_Mask, &option);
    for (QStyleHintReturn* const data :
         {static_cast<QStyleHintReturn*>(nullptr), static_cast<QStyleHintReturn*>(&other),
          static_cast<QStyleHintReturn*>(&newer)}) {
        QCOMPARE(m_style->styleHint(QStyle::SH_ToolTip_Mask, &option, nullptr, data), stock);
    }
}

void CustomStyleTest::focusRectangleAndMenuCheckMarkAreMissing()
{
    struct FillingStyle : QProxyStyle {
        void drawPrimitive(PrimitiveElement, const QStyleOption* option, QPainter* painter,
                           const QWidget*) const override
        {
            painter->fillRect(option->rect, Qt::red);
        }
    };
    const QImage blank = canvas(QSize(20, 20));
    QVERIFY(drawnPrimitive(*m_stock, QStyle::PE_FrameFocusRect) != blank);
    m_style->setBaseStyle(new FillingStyle);
    for (int element = 0; element <= int(QStyle::PE_IndicatorTabTearRight); ++element) {
        const auto e = static_cast<QStyle::PrimitiveElement>(element);
        const bool missing = e == QStyle::PE_FrameFocusRect || e == QStyle::PE_IndicatorMenuCheckMark;
        QVERIFY2((drawnPrimitive(*m_style, e) == blank) == missing, qPrintable(QString::number(element)));
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
    auto* const base = new RecordingStyle;
    m_style->setBaseStyle(base);
    const QTableView table;
    const QTableWidget subclass;
    const QTreeView tree;
    const QComboBox box;
    for (const QWidget* const view :
         {static_cast<const QWidget*>(nullptr), static_cast<const QWidget*>(&table),
          static_cast<const QWidget*>(&subclass), static_cast<const QWidget*>(&tree),
          static_cast<const QWidget*>(box.view())}) {
        QCOMPARE(drawnCell(*m_style, view), drawnCell(*m_stock, &table));
        QCOMPARE(base->drawnFor->metaObject()->className(), "QTableView");
        QCOMPARE(base->drawnFor == view, view == &table);
        QStyleOptionButton option; // what is no cell keeps its widget
        QImage image = canvas(QSize(40, 20));
        QPainter painter(&image);
        m_style->drawControl(QStyle::CE_PushButton, &option, &painter, view);
        QCOMPARE(base->drawnFor, view);
    }
}

TOLVAN_GUI_TEST_MAIN(CustomStyleTest)
#include "tst_customstyle.moc"
