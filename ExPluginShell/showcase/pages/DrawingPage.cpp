#include "DrawingPage.h"

#include "GuideCanvas.h"
#include "Pages.h"

#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/controls/VerticalLabel.h>
#include <utilsDll/GuiUtils.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

QWidget* makeDrawingPage(QWidget* parent)
{
    return new DrawingPage(parent);
}

DrawingPage::DrawingPage(QWidget* parent)
    : PageWidget(parent)
{
    m_state = new QLabel(this);
    column()->addLayout(makePicture(), 1);
    column()->addLayout(makeTools());
    connect(m_canvas, &GuideCanvas::linesChanged, this, [this](int count, double angle) {
        m_lines = count;
        m_angle = angle;
        languageChanged();
    });
    languageChanged();
}

QHBoxLayout* DrawingPage::makePicture()
{
    constexpr int captionWidth = 22;
    auto* const caption = new CVerticalLabel(this);
    QFont font = caption->font();
    font.setPixelSize(12); // the caption's baseline follows the pixel size
    caption->setFont(font);
    caption->setFixedWidth(captionWidth);
    caption->setTopMargin(2);
    const char* const hint = QT_TR_NOOP("Drag across the picture to draw a line");
    translate(hint, [caption](const QString& text) { caption->setText(text); });
    m_canvas = new GuideCanvas(this);
    const char* const explanation = QT_TR_NOOP("Picture with guide lines");
    translate(explanation, [this](const QString& text) { m_canvas->setAccessibleName(text); });
    const char* const keys = QT_TR_NOOP(
        "Insert adds a line and Delete removes it, Page Up and Page Down choose one, the arrow keys "
        "move its end, with Shift its start.");
    translate(keys, [this](const QString& text) {
        m_canvas->setAccessibleDescription(text);
        m_canvas->setToolTip(QStringLiteral("<qt>%1</qt>").arg(text)); // wraps
    });
    // The text starts at the label's width: the margin takes it down to the foot of the picture.
    connect(m_canvas, &GuideCanvas::sizeChanged, this, [caption](const QSize& size) {
        caption->setLeftMargin(caption->width() - size.height());
        caption->update();
    });
    auto* const row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(caption);
    row->addWidget(m_canvas, 1);
    return row;
}

QHBoxLayout* DrawingPage::makeTools()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(12);
    auto* const stretch = new QCheckBox(this);
    const char* const description = QT_TR_NOOP("Stretch the pattern");
    translate(description, [stretch](const QString& text) { stretch->setText(text); });
    connect(stretch, &QCheckBox::toggled, m_canvas, &GuideCanvas::setStretched);
    row->addWidget(stretch);
    row->addWidget(makeButton(QT_TR_NOOP("Remove all lines"), [this] { m_canvas->clear(); }));
    row->addWidget(m_state);
    row->addStretch();
    for (int type = ArrowDiagonalLeft; type <= RotationBottom; ++type) {
        auto* const viewer = new TOLVAN_NAMESPACE::CIconViewer(this);
        viewer->setFixedSize(23, 24);
        viewer->setIcon(QIcon(toolCursorPixmap(static_cast<ToolCursorType>(type))));
        row->addWidget(viewer);
    }
    return row;
}

void DrawingPage::languageChanged()
{
    const QString angle = QLocale().toString(m_angle, 'f', 2);
    m_state->setText(tr("Lines: %1").arg(m_lines) + QStringLiteral("  ·  ") + angle + QStringLiteral("°"));
}
