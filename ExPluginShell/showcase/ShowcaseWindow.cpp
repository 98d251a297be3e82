#include "ShowcaseWindow.h"

#include "pages/Pages.h"

#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/LanguageManager.h>
#include <utilsDll/Settings.h>

#include <QtWidgets>

using TOLVAN_NAMESPACE::CLanguageManager;
using TOLVAN_NAMESPACE::CSettings;

namespace
{

const QString geometryKey = QStringLiteral("showcase/geometry");
const QString pageKey = QStringLiteral("showcase/page");
constexpr int codeHeight = 176;

/// What only this window has; everything else is the product's look.
const char* const windowSheet = R"(
#navigation { background-color: #18191B; }
#pageList { background-color: transparent; border: none; font-size: 14px; outline: none; }
#pageList::item { padding: 6px 8px; border-radius: 4px; }
#toolBar { background-color: #18191B; border-radius: 6px; }
#toolBar QToolButton { padding: 6px; }
#answer { color: #7FD9E8; }
#productName { font-size: 18px; color: #FFFFFF; }
#languageLabel, #pageSummary, #pageSubtitle { color: #A9AEB5; }
#pageHeading { font-size: 26px; color: #FFFFFF; }
#pageSubtitle { font-size: 15px; }
#code { font-family: "Consolas", "DejaVu Sans Mono", "Liberation Mono", "Nimbus Mono PS", "monospace"; font-size: 12px; }
)";

QString translated(const char* text)
{
    return *text ? QCoreApplication::translate("Pages", text) : QString();
}

/// The lines between the first two marks of the source file \a name, as they were built into this program.
QString codeSample(const QString& name)
{
    QFile file(QStringLiteral(":/showcase/code/") + name);
    const QByteArray source = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    static const QRegularExpression mark(QStringLiteral(" *//! \\[code\\]\n"));
    const QString code = QString::fromUtf8(source).split(mark).value(1);
    const QString indent(code.indexOf(QRegularExpression(QStringLiteral("[^ ]"))), QLatin1Char(' '));
    return QString(code).replace(QLatin1Char('\n') + indent, QStringLiteral("\n")).trimmed();
}

} // namespace

ShowcaseWindow::ShowcaseWindow(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("showcaseWindow"));
    setStyleSheet(QString::fromLatin1(windowSheet));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeNavigation());
    layout->addLayout(makePageArea(), 1);
    addPages();
    connect(m_list, &QListWidget::currentRowChanged, this, &ShowcaseWindow::showPage);
    connect(new QShortcut(QKeySequence::NextChild, this), &QShortcut::activated, this, [this] { step(1); });
    connect(new QShortcut(QKeySequence::PreviousChild, this), &QShortcut::activated, this,
            [this] { step(-1); });
    retranslate();
    restore();
}

QWidget* ShowcaseWindow::makeNavigation()
{
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("pageList"));
    m_list->setIconSize(QSize(20, 20));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* const logo = new TOLVAN_NAMESPACE::CIconViewer(this);
    logo->setFixedSize(32, 32);
    logo->setIcon(QApplication::windowIcon());
    auto* const name = new QLabel(QStringLiteral("Trelio Frame"), this);
    name->setObjectName(QStringLiteral("productName"));
    auto* const product = new QHBoxLayout;
    product->setContentsMargins(6, 0, 0, 0); // in line with the icons of the pages
    product->setSpacing(10);
    product->addWidget(logo);
    product->addWidget(name, 1);
    auto* const panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("navigation"));
    panel->setFixedWidth(240);
    auto* const layout = new QVBoxLayout(panel);
    layout->setContentsMargins(8, 16, 8, 16);
    layout->setSpacing(12);
    layout->addLayout(product);
    layout->addWidget(m_list, 1);
    layout->addLayout(makeLanguageChoice());
    return panel;
}

QVBoxLayout* ShowcaseWindow::makeLanguageChoice()
{
    auto* const languages = CLanguageManager::instance();
    m_languageLabel = new QLabel(this);
    m_languageLabel->setObjectName(QStringLiteral("languageLabel"));
    auto* const choice = new QComboBox(this);
    choice->setModel(languages->model());
    m_languageLabel->setBuddy(choice);
    const auto follow = [=] { choice->setCurrentIndex(languages->currentLanguageIndex()); };
    connect(choice, qOverload<int>(&QComboBox::activated), languages, &CLanguageManager::changeLanguage);
    connect(languages, &CLanguageManager::languageChanged, choice, follow);
    follow();
    auto* const layout = new QVBoxLayout;
    layout->setSpacing(6);
    layout->addWidget(m_languageLabel);
    layout->addWidget(choice);
    return layout;
}

QVBoxLayout* ShowcaseWindow::makePageArea()
{
    m_heading = new QLabel(this);
    m_heading->setObjectName(QStringLiteral("pageHeading"));
    m_summary = new QLabel(this);
    m_summary->setObjectName(QStringLiteral("pageSummary"));
    m_summary->setWordWrap(true);
    m_stack = new QStackedWidget(this);
    m_codeButton = new QPushButton(this);
    m_codeButton->setCheckable(true);
    m_codeButton->setAutoDefault(false);
    m_code = new QPlainTextEdit(this);
    m_code->setObjectName(QStringLiteral("code"));
    m_code->setReadOnly(true);
    m_code->setTabChangesFocus(true);
    m_code->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_code->setFixedHeight(codeHeight);
    m_code->hide();
    connect(m_codeButton, &QPushButton::toggled, m_code, &QWidget::setVisible);
    auto* const head = new QHBoxLayout;
    head->addWidget(m_heading, 1);
    head->addWidget(m_codeButton);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(24, 14, 24, 18);
    column->setSpacing(8);
    column->addLayout(head);
    column->addWidget(m_summary);
    column->addWidget(m_stack, 1);
    column->addWidget(m_code);
    return column;
}

void ShowcaseWindow::addPages()
{
    for (const Page& page : pages()) {
        m_list->addItem(
            new QListWidgetItem(QIcon(QStringLiteral(":/icons/") + QLatin1String(page.icon)), {}));
        auto* area = new QScrollArea(m_stack);
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setFocusPolicy(Qt::NoFocus); // it would be a Tab stop that shows nothing
        m_stack->addWidget(area);
    }
}

void ShowcaseWindow::showPage(int index)
{
    if (index < 0 || index >= m_stack->count()) {
        return;
    }
    const Page page = pages().at(index);
    auto* const area = static_cast<QScrollArea*>(m_stack->widget(index));
    if (!area->widget()) { // made when it is first shown
        area->setWidget(page.make(area));
    }
    m_list->setCurrentRow(index);
    m_stack->setCurrentIndex(index);
    m_heading->setText(translated(page.title));
    m_summary->setText(translated(page.summary));
    m_summary->setVisible(*page.summary);
    const QString code = codeSample(QString::fromLatin1(page.source));
    m_codeButton->setVisible(!code.isEmpty());
    m_codeButton->setChecked(!page.fillsWindow);
    m_code->setPlainText(code);
    m_code->setVisible(m_codeButton->isChecked() && !code.isEmpty());
}

QWidget* ShowcaseWindow::currentPage() const
{
    return static_cast<QScrollArea*>(m_stack->currentWidget())->widget();
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
    m_languageLabel->setText(tr("&Language"));
    m_codeButton->setText(tr("Show the code"));
    m_code->setAccessibleName(tr("Code of this page"));
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
        resize(1280, 800);
    }
    const auto all = pages();
    const auto stored = std::find_if(all.begin(), all.end(), [&](const Page& page) {
        return settings.value(pageKey).toString() == QLatin1String(page.name);
    });
    showPage(stored == all.end() ? 0 : int(stored - all.begin()));
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
