#include "LogModel.h"
#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"

#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>

using namespace TOLVAN_NAMESPACE;

/// The log of this process as it grows, and lines sent by hand at the four levels.
class LoggingPage : public PageWidget
{
    Q_OBJECT

public:
    explicit LoggingPage(QWidget* parent)
        : PageWidget(parent)
        , m_filter(new QSortFilterProxyModel(this))
    {
        auto* const form = addForm();
        addFact(form, QT_TR_NOOP("Log folder"), [] { return CStorageLocation::loggerFilesPath(); });
        addFact(form, QT_TR_NOOP("Minimum level written"),
                [] { return LogModel::levelNames().at(LogModel::rankOf(getLogLevel())); });
        addSender();
        addLog();
        languageChanged();
    }

    void prepareForPicture() override
    {
        for (const char level : LogModel::levels) {
            send(level);
        }
        m_view->scrollToBottom();
    }

protected:
    void languageChanged() override
    {
        refill(m_level, LogModel::levelNames());
        LogModel::instance().retranslate();
    }

private:
    void addSender()
    {
        m_message = new QLineEdit(this);
        const char* const hint = QT_TR_NOOP("A line from the showcase");
        translate(hint, [this](const QString& text) {
            if (!m_message->isModified()) { // what the user wrote stays
                m_message->setText(text);
            }
        });
        const char* const names[] = {QT_TR_NOOP("Debug"), QT_TR_NOOP("Information"), QT_TR_NOOP("Warning"),
                                     QT_TR_NOOP("Error")};
        auto* const row = makeRow({m_message}, 0);
        for (int i = 0; i < 4; ++i) {
            row->addWidget(makeButton(names[i], [this, i] { send(LogModel::levels[i]); }));
        }
        column()->addLayout(row);
        column()->addWidget(makeAnswer());
    }

    void addLog()
    {
        m_level = new QComboBox(this);
        connect(m_level, qOverload<int>(&QComboBox::activated), this, [this](int index) {
            m_filter->setFilterRegularExpression(QStringLiteral("[%1-3]").arg(index));
        });
        auto* const label = withText(new QLabel(this), QT_TR_NOOP("Show from"));
        label->setBuddy(m_level);
        column()->addLayout(makeRow({addTitle(QT_TR_NOOP("The log of this process")), label, m_level}, 0));

        m_view = withText(new QTableView(this), QT_TR_NOOP("The log of this process"), "accessibleName");
        m_filter->setSourceModel(&LogModel::instance());
        m_filter->setFilterRole(LogModel::RankRole);
        m_view->setModel(m_filter);
        prepareTable(m_view);
        m_view->setShowGrid(false);
        m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        m_view->verticalHeader()->setDefaultSectionSize(24);
        m_view->horizontalHeader()->setStretchLastSection(true);
        const int widths[] = {110, 110, 260};
        for (int i = 0; i < 3; ++i) {
            m_view->setColumnWidth(i, widths[i]);
        }
        connect(m_filter, &QAbstractItemModel::rowsInserted, m_view, [this] {
            QScrollBar* const bar = m_view->verticalScrollBar();
            if (bar->value() >= bar->maximum() - 2) { // follows unless the user reads further up
                m_view->scrollToBottom();
            }
        });
        column()->addWidget(m_view, 1);
    }

    //! [code]
    void send(char level)
    {
        const QByteArray line = "LoggingPage::send: " + m_message->text().toUtf8();
        LiveLog::instance().log(level, line.constData());
        answer([level] {
            return tr("Logged at the level %1.").arg(LogModel::levelNames().at(LogModel::rankOf(level)));
        });
    }
    //! [code]

    QSortFilterProxyModel* m_filter;
    QTableView* m_view = nullptr;
    QComboBox* m_level = nullptr;
    QLineEdit* m_message = nullptr;
};

QWidget* makeLoggingPage(QWidget* parent)
{
    return new LoggingPage(parent);
}

namespace
{
const QString logName = QStringLiteral("showcase");

QStringList startUpLines()
{
    QFile file(QDir(CStorageLocation::loggerFilesPath()).filePath(logName + QStringLiteral(".log")));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(); // none yet
    return QString::fromUtf8(text).split(QLatin1Char('\n')).filter(QStringLiteral("initLogger"));
}

} // namespace

void walkLogging(Report& report)
{
    if (!isLoggerEnabled()) {
        report.row("logger", QStringLiteral("switched off in the settings"));
        return;
    }
    const int earlier = startUpLines().size();
    ILoggerInterface* const logger = initLoggerForUtilsDll(nullptr, logName);
    report.check("initLoggerForUtilsDll",
                 logger ? QStringLiteral("logger started") : QStringLiteral("no logger"), logger);
    if (!logger) {
        return;
    }
    report.check("a second call", QStringLiteral("the same logger"),
                 initLoggerForUtilsDll(nullptr, QStringLiteral("other")) == logger);
    logger->log(LogLevel::Error, "showcase: this error line makes the logger write out everything before it");
    const QStringList lines = startUpLines();
    const int added = lines.size() - (lines.size() < earlier ? 0 : earlier); // fewer: a new file was begun
    report.check("new start-up lines in the log file", QString::number(added), added == 5);
    for (const QString& line : lines.mid(qMax(0, lines.size() - 5))) {
        report.row("", line.trimmed());
    }
}

#include "LoggingPage.moc"
