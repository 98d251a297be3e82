#include "look/ThemeDetails.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDial>
#include <QEvent>
#include <QFile>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyledItemDelegate>
#include <QTextEdit>
#include <QtMath>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// Rows as a list has them. The default delegate of a combo box takes no padding from a style sheet.
class PopUpDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        if (!isSeparator(index)) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        const QPalette::ColorGroup group = QPalette::Disabled;
        painter->fillRect(option.rect.adjusted(4, separatorHeight / 2, -4, -separatorHeight / 2),
                          option.palette.color(group, QPalette::Text));
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return isSeparator(index) ? QSize(size.width(), separatorHeight) : size;
    }

private:
    static constexpr int separatorHeight = 9;

    static bool isSeparator(const QModelIndex& index)
    {
        return index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
    }
};

void improvePopUp(QComboBox& box)
{
    QAbstractItemView* const view = box.view();
    if (std::strcmp(view->itemDelegate()->metaObject()->className(), "QComboBoxDelegate") == 0) {
        view->setItemDelegate(new PopUpDelegate(view));
    }
}

/// Style sheets give the placeholder the colour of the text.
void softenPlaceholder(QWidget& field)
{
    constexpr double opacity = 0.62; // 7 to 1 for white on black
    QPalette palette = field.palette();
    QColor colour = palette.color(QPalette::Active, QPalette::Text);
    if (palette.color(QPalette::Active, QPalette::PlaceholderText) != colour) {
        return;
    }
    colour.setAlphaF(opacity);
    palette.setColor(QPalette::Active, QPalette::PlaceholderText, colour);
    palette.setColor(QPalette::Inactive, QPalette::PlaceholderText, colour);
    field.setPalette(palette);
}

constexpr double fullTurn = 360.0;

/// Angles in degrees, counter-clockwise from three o'clock, as Qt places the values of a dial.
struct DialScale {
    double start;
    double span; // clockwise

    explicit DialScale(const QDial& dial)
        : start(dial.wrapping() ? 270.0 : 240.0)
        , span(dial.wrapping() ? fullTurn : 300.0)
    {
    }
    double angleAt(double part) const { return start - part * span; }
};

QPointF onCircle(const QPointF& centre, double radius, double degrees)
{
    const double angle = degrees * M_PI / 180.0;
    return centre + QPointF(radius * std::cos(angle), -radius * std::sin(angle));
}

void paintNotches(QPainter& painter, const QDial& dial, const QPointF& centre, double radius)
{
    const int range = dial.maximum() - dial.minimum();
    const int step = std::max({1, dial.notchSize(), range / 60});
    const DialScale scale(dial);
    painter.setPen(QPen(dial.palette().color(QPalette::WindowText), 1.0));
    for (int value = 0; value <= range; value += step) {
        const double angle = scale.angleAt(range > 0 ? double(value) / range : 0.0);
        painter.drawLine(onCircle(centre, radius, angle), onCircle(centre, radius + 3.0, angle));
    }
}

void paintDial(const QDial& dial, QPainter& painter)
{
    constexpr int sixteenths = 16;
    const double notches = dial.notchesVisible() ? 5.0 : 0.0;
    const double side = std::min(dial.width(), dial.height());
    const double groove = std::max(3.0, side / 16.0);
    const double radius = side / 2.0 - groove / 2.0 - notches - 1.0;
    const double knob = radius - groove * 1.5;
    const QPointF centre = QRectF(dial.rect()).center();
    const QRectF ring(centre - QPointF(radius, radius), QSizeF(radius, radius) * 2.0);
    const DialScale scale(dial);
    const int range = dial.maximum() - dial.minimum();
    const double done = range > 0 ? double(dial.sliderPosition() - dial.minimum()) / range : 0.0;
    const double part = dial.invertedAppearance() ? 1.0 - done : done;
    const QPalette& palette = dial.palette();

    painter.setRenderHint(QPainter::Antialiasing);
    const int start = qRound(scale.start * sixteenths);
    painter.setPen(QPen(palette.color(QPalette::Button), groove, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, start, qRound(-scale.span * sixteenths));
    painter.setPen(QPen(palette.color(QPalette::Highlight), groove, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, start, qRound(-part * scale.span * sixteenths));
    if (dial.notchesVisible()) {
        paintNotches(painter, dial, centre, radius + groove / 2.0 + 1.5);
    }
    painter.setBrush(palette.color(QPalette::Button));
    painter.setPen(dial.hasFocus() ? QPen(palette.color(QPalette::Highlight), 2.0) : QPen(Qt::NoPen));
    painter.drawEllipse(centre, knob, knob);
    const double angle = scale.angleAt(part);
    painter.setPen(
        QPen(palette.color(QPalette::WindowText), std::max(2.0, groove * 0.6), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(onCircle(centre, knob * 0.35, angle), onCircle(centre, knob * 0.75, angle));
}

/// Gives a tool button in the column of the settings its drawing for the checked state. A sheet can
/// give it a picture of one size only, which is lost at every scale but 100 %.
void addCheckedDrawing(QToolButton& button)
{
    const QWidget* above = button.parentWidget();
    while (above && above->objectName() != QLatin1String("settingsCategories")) {
        above = above->parentWidget();
    }
    const QString name = button.objectName().section(QStringLiteral("Button"), 0, 0);
    const QString file = QStringLiteral(":/icons/settingsPanel/settings_%1_checked.svg").arg(name);
    if (above && QFile::exists(file)) {
        QIcon icon = button.icon();
        icon.addFile(file, {}, QIcon::Normal, QIcon::On);
        button.setIcon(icon);
    }
}

void improve(QWidget* widget)
{
    if (auto* const box = qobject_cast<QComboBox*>(widget)) {
        improvePopUp(*box);
    } else if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QTextEdit*>(widget) ||
               qobject_cast<QPlainTextEdit*>(widget)) {
        softenPlaceholder(*widget);
    } else if (auto* const button = qobject_cast<QToolButton*>(widget)) {
        addCheckedDrawing(*button);
    }
}

} // namespace

ThemeDetails::ThemeDetails(QObject* parent)
    : QObject(parent)
{
    if (QCoreApplication* const application = QCoreApplication::instance()) {
        application->installEventFilter(this);
    }
}

/// The views may outlive the library, and with it the code of its delegate.
ThemeDetails::~ThemeDetails()
{
    for (QWidget* const widget : QApplication::allWidgets()) {
        auto* const view = qobject_cast<QAbstractItemView*>(widget);
        if (view && dynamic_cast<PopUpDelegate*>(view->itemDelegate())) {
            delete view->itemDelegate();
            view->setItemDelegate(new QStyledItemDelegate(view));
        }
    }
}

bool ThemeDetails::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool restyled =
        type == QEvent::Polish || type == QEvent::StyleChange || type == QEvent::PaletteChange;
    if ((!restyled && type != QEvent::Paint) || !watched->isWidgetType() || qApp->styleSheet().isEmpty()) {
        return false;
    }
    if (restyled) {
        improve(static_cast<QWidget*>(watched));
    } else if (watched->metaObject() == &QDial::staticMetaObject) {
        auto& dial = *static_cast<QDial*>(watched);
        QPainter painter(&dial);
        paintDial(dial, painter);
        return true;
    }
    return false;
}

} // namespace TOLVAN_NAMESPACE
