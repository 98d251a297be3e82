#include "LoggingPage.h"

#include "LiveLog.h"
#include "Pages.h"

#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

QWidget* makeLoggingPage(QWidget* parent)
{
    return new LoggingPage(parent);
}

LoggingPage::LoggingPage(QWidget* parent)
    : PageWidget(parent)
{
    auto* form = addForm();
    auto* folder = new QLabel(CStorageLocation::loggerFilesPath(), this);
    folder->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    addRow(form, QT_TR_NOOP("Log folder"), folder);
    addRow(form, QT_TR_NOOP("Minimum level"), new QLabel(getLogLevel(), this));
    addSender();
    addLog();
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
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_message, 1);
    const struct {
        const char* text;
        char level;
    } levels[] = {
        {QT_TR_NOOP("Debug"), LogLevel::Debug},
        {QT_TR_NOOP("Information"), LogLevel::Information},
        {QT_TR_NOOP("Warning"), LogLevel::Warning},
        {QT_TR_NOOP("Error"), LogLevel::Error},
    };
    for (const auto& level : levels) {
        row->addWidget(makeButton(level.text, [this, letter = level.level] {
            LiveLog::instance().log(letter, ("LoggingPage: " + m_message->text().toUtf8()).constData());
        }));
    }
    column()->addLayout(row);
}

void LoggingPage::addLog()
{
    addTitle(QT_TR_NOOP("The log of this process"));
    auto* view = new QPlainTextEdit(this);
    view->setReadOnly(true);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setMaximumBlockCount(500);
    view->setPlainText(LiveLog::instance().lines().join(QLatin1Char('\n')));
    connect(&LiveLog::instance(), &LiveLog::lineAdded, view, &QPlainTextEdit::appendPlainText);
    column()->addWidget(view, 1);
}
