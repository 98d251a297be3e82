#include "PageWidget.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

PageWidget::PageWidget(QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(12);
}

void PageWidget::translate(const char* source, std::function<void(const QString&)> apply)
{
    m_texts.push_back({source, std::move(apply)});
    this->apply(m_texts.back());
}

void PageWidget::say(QLabel* label, std::function<QString()> text)
{
    label->setText(text());
    m_said[label] = std::move(text);
}

void PageWidget::apply(const Text& text) const
{
    text.apply(QCoreApplication::translate(metaObject()->className(), text.source));
}

void PageWidget::addAnswer()
{
    m_answer = new QLabel(this);
    m_answer->setObjectName(QStringLiteral("answer"));
    m_answer->setWordWrap(true);
    m_answer->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_column->addWidget(m_answer);
}

void PageWidget::answer(std::function<QString()> text)
{
    say(m_answer, std::move(text));
}

QLabel* PageWidget::addTitle(const char* source)
{
    auto* label = addText(source);
    label->setObjectName(QStringLiteral("pageSubtitle"));
    label->setContentsMargins(0, 10, 0, 0);
    return label;
}

QLabel* PageWidget::addText(const char* source)
{
    auto* label = new QLabel(this);
    label->setWordWrap(true);
    translate(source, [label](const QString& text) { label->setText(text); });
    m_column->addWidget(label);
    return label;
}

QPushButton* PageWidget::makeButton(const char* source, std::function<void()> action)
{
    auto* button = new QPushButton(this);
    button->setAutoDefault(false);
    translate(source, [button](const QString& text) { button->setText(text); });
    connect(button, &QPushButton::clicked, this, std::move(action));
    return button;
}

QFormLayout* PageWidget::addForm()
{
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    m_column->addLayout(form);
    return form;
}

void PageWidget::addButtons(std::initializer_list<QPushButton*> buttons)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (QPushButton* const button : buttons) {
        row->addWidget(button);
    }
    row->addStretch();
    m_column->addLayout(row);
}

void PageWidget::addRow(QFormLayout* form, const char* source, QWidget* field)
{
    constexpr int labelWidth = 230; // the same in all forms of a page
    auto* label = new QLabel(this);
    label->setMinimumWidth(labelWidth);
    label->setBuddy(field);
    translate(source, [label](const QString& text) { label->setText(text); });
    form->addRow(label, field);
}

void PageWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (const Text& text : m_texts) {
            apply(text);
        }
        for (const auto& [label, text] : m_said) {
            label->setText(text());
        }
        languageChanged();
    }
    QWidget::changeEvent(event);
}
