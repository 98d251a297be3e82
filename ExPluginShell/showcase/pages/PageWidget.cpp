#include "PageWidget.h"

PageWidget::PageWidget(QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(12);
}

void PageWidget::translate(const char* source, const std::function<void(const QString&)>& apply)
{
    m_texts.push_back([=] { apply(QCoreApplication::translate(metaObject()->className(), source)); });
    m_texts.back()();
}

void PageWidget::say(QLabel* label, std::function<QString()> text)
{
    label->setText(text());
    m_said[label] = std::move(text);
}

QLabel* PageWidget::makeAnswer()
{
    m_answer = new QLabel(this);
    m_answer->setObjectName(QStringLiteral("answer"));
    m_answer->setWordWrap(true);
    m_answer->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return m_answer;
}

QLabel* PageWidget::addTitle(const char* source)
{
    auto* const label = addText(source);
    label->setObjectName(QStringLiteral("pageSubtitle"));
    label->setContentsMargins(0, 10, 0, 0);
    return label;
}

QLabel* PageWidget::addText(const char* source)
{
    auto* const label = withText(new QLabel(this), source);
    label->setWordWrap(true);
    m_column->addWidget(label);
    return label;
}

QPushButton* PageWidget::makeButton(const char* source, std::function<void()> action)
{
    auto* const button = withText(new QPushButton(this), source);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, std::move(action));
    return button;
}

QFormLayout* PageWidget::addForm()
{
    auto* const form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    m_column->addLayout(form);
    return form;
}

QHBoxLayout* PageWidget::makeRow(std::initializer_list<QWidget*> widgets, int wide)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    for (QWidget* const widget : widgets) {
        row->addWidget(widget, row->count() == wide);
    }
    if (wide < 0) {
        row->addStretch();
    }
    return row;
}

void PageWidget::addRow(QFormLayout* form, const char* source, QWidget* field)
{
    constexpr int labelWidth = 230; // the same in all forms of a page
    auto* const label = withText(new QLabel(this), source);
    label->setMinimumWidth(labelWidth);
    label->setBuddy(field);
    form->addRow(label, field);
}

QLabel* PageWidget::addFact(QFormLayout* form, const char* source, std::function<QString()> value)
{
    auto* const label = new QLabel(this);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    say(label, std::move(value));
    addRow(form, source, label);
    return label;
}

void PageWidget::prepareTable(QTableView* table)
{
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void PageWidget::refill(QComboBox* box, const QStringList& texts)
{
    const int index = qMax(0, box->currentIndex());
    box->clear();
    box->addItems(texts);
    box->setCurrentIndex(index);
}

void PageWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (const auto& renew : m_texts) {
            renew();
        }
        for (const auto& [label, text] : m_said) {
            label->setText(text());
        }
        languageChanged();
    }
    QWidget::changeEvent(event);
}
