#include "LoggingPage.h"

#include "LogModel.h"
#include "Pages.h"

#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr char levels[] = {LogLevel::Debug, LogLevel::Information, LogLevel::Warning, LogLevel::Error};

} // namespace

QWidget* makeLoggingPage(QWidget* parent)
{
    return new LoggingPage(parent);
}

LoggingPage::LoggingPage(QWidget* parent)
    : PageWidget(parent)
    , m_model(new LogModel(this))
{
    auto* const form = addForm();
    auto* const folder = new QLabel(CStorageLocation::loggerFilesPath(), this);
    folder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addRow(form, QT_TR_NOOP("Log folder"), folder);
    auto* const written = new QLabel(this);
    say(written, [] {
        const QString level = getLogLevel();
        return LogModel::levelName(level.isEmpty() ? 'D' : level.at(0).toLatin1());
    });
    addRow(form, QT_TR_NOOP("Minimum level written"), written);
    addSender();
    addLog();
    languageChanged();
}

void LoggingPage::addSender()
{
    m_message = new QLineEdit(this);
    const char* const hint = QT_TR_NOOP("A line from the showcase");
    translate(hint, [this](const QString& text) {
        if (!m_message->isModified()) { // what the user wrote stays
            m_message->setText(text);
        }
    });
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_message, 1);
    const char* const names[] = {QT_TR_NOOP("Debug"), QT_TR_NOOP("Information"), QT_TR_NOOP("Warning"),
                                 QT_TR_NOOP("Error")};
    for (int i = 0; i < 4; ++i) {
        row->addWidget(makeButton(names[i], [this, i] { send(levels[i]); }));
    }
    column()->addLayout(row);
    addAnswer();
}

//! [code]
void LoggingPage::send(char level)
{
    const QByteArray line = "LoggingPage::send: " + m_message->text().toUtf8();
    LiveLog::instance().log(level, line.constData());
    answer([level] { return tr("Logged at the level %1.").arg(LogModel::levelName(level)); });
}
//! [code]

void LoggingPage::addLog()
{
    auto* const row = new QHBoxLayout;
    QLabel* const title = addTitle(QT_TR_NOOP("The log of this process"));
    m_level = new QComboBox(this);
    connect(m_level, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { m_model->setMinimumLevel(levels[index]); });
    auto* const label = new QLabel(this);
    label->setBuddy(m_level);
    translate(QT_TR_NOOP("Show from"), [label](const QString& text) { label->setText(text); });
    row->addWidget(title, 1);
    row->addWidget(label);
    row->addWidget(m_level);
    column()->addLayout(row);

    m_view = new QTableView(this);
    m_view->setModel(m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->setShowGrid(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->verticalHeader()->setDefaultSectionSize(24);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int widths[] = {110, 110, 260};
    for (int i = 0; i < 3; ++i) {
        m_view->setColumnWidth(i, widths[i]);
    }
    connect(m_model, &QAbstractItemModel::rowsInserted, m_view, [this] {
        QScrollBar* const bar = m_view->verticalScrollBar();
        if (bar->value() >= bar->maximum() - 2) { // follows unless the user reads further up
            m_view->scrollToBottom();
        }
    });
    column()->addWidget(m_view, 1);
}

void LoggingPage::languageChanged()
{
    const int chosen = qMax(0, m_level->currentIndex());
    m_level->clear();
    for (const char level : levels) {
        m_level->addItem(LogModel::levelName(level));
    }
    m_level->setCurrentIndex(chosen);
    m_model->retranslate();
    m_view->setAccessibleName(tr("The log of this process"));
}

void LoggingPage::prepareForPicture()
{
    for (const char level : levels) {
        send(level);
    }
    m_view->scrollToBottom();
}
