#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"
#include "RulesGraph.h"

namespace
{
const QString iconsRoot = QStringLiteral(":/icons/");
const char* const states[] = {"", "hover", "pressed", "checked", "disabled", "focus"};
constexpr int iconSide = 32;

/// The state that the name of an image ends with, empty for the usual one.
QString stateOf(const QString& baseName)
{
    const QString last = baseName.section(QLatin1Char('_'), -1);
    const auto isState = [&](const char* state) { return *state && last == QLatin1String(state); };
    return std::any_of(std::begin(states), std::end(states), isState) ? last : QString();
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The lines of the country list; an empty text stands for the line that cannot be chosen.
QStringList countries()
{
    QStringList names;
    for (const QByteArray& line : contentOf(QStringLiteral(":/translations/countries.en.txt")).split('\n')) {
        if (!line.trimmed().isEmpty()) {
            names += line.contains("; not_selectable") ? QString() : QString::fromUtf8(line.trimmed());
        }
    }
    return names;
}

} // namespace

/// What the library carries: icons to look at and copy the path of, fonts, countries, rules, style sheets.
class ResourcesPage : public PageWidget
{
    Q_OBJECT

public:
    explicit ResourcesPage(QWidget* parent)
        : PageWidget(parent)
        , m_tabs(new QTabWidget(this))
    {
        column()->addWidget(m_tabs, 1);
        addIcons(addTab(QT_TR_NOOP("Icons")));
        addFonts(addTab(QT_TR_NOOP("Fonts")));
        addCountries(addTab(QT_TR_NOOP("Countries")));
        addRules(addTab(QT_TR_NOOP("Rules")));
        addSheets(addTab(QT_TR_NOOP("Style sheets")));
        languageChanged();
        m_folders->setCurrentRow(0);
    }

protected:
    void languageChanged() override
    {
        refill(m_state,
               {tr("Normal"), tr("Hover"), tr("Pressed"), tr("Checked"), tr("Disabled"), tr("Focus")});
        refill(m_scale, {QStringLiteral("1×"), QStringLiteral("2×"), QStringLiteral("3×")});
        refill(m_ground, {tr("Window"), tr("Dark"), tr("Light")});
    }

private:
    QVBoxLayout* addTab(const char* title)
    {
        auto* const tab = new QWidget;
        const int index = m_tabs->addTab(tab, QString());
        translate(title, [this, index](const QString& text) { m_tabs->setTabText(index, text); });
        auto* const layout = new QVBoxLayout(tab);
        layout->setContentsMargins(14, 14, 14, 14);
        return layout;
    }

    /// The list at the left of a tab.
    QListWidget* makeList()
    {
        auto* const list = new QListWidget;
        list->setFixedWidth(190);
        return list;
    }

    void addIcons(QVBoxLayout* tab)
    {
        m_folders = makeList();
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

        auto* const choices = makeRow({}, 0);
        const auto addChoice = [&](const char* title) {
            auto* const label = withText(new QLabel, title);
            auto* const box = new QComboBox;
            label->setBuddy(box);
            connect(box, qOverload<int>(&QComboBox::activated), this, &ResourcesPage::listIcons);
            choices->addWidget(label);
            choices->addWidget(box);
            return box;
        };
        m_state = addChoice(QT_TR_NOOP("State"));
        m_scale = addChoice(QT_TR_NOOP("Scale"));
        m_ground = addChoice(QT_TR_NOOP("Ground"));
        choices->addStretch();
        auto* const right = new QVBoxLayout;
        right->addLayout(choices);
        right->addWidget(m_icons, 1);
        right->addLayout(
            makeRow({m_path, makeButton(QT_TR_NOOP("Copy the path"), [this] { copyPath(); })}, 0));
        right->addWidget(makeAnswer());
        auto* const row = makeRow({m_folders}, 1);
        row->addLayout(right, 1);
        tab->addLayout(row);
    }

    void addFonts(QVBoxLayout* tab)
    {
        for (const QFileInfo& file : QDir(QStringLiteral(":/fonts")).entryInfoList(QDir::Files)) {
            const int id = QFontDatabase::addApplicationFontFromData(contentOf(file.filePath()));
            const QString family = QFontDatabase::applicationFontFamilies(id).value(0);
            auto* const sample = new QLabel(QStringLiteral("Straight lines stay straight 0123456789"));
            sample->setStyleSheet(QStringLiteral("font-family: \"%1\"; font-size: 22px;").arg(family));
            auto* const name = new QLabel(file.fileName() + QStringLiteral("  ·  ") + family);
            name->setObjectName(QStringLiteral("pageSummary"));
            tab->addWidget(name);
            tab->addWidget(sample);
        }
        tab->addStretch();
    }

    void addCountries(QVBoxLayout* tab)
    {
        auto* const box = new QComboBox;
        box->setMaximumWidth(300);
        auto* const list = new QListWidget;
        for (const QString& name : countries()) {
            if (name.isEmpty()) {
                box->insertSeparator(box->count());
            } else {
                box->addItem(name);
                list->addItem(name);
            }
        }
        list->setWrapping(true);
        list->setResizeMode(QListView::Adjust);
        list->setUniformItemSizes(true);
        auto* const label =
            withText(new QLabel,
                     QT_TR_NOOP("The six preferred countries stand above the line, which cannot be chosen."));
        label->setBuddy(box);
        tab->addWidget(label);
        tab->addWidget(box);
        tab->addWidget(list, 1);
    }

    void addRules(QVBoxLayout* tab)
    {
        auto* const graph = new RulesGraph(this);
        auto* const title = new QLabel;
        title->setObjectName(QStringLiteral("pageSubtitle"));
        auto* const rules = new QListWidget;
        rules->setWordWrap(true);
        const auto list = [=] {
            const QStringList texts = graph->rulesFrom(graph->chosen());
            say(title, [=, count = texts.size()] {
                return tr("%n rule(s) lead on from", "", count) + QLatin1Char(' ') + graph->chosen();
            });
            rules->clear();
            rules->addItems(texts);
        };
        connect(graph, &RulesGraph::nodeChosen, this, list);
        list();
        auto* const right = new QVBoxLayout;
        right->addWidget(title);
        right->addWidget(rules, 1);
        auto* const row = makeRow({graph}, 0);
        row->addLayout(right, 1);
        tab->addLayout(row);
    }

    void addSheets(QVBoxLayout* tab)
    {
        auto* const names = makeList();
        auto* const text = new QPlainTextEdit;
        text->setObjectName(QStringLiteral("code"));
        text->setReadOnly(true);
        text->setTabChangesFocus(true);
        text->setLineWrapMode(QPlainTextEdit::NoWrap);
        connect(names, &QListWidget::currentTextChanged, text, [=](const QString& name) {
            text->setPlainText(QString::fromUtf8(contentOf(QStringLiteral(":/qss/") + name)));
        });
        names->addItems(QDir(QStringLiteral(":/qss")).entryList(QDir::Files));
        names->setCurrentRow(0);
        tab->addLayout(makeRow({names, text}, 1));
    }

    //! [code]
    void listIcons()
    {
        m_icons->clear();
        const QString folder = m_folders->currentItem() ? m_folders->currentItem()->text() : QString();
        const QString state = QString::fromLatin1(states[qMax(0, m_state->currentIndex())]);
        const int side = iconSide * (qMax(0, m_scale->currentIndex()) + 1);
        m_icons->setIconSize(QSize(side, side));
        for (const QFileInfo& file : QDir(iconsRoot + folder).entryInfoList(QDir::Files)) {
            if (stateOf(file.completeBaseName()) == state) {
                auto* const item =
                    new QListWidgetItem(QIcon(file.filePath()), file.completeBaseName(), m_icons);
                item->setData(Qt::UserRole, file.filePath());
            }
        }
        //! [code]
        m_icons->setGridSize(QSize(qMax(112, side + 16), side + 52));
        const char* const grounds[] = {"background-color: #242528; color: #E6E8EB;",
                                       "background-color: #18191B; color: #E6E8EB;",
                                       "background-color: #F2F2F2; color: #242528;"};
        m_icons->setStyleSheet(QString::fromLatin1(grounds[qMax(0, m_ground->currentIndex())]));
        m_icons->setCurrentRow(0);
        const int count = m_icons->count();
        answer([count] { return tr("%n icon(s)", "", count); });
    }

    void copyPath()
    {
        const QString path = m_path->text();
        if (!path.isEmpty()) {
            QGuiApplication::clipboard()->setText(path);
        }
        answer([path] { return path.isEmpty() ? tr("No icon is chosen.") : tr("Copied: %1").arg(path); });
    }

    QTabWidget* m_tabs;
    QListWidget* m_folders = nullptr;
    QListWidget* m_icons = nullptr;
    QComboBox* m_state = nullptr;
    QComboBox* m_scale = nullptr;
    QComboBox* m_ground = nullptr;
    QLineEdit* m_path = nullptr;
};

QWidget* makeResourcesPage(QWidget* parent)
{
    return new ResourcesPage(parent);
}

void walkResources(Report& report)
{
    const std::pair<const char*, int> folders[] = {{":/qss", 7},           {":/fonts", 9},
                                                   {":/icons", 349 + 8},   {":/other", 1},
                                                   {":/translations", 10}, {":/calibration", 3}};
    for (const auto& [path, expected] : folders) {
        int entries = 0;
        qint64 size = 0;
        for (QDirIterator it(QLatin1String(path), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            it.next();
            ++entries;
            size += it.fileInfo().size();
        }
        report.check(path,
                     QStringLiteral("%1 entries, %2").arg(entries).arg(QLocale::c().formattedDataSize(size)),
                     entries == expected);
    }
    const int choosable = countries().size() - countries().count(QString());
    report.check("country list", QStringLiteral("%1 lines to choose from").arg(choosable), choosable == 243);
}

#include "ResourcesPage.moc"
