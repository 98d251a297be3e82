#include "ResourcesPage.h"

#include "Pages.h"
#include "RulesGraph.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace
{

const QString iconsRoot = QStringLiteral(":/icons/");
const char* const states[] = {"", "hover", "pressed", "checked", "disabled", "focus"};
constexpr int iconSide = 32;

/// The state that the name of an image ends with, empty for the usual one.
QString stateOf(const QString& baseName)
{
    const QString last = baseName.section(QLatin1Char('_'), -1);
    for (const char* const state : states) {
        if (*state && last == QLatin1String(state)) {
            return last;
        }
    }
    return {};
}

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

QWidget* makeResourcesPage(QWidget* parent)
{
    return new ResourcesPage(parent);
}

ResourcesPage::ResourcesPage(QWidget* parent)
    : PageWidget(parent)
    , m_tabs(new QTabWidget(this))
{
    addTab(makeIcons(), QT_TR_NOOP("Icons"));
    addTab(makeFonts(), QT_TR_NOOP("Fonts"));
    addTab(makeCountries(), QT_TR_NOOP("Countries"));
    addTab(makeRules(), QT_TR_NOOP("Rules"));
    addTab(makeSheets(), QT_TR_NOOP("Style sheets"));
    column()->addWidget(m_tabs, 1);
    languageChanged();
    m_folders->setCurrentRow(0);
}

void ResourcesPage::addTab(QWidget* tab, const char* title)
{
    tab->layout()->setContentsMargins(14, 14, 14, 14);
    const int index = m_tabs->addTab(tab, QString());
    translate(title, [this, index](const QString& text) { m_tabs->setTabText(index, text); });
}

QWidget* ResourcesPage::makeIcons()
{
    auto* const tab = new QWidget;
    m_folders = new QListWidget;
    m_folders->setFixedWidth(190);
    QStringList folders;
    for (QDirIterator it(iconsRoot, QDir::Dirs, QDirIterator::Subdirectories); it.hasNext();) {
        folders += it.next().mid(iconsRoot.size());
    }
    folders.sort(Qt::CaseInsensitive);
    folders.move(qMax(0, folders.indexOf(QStringLiteral("toolbar"))), 0);
    m_folders->addItems(folders);
    connect(m_folders, &QListWidget::currentRowChanged, this, &ResourcesPage::listIcons);
    m_icons = new QListWidget;
    m_icons->setViewMode(QListView::IconMode);
    m_icons->setResizeMode(QListView::Adjust);
    m_icons->setMovement(QListView::Static);
    m_icons->setWordWrap(true);
    m_icons->setSpacing(4);
    m_path = new QLineEdit;
    m_path->setReadOnly(true);
    connect(m_icons, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        m_path->setText(item ? item->data(Qt::UserRole).toString() : QString());
    });
    connect(m_icons, &QListWidget::itemActivated, this, &ResourcesPage::copyPath);

    auto* const choices = new QHBoxLayout;
    choices->setSpacing(8);
    const auto addChoice = [&](const char* title, QComboBox*& box) {
        auto* const label = new QLabel;
        box = new QComboBox;
        label->setBuddy(box);
        translate(title, [label](const QString& text) { label->setText(text); });
        connect(box, qOverload<int>(&QComboBox::activated), this, &ResourcesPage::listIcons);
        choices->addWidget(label);
        choices->addWidget(box);
    };
    addChoice(QT_TR_NOOP("State"), m_state);
    addChoice(QT_TR_NOOP("Scale"), m_scale);
    addChoice(QT_TR_NOOP("Ground"), m_ground);
    choices->addStretch();

    auto* const copied = new QHBoxLayout;
    copied->addWidget(m_path, 1);
    copied->addWidget(makeButton(QT_TR_NOOP("Copy the path"), [this] { copyPath(); }));
    m_answer = new QLabel;
    m_answer->setObjectName(QStringLiteral("answer"));
    auto* const right = new QVBoxLayout;
    right->addLayout(choices);
    right->addWidget(m_icons, 1);
    right->addLayout(copied);
    right->addWidget(m_answer);
    auto* const row = new QHBoxLayout(tab);
    row->setSpacing(12);
    row->addWidget(m_folders);
    row->addLayout(right, 1);
    return tab;
}

//! [code]
void ResourcesPage::listIcons()
{
    m_icons->clear();
    const QString folder = m_folders->currentItem() ? m_folders->currentItem()->text() : QString();
    const QString state = QString::fromLatin1(states[qMax(0, m_state->currentIndex())]);
    const int side = iconSide * (qMax(0, m_scale->currentIndex()) + 1);
    m_icons->setIconSize(QSize(side, side));
    for (const QFileInfo& file : QDir(iconsRoot + folder).entryInfoList(QDir::Files)) {
        if (stateOf(file.completeBaseName()) == state) {
            auto* const item = new QListWidgetItem(QIcon(file.filePath()), file.completeBaseName(), m_icons);
            item->setData(Qt::UserRole, file.filePath());
        }
    }
    //! [code]
    m_icons->setGridSize(QSize(qMax(112, side + 16), side + 52));
    const char* const grounds[] = {"#242528", "#18191B", "#F2F2F2"};
    const int ground = qMax(0, m_ground->currentIndex());
    m_icons->setStyleSheet(QStringLiteral("QListWidget { background-color: %1; color: %2; }")
                               .arg(QLatin1String(grounds[ground]),
                                    ground == 2 ? QStringLiteral("#242528") : QStringLiteral("#E6E8EB")));
    m_icons->setCurrentRow(0);
    const int count = m_icons->count();
    say(m_answer, [count] { return tr("%n icon(s)", "", count); });
}

void ResourcesPage::copyPath()
{
    const QString path = m_path->text();
    if (path.isEmpty()) {
        say(m_answer, [] { return tr("No icon is chosen."); });
        return;
    }
    QGuiApplication::clipboard()->setText(path);
    say(m_answer, [path] { return tr("Copied: %1").arg(path); });
}

QWidget* ResourcesPage::makeFonts()
{
    auto* const tab = new QWidget;
    auto* const layout = new QVBoxLayout(tab);
    layout->setSpacing(10);
    for (const QFileInfo& file : QDir(QStringLiteral(":/fonts")).entryInfoList(QDir::Files)) {
        const QByteArray bytes = [&] {
            QFile font(file.filePath());
            return font.open(QIODevice::ReadOnly) ? font.readAll() : QByteArray();
        }();
        const int id = QFontDatabase::addApplicationFontFromData(bytes);
        const QString family = QFontDatabase::applicationFontFamilies(id).value(0);
        auto* const sample = new QLabel(QStringLiteral("Straight lines stay straight 0123456789"));
        sample->setStyleSheet(QStringLiteral("font-family: \"%1\"; font-size: 22px;").arg(family));
        auto* const name = new QLabel(file.fileName() + QStringLiteral("  ·  ") + family);
        name->setObjectName(QStringLiteral("pageSummary"));
        layout->addWidget(name);
        layout->addWidget(sample);
    }
    layout->addStretch();
    return tab;
}

QWidget* ResourcesPage::makeCountries()
{
    auto* const tab = new QWidget;
    auto* const layout = new QVBoxLayout(tab);
    auto* const box = new QComboBox;
    box->setMaximumWidth(300);
    auto* const list = new QListWidget;
    for (const QString& line :
         contentOf(QStringLiteral(":/translations/countries.en.txt")).split(QLatin1Char('\n'))) {
        const QString name = line.trimmed();
        if (name.contains(QLatin1String("; not_selectable"))) {
            box->insertSeparator(box->count());
        } else if (!name.isEmpty()) {
            box->addItem(name);
            list->addItem(name);
        }
    }
    list->setFlow(QListView::TopToBottom);
    list->setWrapping(true);
    list->setResizeMode(QListView::Adjust);
    list->setUniformItemSizes(true);
    auto* const label = new QLabel;
    label->setBuddy(box);
    translate(QT_TR_NOOP("The six preferred countries stand above the line, which cannot be chosen."),
              [label](const QString& text) { label->setText(text); });
    layout->addWidget(label);
    layout->addWidget(box);
    layout->addWidget(list, 1);
    return tab;
}

QWidget* ResourcesPage::makeRules()
{
    auto* const tab = new QWidget;
    auto* const graph = new RulesGraph(tab);
    auto* const title = new QLabel;
    title->setObjectName(QStringLiteral("pageSubtitle"));
    auto* const rules = new QListWidget;
    rules->setWordWrap(true);
    const auto list = [=] {
        say(title, [graph] {
            return tr("%n rule(s) lead on from", "", graph->rulesFrom(graph->chosen()).size()) +
                   QLatin1Char(' ') + graph->chosen();
        });
        rules->clear();
        rules->addItems(graph->rulesFrom(graph->chosen()));
    };
    connect(graph, &RulesGraph::nodeChosen, this, list);
    list();
    auto* const right = new QVBoxLayout;
    right->addWidget(title);
    right->addWidget(rules, 1);
    auto* const row = new QHBoxLayout(tab);
    row->setSpacing(14);
    row->addWidget(graph, 1);
    row->addLayout(right, 1);
    return tab;
}

QWidget* ResourcesPage::makeSheets()
{
    auto* const tab = new QWidget;
    auto* const names = new QListWidget;
    names->setFixedWidth(190);
    auto* const text = new QPlainTextEdit;
    text->setObjectName(QStringLiteral("code"));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QString folder = QStringLiteral(":/qss/");
    connect(names, &QListWidget::currentTextChanged, text,
            [=](const QString& name) { text->setPlainText(contentOf(folder + name)); });
    names->addItems(QDir(folder).entryList(QDir::Files));
    names->setCurrentRow(0);
    auto* const row = new QHBoxLayout(tab);
    row->setSpacing(12);
    row->addWidget(names);
    row->addWidget(text, 1);
    return tab;
}

void ResourcesPage::languageChanged()
{
    const auto refill = [](QComboBox* box, const QStringList& texts) {
        const int index = qMax(0, box->currentIndex());
        box->clear();
        box->addItems(texts);
        box->setCurrentIndex(index);
    };
    refill(m_state, {tr("Normal"), tr("Hover"), tr("Pressed"), tr("Checked"), tr("Disabled"), tr("Focus")});
    refill(m_scale, {QStringLiteral("1×"), QStringLiteral("2×"), QStringLiteral("3×")});
    refill(m_ground, {tr("Window"), tr("Dark"), tr("Light")});
}

void ResourcesPage::prepareForPicture()
{
    m_icons->setCurrentRow(2);
    say(m_answer, [this] { return tr("%n icon(s)", "", m_icons->count()); });
}
