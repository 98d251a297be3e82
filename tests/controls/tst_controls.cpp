#include "HighDpi.h"
#include "TestMain.h"

#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/controls/VerticalLabel.h>

#include <QImage>
#include <QPainter>

using TOLVAN_NAMESPACE::CIconViewer;

namespace
{

/// A white picture of the size of \a widget, in its device pixels.
QImage blank(const QWidget& widget)
{
    const qreal ratio = widget.devicePixelRatioF();
    QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

QImage render(QWidget& widget)
{
    QImage image = blank(widget);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

QPixmap filled(const QSize& size, const QBrush& brush)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::white);
    QPainter(&pixmap).fillRect(pixmap.rect(), brush);
    return pixmap;
}

} // namespace

/// The vertical label and the icon viewer, by what they paint.
class ControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hintsAreExchanged()
    {
        const QString text = QStringLiteral("Keystone");
        const CVerticalLabel label(text);
        const QLabel plain(text);
        QVERIFY(plain.sizeHint().width() > plain.sizeHint().height());
        QCOMPARE(label.sizeHint(), plain.sizeHint().transposed());
        QCOMPARE(label.minimumSizeHint(), plain.minimumSizeHint().transposed());
    }

    void textRunsUpwards()
    {
        struct Row {
            int pixelSize; // -1: given in points
            int left;
            int top;
            QPoint baseline;
        };
        for (const Row& row :
             {Row{12, 0, 0, {12, 20}}, Row{12, -40, 5, {17, 60}}, Row{-1, -40, 12, {11, 60}}}) {
            CVerticalLabel label(QStringLiteral("Text"));
            QFont font = label.font();
            row.pixelSize > 0 ? font.setPixelSize(row.pixelSize) : font.setPointSize(9);
            label.setFont(font);
            label.resize(20, 80);
            label.setLeftMargin(row.left);
            label.setTopMargin(row.top);
            QImage expected = blank(label);
            QPainter painter(&expected);
            painter.setFont(label.font());
            painter.setPen(label.palette().color(QPalette::WindowText));
            painter.translate(row.baseline);
            painter.rotate(-90);
            painter.drawText(0, 0, QStringLiteral("Text"));
            painter.end();
            QCOMPARE(render(label), expected);
        }
    }

    void marginsAskForNoRepaint()
    {
        struct Label : CVerticalLabel {
            int paints = 0;
            void paintEvent(QPaintEvent*) override { ++paints; }
        } label;
        label.setAttribute(Qt::WA_DontShowOnScreen);
        label.show();
        QTRY_VERIFY(label.paints > 0);
        label.paints = 0;
        label.setLeftMargin(4);
        label.setTopMargin(4);
        QTest::qWait(20);
        QCOMPARE(label.paints, 0);
    }

    void onlyTheTextIsPainted()
    {
        CVerticalLabel label;
        label.resize(20, 80);
        label.setFrameStyle(QFrame::Box | QFrame::Plain);
        label.setPixmap(filled({10, 10}, Qt::red));
        QCOMPARE(render(label), blank(label));
    }

    /// A small bitmap is not enlarged.
    void iconFillsTheWidget()
    {
        struct Row {
            int edge; // of the bitmap
            QSize size;
            QRect painted;
        };
        for (const Row& row : {Row{128, {62, 34}, {14, 0, 34, 34}}, Row{128, {34, 50}, {0, 8, 34, 34}},
                               Row{16, {36, 36}, {10, 10, 16, 16}}}) {
            QIcon icon(filled({row.edge, row.edge}, Qt::red));
            icon.addPixmap(filled({row.edge, row.edge}, Qt::gray), QIcon::Disabled);
            CIconViewer viewer;
            viewer.setIcon(icon);
            viewer.resize(row.size);
            for (const bool enabled : {true, false}) {
                viewer.setEnabled(enabled);
                QImage expected = blank(viewer);
                QPainter(&expected).fillRect(row.painted, enabled ? Qt::red : Qt::gray);
                QCOMPARE(render(viewer), expected);
            }
        }
    }

    /// One pixel of the icon is one of the device, with and without AA_UseHighDpiPixmaps.
    void iconIsSharp()
    {
        CIconViewer viewer;
        viewer.resize(34, 34);
        const QPixmap finePattern = filled(viewer.size() * viewer.devicePixelRatioF(), Qt::Dense4Pattern);
        QIcon icon(filled(finePattern.size() / 2, Qt::red));
        icon.addPixmap(finePattern);
        icon.addPixmap(filled(finePattern.size() * 2, Qt::red));
        viewer.setIcon(icon);
        for (const bool enlarging : {true, false}) {
            useHighDpiPixmaps(enlarging);
            QImage image = render(viewer);
            image.setDevicePixelRatio(1.0);
            QCOMPARE(image, finePattern.toImage().convertToFormat(image.format()));
        }
    }

    void nothingToShow()
    {
        CIconViewer viewer;
        QCOMPARE(viewer.sizeHint(), QSize(0, 0));
        viewer.setSizeHint({34, 34});
        QCOMPARE(viewer.sizeHint(), QSize(34, 34));
        viewer.resize(34, 34);
        QCOMPARE(render(viewer), blank(viewer));
        viewer.setIcon(QIcon(QStringLiteral("no-such-file.png")));
        QCOMPARE(render(viewer), blank(viewer));
    }
};

TOLVAN_GUI_TEST_MAIN(ControlsTest)
#include "tst_controls.moc"
