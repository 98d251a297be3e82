#include "TestMain.h"

#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/controls/VerticalLabel.h>

#include <QImage>
#include <QPainter>

using TOLVAN_NAMESPACE::CIconViewer;

namespace
{

QImage render(QWidget& widget, qreal ratio = 1.0)
{
    QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

QPixmap filled(const QSize& size, const QColor& color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

/// Counts its repaints.
class CountingLabel : public CVerticalLabel
{
public:
    using CVerticalLabel::CVerticalLabel;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        CVerticalLabel::paintEvent(event);
    }
};

} // namespace

/// The vertical label and the icon viewer, by what they paint.
class ControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hintsAreExchanged();
    void textRunsUpwards_data();
    void textRunsUpwards();
    void marginsAskForNoRepaint();
    void onlyTheTextIsPainted();
    void iconFillsTheWidget_data();
    void iconFillsTheWidget();
    void smallBitmapIsNotEnlarged();
    void nullIconPaintsNothing();
    void disabledIcon();
    void sizeHint();
};

void ControlsTest::hintsAreExchanged()
{
    const QString text = QStringLiteral("Keystone");
    const CVerticalLabel label(text);
    const QLabel plain(text);
    QVERIFY(plain.sizeHint().width() > plain.sizeHint().height());
    QCOMPARE(label.sizeHint(), plain.sizeHint().transposed());
    QCOMPARE(label.minimumSizeHint(), plain.minimumSizeHint().transposed());
    QCOMPARE(label.text(), text);
    QVERIFY(CVerticalLabel().text().isEmpty());
}

void ControlsTest::textRunsUpwards_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("top");
    QTest::addColumn<QPoint>("baseline");
    QTest::newRow("no margins") << 12 << 0 << 0 << QPoint(12, 20);
    QTest::newRow("left margin") << 12 << -40 << 0 << QPoint(12, 60);
    QTest::newRow("top margin") << 12 << -40 << 5 << QPoint(17, 60);
    QTest::newRow("font given in points") << -1 << -40 << 12 << QPoint(11, 60);
}

void ControlsTest::textRunsUpwards()
{
    QFETCH(int, pixelSize);
    QFETCH(int, left);
    QFETCH(int, top);
    QFETCH(QPoint, baseline);
    CVerticalLabel label(QStringLiteral("Text"));
    QFont font = label.font();
    if (pixelSize > 0) {
        font.setPixelSize(pixelSize);
    } else {
        font.setPointSize(9);
    }
    label.setFont(font);
    label.resize(20, 80);
    label.setLeftMargin(left);
    label.setTopMargin(top);
    const QImage image = render(label);
    QImage expected(label.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.setFont(label.font());
    painter.setPen(label.palette().color(QPalette::WindowText));
    painter.translate(baseline);
    painter.rotate(-90);
    painter.drawText(0, 0, QStringLiteral("Text"));
    painter.end();
    QCOMPARE(image, expected);
    QVERIFY(image != QImage(expected.size(), expected.format()));
    const QRect below(0, baseline.y() + 1, 20, 80);
    QCOMPARE(image.copy(below & image.rect()), expected.copy(below & image.rect()));
}

void ControlsTest::marginsAskForNoRepaint()
{
    CountingLabel label(QStringLiteral("Text"));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QTest::qWait(20);
    label.paints = 0;
    label.setLeftMargin(4);
    label.setTopMargin(4);
    QTest::qWait(20);
    QCOMPARE(label.paints, 0);
    label.update();
    QTRY_VERIFY(label.paints > 0);
}

void ControlsTest::onlyTheTextIsPainted()
{
    CVerticalLabel label;
    label.resize(20, 80);
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setPixmap(filled({10, 10}, Qt::red));
    QImage white(label.size(), QImage::Format_ARGB32_Premultiplied);
    white.fill(Qt::white);
    QCOMPARE(render(label), white);
}

void ControlsTest::iconFillsTheWidget_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QRect>("painted"); // in device pixels
    QTest::newRow("34 pixels") << QSize(34, 34) << 1.0 << QRect(0, 0, 34, 34);
    QTest::newRow("wide") << QSize(60, 34) << 1.0 << QRect(13, 0, 34, 34);
    QTest::newRow("high") << QSize(34, 50) << 1.0 << QRect(0, 8, 34, 34);
}

void ControlsTest::iconFillsTheWidget()
{
    QFETCH(QSize, size);
    QFETCH(qreal, ratio);
    QFETCH(QRect, painted);
    CIconViewer viewer;
    viewer.setIcon(QIcon(filled({128, 128}, Qt::red)));
    viewer.resize(size);
    QImage expected(size * ratio, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::white);
    QPainter(&expected).fillRect(painted, Qt::red);
    QCOMPARE(render(viewer, ratio), expected);
}

void ControlsTest::smallBitmapIsNotEnlarged()
{
    CIconViewer viewer;
    viewer.setIcon(QIcon(filled({16, 16}, Qt::red)));
    viewer.resize(34, 34);
    QImage expected(34, 34, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::white);
    QPainter(&expected).fillRect(QRect(9, 9, 16, 16), Qt::red);
    QCOMPARE(render(viewer), expected);
}

void ControlsTest::nullIconPaintsNothing()
{
    CIconViewer viewer;
    viewer.resize(34, 34);
    QImage white(34, 34, QImage::Format_ARGB32_Premultiplied);
    white.fill(Qt::white);
    QCOMPARE(render(viewer), white);
    viewer.setIcon(QIcon(QStringLiteral("no-such-file.png")));
    QCOMPARE(render(viewer), white);
    viewer.resize(0, 0);
    viewer.repaint();
}

void ControlsTest::disabledIcon()
{
    QIcon icon(filled({34, 34}, Qt::red));
    icon.addPixmap(filled({34, 34}, Qt::gray), QIcon::Disabled);
    CIconViewer viewer;
    viewer.setIcon(icon);
    viewer.resize(34, 34);
    viewer.setEnabled(false);
    QCOMPARE(render(viewer).pixelColor(17, 17), QColor(Qt::gray));
}

void ControlsTest::sizeHint()
{
    CIconViewer viewer;
    QCOMPARE(viewer.sizeHint(), QSize(0, 0));
    viewer.setSizeHint({34, 34});
    QCOMPARE(viewer.sizeHint(), QSize(34, 34));
    QVERIFY(viewer.icon().isNull());
}

TOLVAN_GUI_TEST_MAIN(ControlsTest)
#include "tst_controls.moc"
