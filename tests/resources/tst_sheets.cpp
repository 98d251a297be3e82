#include "Contrast.h"
#include "TestMain.h"

#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/SharedUtils.h>

#include <QtWidgets>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QColor ground(0x24, 0x25, 0x28);

QRgb brightest(const QImage& image, const QRect& area)
{
    QRgb found = qRgb(0, 0, 0);
    eachPixel(image, area,
              [&found](QPoint, QRgb pixel) { found = luminance(pixel) > luminance(found) ? pixel : found; });
    return found;
}

QImage shown(QWidget& widget)
{
    widget.show();
    QCoreApplication::processEvents();
    return widget.grab().toImage();
}

} // namespace

/// What the sheets, with the style's help, make of fields, views and buttons.
class SheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(new CustomTolvanAppStyle);
        loadFonts();
    }
    void init() { setPredefinedAppStyleSheet(QString(), qApp); }

    void fieldsHaveVisibleBorders()
    {
        QWidget window;
        QWidget* const fields[] = {new QLineEdit(&window), new QTextEdit(&window), new QListWidget(&window),
                                   new QComboBox(&window)};
        int y = 10;
        for (QWidget* const field : fields) {
            field->setFocusPolicy(Qt::NoFocus);
            field->setGeometry(10, y, 80, 40);
            y += 50;
        }
        const QImage image = shown(window);
        for (QWidget* const field : fields) {
            const QRgb border = image.pixel(field->x(), field->y() + 20);
            QVERIFY2(contrast(border, ground.rgb()) >= 3, field->metaObject()->className());
        }
    }

    void placeholdersAreSofterThanText()
    {
        QPlainTextEdit field;
        field.setCursorWidth(0);
        field.setPlaceholderText(QStringLiteral("HHHH"));
        const QImage placeholder = shown(field);
        field.setPlainText(QStringLiteral("HHHH"));
        const QImage text = shown(field);
        const QRect inside = text.rect().adjusted(8, 8, -8, -8);
        QVERIFY(contrast(brightest(text, inside), brightest(placeholder, inside)) > 1.5);
        QVERIFY(contrast(brightest(placeholder, inside), text.pixel(inside.bottomRight())) >= 4.5);
    }

    void chosenAndHoveredRowsDiffer()
    {
        QListWidget list;
        list.addItem(QStringLiteral("HHHH"));
        list.ensurePolished();
        const auto textColour = [&list](QStyle::State state) {
            QImage image(120, 28, QImage::Format_RGB32);
            QPainter painter(&image);
            QStyleOptionViewItem option;
            option.initFrom(&list);
            option.widget = &list;
            option.rect = image.rect();
            option.state = QStyle::State_Enabled | state;
            list.itemDelegate()->paint(&painter, option, list.model()->index(0, 0));
            return QColor(brightest(image, image.rect()));
        };
        const QColor chosen = textColour(QStyle::State_Selected); // in a list without focus
        const QColor hovered = textColour(QStyle::State_MouseOver | QStyle::State_Active);
        QVERIFY2(qAbs(chosen.red() - hovered.red()) > 50, qPrintable(chosen.name() + hovered.name()));
    }

    void popUpRowsAreAsHighAsListRows()
    {
        QListWidget list;
        QComboBox box;
        list.addItem(QStringLiteral("Row"));
        box.addItem(QStringLiteral("Row"));
        box.insertSeparator(1);
        shown(list);
        shown(box);
        QCOMPARE(box.view()->sizeHintForRow(0), list.sizeHintForRow(0));
        QVERIFY(box.view()->sizeHintForRow(1) < 12);
        const QPointer<QAbstractItemDelegate> ours = box.view()->itemDelegate();
        QApplication::setStyle(new CustomTolvanAppStyle); // the old style goes, and nothing of it may stay
        QVERIFY(!ours && box.view()->itemDelegate());
    }
};

TOLVAN_GUI_TEST_MAIN(SheetsTest)
#include "tst_sheets.moc"
