// The look: assembling the style sheet compared with setting the same text, and the product's style compared
// with the stock style.

#include <ApplicationStyle.h>
#include <customtolvanappstyle.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>

#include <memory>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr int cells = 1000;
constexpr int buttons = 200;

/// A window of 300 widgets of the usual kinds.
class Window : public QWidget
{
public:
    Window()
    {
        auto* const grid = new QGridLayout(this);
        for (int i = 0; i < 50; ++i) {
            QWidget* const row[] = {new QLabel(QStringLiteral("Label")),
                                    new QLineEdit(QStringLiteral("Text")),
                                    new QPushButton(QStringLiteral("Button")),
                                    new QCheckBox(QStringLiteral("Check")),
                                    new QSlider(Qt::Horizontal),
                                    new QGroupBox(QStringLiteral("Group"))};
            int column = 0;
            for (QWidget* const widget : row) {
                grid->addWidget(widget, i, column++);
            }
        }
        show();
        QCoreApplication::processEvents();
    }
};

void applyPredefined(benchmark::State& state)
{
    const Window window;
    for (auto unused : state) {
        Q_UNUSED(unused)
        setPredefinedAppStyleSheet(QString(), qApp);
        QCoreApplication::sendPostedEvents();
    }
    qApp->setStyleSheet(QString());
}
BENCHMARK(applyPredefined)->Unit(benchmark::kMillisecond);

void applySameText(benchmark::State& state)
{
    setPredefinedAppStyleSheet(QString(), qApp);
    const QString text = qApp->styleSheet();
    if (text.isEmpty()) {
        state.SkipWithError("the style sheets are missing");
    }
    const Window window;
    for (auto unused : state) {
        Q_UNUSED(unused)
        qApp->setStyleSheet(text);
        QCoreApplication::sendPostedEvents();
    }
    qApp->setStyleSheet(QString());
}
BENCHMARK(applySameText)->Unit(benchmark::kMillisecond);

/// Cost of the font rule alone.
void applyFontRuleAlone(benchmark::State& state)
{
    const Window window;
    QFile file(QStringLiteral(":/qss/win.qss"));
    if (!file.open(QIODevice::ReadOnly)) {
        state.SkipWithError("the style sheets are missing");
    }
    const QString text = QString::fromUtf8(file.readAll());
    for (auto unused : state) {
        Q_UNUSED(unused)
        qApp->setStyleSheet(text);
        QCoreApplication::sendPostedEvents();
    }
    qApp->setStyleSheet(QString());
}
BENCHMARK(applyFontRuleAlone)->Unit(benchmark::kMillisecond);

std::unique_ptr<QStyle> makeStyle(bool product)
{
    return std::unique_ptr<QStyle>(product ? new CustomTolvanAppStyle
                                           : QStyleFactory::create(QStringLiteral("windows")));
}

void drawCells(benchmark::State& state, bool product)
{
    const auto style = makeStyle(product);
    const QListView view;
    QImage image(100, 24, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.features = QStyleOptionViewItem::HasDisplay;
    option.text = QStringLiteral("A cell of the table");
    option.widget = &view;
    for (auto unused : state) {
        Q_UNUSED(unused)
        for (int i = 0; i < cells; ++i) {
            style->drawControl(QStyle::CE_ItemViewItem, &option, &painter, &view);
        }
    }
}
BENCHMARK_CAPTURE(drawCells, product, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawCells, stock, false)->Unit(benchmark::kMillisecond);

void drawButtons(benchmark::State& state, bool product)
{
    const auto style = makeStyle(product);
    QPushButton button(QStringLiteral("Button"));
    button.setObjectName(QStringLiteral("button"));
    QImage image(100, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionButton option;
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | QStyle::State_Sunken; // asks for the shift of the label
    option.text = button.text();
    for (auto unused : state) {
        Q_UNUSED(unused)
        for (int i = 0; i < buttons; ++i) {
            style->drawControl(QStyle::CE_PushButton, &option, &painter, &button);
        }
    }
}
BENCHMARK_CAPTURE(drawButtons, product, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawButtons, stock, false)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    loadFonts();
    QApplication::setStyle(new CustomTolvanAppStyle);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
