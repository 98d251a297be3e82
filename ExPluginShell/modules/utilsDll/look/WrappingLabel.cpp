#include "look/WrappingLabel.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QFocusFrame>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <QStyle>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextOption>

namespace TOLVAN_NAMESPACE
{

WrappingLabel::WrappingLabel(QWidget* parent)
    : QLabel(parent)
{
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::DefaultContextMenu);
}

/// QLabel lays out selectable text with a document of its own. Each new layout sets the option to wrap between
/// words only, so the option is set again before the document is used.
QTextDocument* WrappingLabel::wrappedDocument() const
{
    QLabel::heightForWidth(width()); // makes the layout that is pending
    auto* const document = findChild<QTextDocument*>();
    if (document && document->defaultTextOption().wrapMode() != QTextOption::WrapAtWordBoundaryOrAnywhere) {
        QTextOption option = document->defaultTextOption();
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        document->setDefaultTextOption(option);
    }
    return document;
}

/// Layouts ask for the same width again and again.
int WrappingLabel::heightForWidth(int width) const
{
    if (m_known.width != width || m_known.font != font() || m_known.text != text()) {
        wrappedDocument();
        m_known = {width, QLabel::heightForWidth(width), font(), text()};
    }
    return m_known.height;
}

/// A width that any box has; the height is that of the text in this width.
QSize WrappingLabel::sizeHint() const
{
    constexpr int usualWidth = 300;
    const int width = qMin(usualWidth, QLabel::sizeHint().width());
    return {width, heightForWidth(width)};
}

QSize WrappingLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

QString WrappingLabel::plainText() const
{
    const auto* const document = wrappedDocument();
    return document ? document->toPlainText() : text();
}

void WrappingLabel::copy() const
{
    QGuiApplication::clipboard()->setText(hasSelectedText() ? selectedText() : plainText());
}

void WrappingLabel::makeScrollable(QBoxLayout& layout)
{
    auto* const area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // the label has it
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    delete layout.replaceWidget(this, area);
    constexpr int gap = 12; // the cut line must not touch what stands below
    layout.setContentsMargins(0, 0, 0, gap);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    area->setWidget(this);
    setAutoFillBackground(false); // QScrollArea sets it
    area->viewport()->setAutoFillBackground(false);
}

void WrappingLabel::paintEvent(QPaintEvent* event)
{
    wrappedDocument();
    QLabel::paintEvent(event);
}

/// Without Shift the arrow keys scroll; QLabel would use them to move an invisible cursor.
void WrappingLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::MoveToNextLine) ||
               event->matches(QKeySequence::MoveToPreviousLine)) {
        event->ignore();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void WrappingLabel::focusInEvent(QFocusEvent* event)
{
    if (!m_focusFrame) {
        m_focusFrame = new QFocusFrame(this);
        setSelection(0, 0); // the invisible cursor is at the end of the text
    }
    // A scroll area clips its content, so the frame lies in the window and around the area.
    QWidget* const area = parentWidget() ? parentWidget()->parentWidget() : nullptr;
    QWidget* const framed = qobject_cast<QScrollArea*>(area) ? area : this;
    m_focusFrame->setWidget(framed);
    m_focusFrame->setParent(window());
    const int outside = style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    m_focusFrame->setGeometry(QRect(framed->mapTo(window(), QPoint()), framed->size())
                                  .adjusted(-outside, -outside, outside, outside));
    m_focusFrame->show();
    m_focusFrame->raise();
    QLabel::focusInEvent(event);
}

void WrappingLabel::focusOutEvent(QFocusEvent* event)
{
    m_focusFrame->setWidget(nullptr);
    QLabel::focusOutEvent(event);
}

} // namespace TOLVAN_NAMESPACE
