#include "ShowcaseWindow.h"

#include "pages/Pages.h"

#include <utilsDll/Settings.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CSettings;

namespace
{

const QString geometryKey = QStringLiteral("showcase/geometry");
const QString pageKey = QStringLiteral("showcase/page");

QString translated(const char* text)
{
    return QCoreApplication::translate("Pages", text);
}

} // namespace

ShowcaseWindow::ShowcaseWindow(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("showcaseWindow"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(makeNavigation());
    layout->addLayout(makePageArea(), 1);
    addPages();
    connect(m_list, &QListWidget::currentRowChanged, this, &ShowcaseWindow::showPage);
    connect(new QShortcut(QKeySequence::NextChild, this), &QShortcut::activated, this, [this] { step(1); });
    connect(new QShortcut(QKeySequence::PreviousChild, this), &QShortcut::activated, this,
            [this] { step(-1); });
    retranslate();
    restore();
}

QVBoxLayout* ShowcaseWindow::makeNavigation()
{
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("pageList"));
    m_list->setFixedWidth(220);
    m_list->setFrameShape(QFrame::NoFrame);
    auto* column = new QVBoxLayout;
    column->addWidget(m_list, 1);
    return column;
}

QVBoxLayout* ShowcaseWindow::makePageArea()
{
    m_heading = new QLabel(this);
    m_heading->setObjectName(QStringLiteral("pageHeading"));
    m_summary = new QLabel(this);
    m_summary->setObjectName(QStringLiteral("pageSummary"));
    m_summary->setWordWrap(true);
    m_stack = new QStackedWidget(this);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(28, 24, 28, 24);
    column->setSpacing(8);
    column->addWidget(m_heading);
    column->addWidget(m_summary);
    column->addSpacing(12);
    column->addWidget(m_stack, 1);
    return column;
}

void ShowcaseWindow::addPages()
{
    for (const Page& page : pages()) {
        m_list->addItem(QString());
        auto* area = new QScrollArea(m_stack);
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setWidget(page.make(area));
        m_stack->addWidget(area);
    }
}

void ShowcaseWindow::showPage(int index)
{
    if (index < 0 || index >= m_stack->count()) {
        return;
    }
    const Page page = pages().at(index);
    m_list->setCurrentRow(index);
    m_stack->setCurrentIndex(index);
    m_heading->setText(translated(page.title));
    m_summary->setText(translated(page.summary));
}

void ShowcaseWindow::step(int rows)
{
    const int count = m_list->count();
    showPage((m_list->currentRow() + rows + count) % count);
}

void ShowcaseWindow::retranslate()
{
    setWindowTitle(tr("Trelio Frame – Showcase"));
    m_list->setAccessibleName(tr("Pages"));
    const auto all = pages();
    for (int i = 0; i < all.size(); ++i) {
        m_list->item(i)->setText(translated(all.at(i).title));
    }
    showPage(m_list->currentRow());
}

void ShowcaseWindow::restore()
{
    CSettings settings;
    if (!restoreGeometry(settings.value(geometryKey).toByteArray())) {
        resize(1080, 720);
    }
    const QString name = settings.value(pageKey).toString();
    const auto all = pages();
    int row = 0;
    for (int i = 0; i < all.size(); ++i) {
        row = name == QLatin1String(all.at(i).name) ? i : row;
    }
    showPage(row);
    m_list->setFocus();
}

void ShowcaseWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void ShowcaseWindow::closeEvent(QCloseEvent* event)
{
    CSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(pageKey, QString::fromLatin1(pages().at(m_list->currentRow()).name));
    settings.sync();
    QWidget::closeEvent(event);
}
