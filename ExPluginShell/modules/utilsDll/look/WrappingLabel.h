#pragma once

#include <QLabel>

class QBoxLayout;
class QFocusFrame;
class QTextDocument;

namespace TOLVAN_NAMESPACE
{

/// A label for messages. It wraps words that are longer than a line anywhere, for instance in a path, and its
/// text can be selected and copied with the mouse and the keyboard.
class WrappingLabel : public QLabel
{
    Q_OBJECT

public:
    explicit WrappingLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

    /// Returns the text without markup.
    QString plainText() const;

    /// Puts the label into a scroll area, which takes its place in \a layout.
    void makeScrollable(QBoxLayout& layout);

public Q_SLOTS:
    /// Copies the selected text, or the whole text if nothing is selected, to the clipboard.
    void copy() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QTextDocument* wrappedDocument() const;

    struct KnownHeight {
        int width = -1;
        int height = 0;
        QFont font;
        QString text;
    };

    mutable KnownHeight m_known;
    QFocusFrame* m_focusFrame = nullptr;
};

} // namespace TOLVAN_NAMESPACE
