#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>

#include <QComboBox>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableWidget>
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

/// One letter per pixel: '.' grey, ' ' transparent, '?' anything else.
QStringList rowsOf(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            row += QLatin1Char(qAlpha(pixel) == 0 ? ' ' : pixel == 0xFF808080u ? '.' : '?');
        }
        rows += row;
    }
    return rows;
}

} // namespace

/// The product's style, held against the stock style that it builds on.
class CustomStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metaObject();
    void hintsAndMetrics();
    void toolTipMask();
    void focusRectangleAndMenuCheckMarkAreMissing();
    void extensionButton();
    void cellsLookLikeThoseOfATable_data();
    void cellsLookLikeThoseOfATable();

private:
    std::unique_ptr<CustomTolvanAppStyle> m_style;
    std::unique_ptr<QStyle> m_stock{QStyleFactory::create(QStringLiteral("windows"))};
};

void CustomStyleTest::init()
{
    m_style = std::make_unique<CustomTolvanAppStyle>();
}

void CustomStyleTest::metaObject()
{
    const QMetaObject& meta = CustomTolvanAppStyle::staticMetaObject;
    QCOMPARE(meta.className(), "TOLVAN_NAMESPACE::CustomTolvanAppStyle");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("onNonShiftedButtonDestroy(QObject*)"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             QByteArray("onNonShiftedButtonObjectNameChanged(QString)"));
    QCOMPARE(m_style->baseStyle()->metaObject()->className(), "QWindowsStyle");
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
    const auto hint = [this](const QStyleOption* option, QStyleHintReturn* returned) {
        return m_style->styleHint(QStyle::SH_ToolTip_Mask, option, nullptr, returned);
    };
    QStyleOption option;
    QStyleHintReturnMask mask;
    for (const QRect& rect : {QRect(0, 0, 40, 18), QRect(100, -7, 11, 5), QRect(0, 0, 3, 3)}) {
        option.rect = rect;
        QCOMPARE(hint(&option, &mask), 1);
        const QRect own(QPoint(0, 0), rect.size());
        QCOMPARE(mask.region.boundingRect(), own);
        for (int y = 0; y < own.height(); ++y) {
            for (int x = 0; x < own.width(); ++x) {
                const bool corner = (x == 0 || x == own.right()) && (y == 0 || y == own.bottom());
                QVERIFY2(mask.region.contains(QPoint(x, y)) != corner,
                         qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
        }
    }
    QStyleHintReturnVariant other;
    QStyleHintReturnMask newer;
    newer.version = 2;
    const int stock = m_stock->styleHint(QStyle::SH_ToolTip_Mask, &option);
    QCOMPARE(hint(&option, &other), stock);
    QCOMPARE(hint(&option, nullptr), stock);
    QCOMPARE(hint(&option, &newer), stock);
    QVERIFY(newer.region.isEmpty());
    QCOMPARE(hint(nullptr, &mask), stock); // nothing to mask
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
    const QStringList pattern = {QStringLiteral("..  ..  "), QStringLiteral(" ..  .. "),
                                 QStringLiteral("  ..  .."), QStringLiteral(" ..  .. "),
                                 QStringLiteral("..  ..  ")};
    // The second row is its own mirror image; the outer rows and the middle one are each other's.
    const QStringList mirrored = {pattern[2], pattern[1], pattern[0], pattern[1], pattern[2]};
    const auto rows = [this](const QStyleOption* option) {
        return rowsOf(m_style->standardPixmap(QStyle::SP_ToolBarHorizontalExtensionButton, option));
    };
    QStyleOption leftToRight;
    leftToRight.direction = Qt::LeftToRight;
    QStyleOption rightToLeft;
    rightToLeft.direction = Qt::RightToLeft;
    for (const auto application : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(application);
        QCOMPARE(rows(nullptr), application == Qt::LeftToRight ? pattern : mirrored);
        QCOMPARE(rows(&leftToRight), pattern); // the option decides where there is one
        QCOMPARE(rows(&rightToLeft), mirrored);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    const auto vertical = QStyle::SP_ToolBarVerticalExtensionButton;
    QCOMPARE(m_style->standardPixmap(vertical, nullptr).toImage(),
             m_stock->standardPixmap(vertical, nullptr).toImage());
}

void CustomStyleTest::cellsLookLikeThoseOfATable_data()
{
    QTest::addColumn<QWidget*>("view");
    QTest::addColumn<bool>("handedOn");
    QTest::newRow("no view") << static_cast<QWidget*>(nullptr) << false;
    QTest::newRow("table view") << static_cast<QWidget*>(new QTableView) << true;
    QTest::newRow("subclass of the table view") << static_cast<QWidget*>(new QTableWidget) << false;
    QTest::newRow("list") << static_cast<QWidget*>(new QListView) << false;
    QTest::newRow("tree") << static_cast<QWidget*>(new QTreeView) << false;
    QTest::newRow("pop-up of a combo box") << static_cast<QWidget*>((new QComboBox)->view()) << false;
}

void CustomStyleTest::cellsLookLikeThoseOfATable()
{
    QFETCH(QWidget*, view);
    QFETCH(bool, handedOn);
    const std::unique_ptr<QWidget> owner(view ? view->window() : nullptr);
    auto* const base = new RecordingStyle;
    m_style->setBaseStyle(base);
    const QTableView table;
    QCOMPARE(drawnCell(*m_style, view), drawnCell(*m_stock, &table));
    QVERIFY(base->drawnFor);
    QCOMPARE(base->drawnFor->metaObject()->className(), "QTableView");
    QCOMPARE(base->drawnFor == view, handedOn);
    QVERIFY(!base->drawnFor->isVisible());

    QStyleOptionButton option; // what is no cell keeps its widget
    QImage image = canvas(QSize(40, 20));
    QPainter painter(&image);
    m_style->drawControl(QStyle::CE_PushButton, &option, &painter, view);
    QCOMPARE(base->drawnFor, view);
}

TOLVAN_GUI_TEST_MAIN(CustomStyleTest)
#include "tst_customstyle.moc"
