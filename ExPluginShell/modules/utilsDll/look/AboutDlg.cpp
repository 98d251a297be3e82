#include "AboutDlg.h"

#include "BuildIdentification.h"
#include "controls/IconViewer.h"

#include <QAccessible>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CBaseDialog;
using TOLVAN_NAMESPACE::CIconViewer;

namespace
{

constexpr int dialogWidth = 560;
constexpr int bandHeight = 112;
constexpr QSize logoSize(96, 96);
constexpr QSize websiteSize(16, 16);
constexpr QSize smallestButton(80, 36);

struct Library {
    const char* name;
    const char* licence;
};

constexpr Library libraries[] = {
    {"Qt 5.15", "LGPL 3"},    {"QuaZip", "LGPL 2.1"},      {"zlib", "zlib"},         {"spdlog, fmt", "MIT"},
    {"Roboto", "Apache 2.0"}, {"Open Sans", "Apache 2.0"}, {"Quicksand", "OFL 1.1"}, {"Cantarell", "OFL 1.1"},
};

QString libraryTable()
{
    QString rows;
    for (const Library& library : libraries) {
        rows += QStringLiteral(
                    "<tr><td style=\"padding-right: 32px; padding-bottom: 4px\">%1</td><td>%2</td></tr>")
                    .arg(QLatin1String(library.name), QLatin1String(library.licence));
    }
    return QStringLiteral("<table cellspacing=\"0\" cellpadding=\"0\" style=\"margin-top: 10px\">%1</table>")
        .arg(rows);
}

/// Style sheets can't set the colour of links, so it is given here: the bright accent of the palette.
QString link(const char* address, const QString& text)
{
    return QStringLiteral("<a style=\"color: #7FD9E8; text-decoration: none\" href=\"%1\">%2</a>")
        .arg(QLatin1String(address), text);
}

QString licenceLinks()
{
    const QStringList links = {
        link("https://www.gnu.org/licenses/lgpl-3.0.html", QStringLiteral("GNU&nbsp;LGPL&nbsp;3")),
        link("https://www.gnu.org/licenses/old-licenses/lgpl-2.1.html",
             QStringLiteral("GNU&nbsp;LGPL&nbsp;2.1")),
        link("https://www.apache.org/licenses/LICENSE-2.0", QStringLiteral("Apache&nbsp;2.0")),
        link("https://openfontlicense.org/", QStringLiteral("OFL&nbsp;1.1")),
        link("https://opensource.org/license/mit", QStringLiteral("MIT")),
        link("https://zlib.net/zlib_license.html", QStringLiteral("zlib")),
        link("https://www.qt.io/", QStringLiteral("Qt")),
    };
    return links.join(QStringLiteral("&nbsp;· "));
}

/// Links that the keyboard reaches one by one. Beside them the mouse drags the dialog.
class LinkLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    /// Marks a link at once; QLabel would do it at the next Tab only.
    void focusInEvent(QFocusEvent* event) override
    {
        QLabel::focusInEvent(event);
        const bool forwards = event->reason() == Qt::TabFocusReason;
        if (forwards || event->reason() == Qt::BacktabFocusReason) {
            focusNextPrevChild(forwards);
        }
    }
    void focusOutEvent(QFocusEvent* event) override
    {
        QLabel::focusOutEvent(event);
        setAccessibleName(QString()); // the whole text again
    }
    /// Gives the marked link to assistive technology, which does not see the mark.
    bool focusNextPrevChild(bool next) override
    {
        const bool stays = QLabel::focusNextPrevChild(next);
        if (stays && hasSelectedText()) {
            setAccessibleName(selectedText());
            QAccessibleEvent event(this, QAccessible::Focus);
            QAccessible::updateAccessibility(&event);
        }
        return stays;
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        QLabel::mousePressEvent(event);
        event->setAccepted(isOverLink());
    }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        QLabel::mouseMoveEvent(event);
        event->setAccepted(isOverLink());
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QLabel::mouseReleaseEvent(event);
        event->setAccepted(isOverLink());
    }

private:
    bool isOverLink() const { return cursor().shape() == Qt::PointingHandCursor; }
};

/// The drawn backdrop, as wide as the dialog and cut to the part around its horizon.
class Band : public QWidget
{
public:
    Band() { setFixedSize(dialogWidth - 2, bandHeight); } // beside the frame

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr int wholeHeight = dialogWidth / 3;
        constexpr int hiddenAbove = 30;
        QPainter painter(this);
        m_picture.paint(&painter, QRect(0, -hiddenAbove, dialogWidth, wholeHeight));
    }

private:
    const QIcon m_picture{QString::fromLatin1(":/icons/aboutDialog_vantora/about_backdrop.svg")};
};

/// The texts of an About dialog, from top to bottom.
struct Content {
    bool isFamily;
    QString name;
    QString version;
    QString copyright;
    QString body;
    QString links;
};

void addLabel(QVBoxLayout* column, const QString& name, const QString& text)
{
    auto* const label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::NoTextInteraction); // the mouse drags the dialog
    column->addWidget(label);
}

QLayout* makeLinks(const QString& text)
{
    auto* const icon = new CIconViewer;
    icon->setObjectName(QStringLiteral("websiteIcon"));
    icon->setFixedSize(websiteSize);
    icon->setIcon(QIcon(QString::fromLatin1(":/icons/aboutDialog_vantora/about_website.svg")));
    icon->setAccessibleName(CAboutDlg::tr("Licences on the web"));
    auto* const links = new LinkLabel(text);
    links->setObjectName(QStringLiteral("label_5"));
    links->setWordWrap(true);
    links->setOpenExternalLinks(true);
    links->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(links, 1);
    return row;
}

QVBoxLayout* makeTexts(const Content& content)
{
    constexpr int paragraphGap = 12;
    auto* const column = new QVBoxLayout;
    column->setSpacing(6);
    addLabel(column, QStringLiteral("label_1"), content.name);
    addLabel(column, QStringLiteral("label_2"), content.version);
    addLabel(column, QStringLiteral("label_3"), content.copyright);
    column->addSpacing(paragraphGap);
    addLabel(column, QStringLiteral("label_4"), content.body);
    column->addSpacing(paragraphGap);
    column->addLayout(makeLinks(content.links));
    column->addStretch();
    return column;
}

/// The family's picture: the product's tile in front of those of other members.
QIcon familyIcon(const QIcon& logo)
{
    constexpr int edge = 288; // three times the size that is shown
    constexpr int tile = edge * 3 / 4;
    constexpr int step = edge / 8;
    constexpr double radius = tile / 6.0;
    QPixmap picture(edge, edge);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x6B, 0x70, 0x78), 3));
    for (const int shade : {0x2C, 0x39}) {
        const int place = shade == 0x2C ? 2 * step : step;
        painter.setBrush(QColor(shade, shade + 1, shade + 6));
        painter.drawRoundedRect(QRectF(place - 2, edge - tile - place + 2, tile, tile), radius, radius);
    }
    logo.paint(&painter, QRect(-6, edge - tile - 6, tile + 12, tile + 12)); // its tile has a margin
    return QIcon(picture);
}

QWidget* makeLogo(const Content& content)
{
    auto* const logo = new CIconViewer;
    logo->setObjectName(QStringLiteral("iconWidget"));
    logo->setFixedSize(logoSize);
    logo->setAccessibleName(content.name);
    const QIcon icon(QString::fromLatin1(":/icons/aboutDialog_vantora/about_logo.svg"));
    logo->setIcon(content.isFamily ? familyIcon(icon) : icon);
    return logo;
}

QHBoxLayout* makeButtons(QDialog& dialog, const QString& closeText)
{
    auto* const close = new QPushButton(closeText);
    close->setObjectName(QStringLiteral("closeButton"));
    close->setMinimumSize(smallestButton);
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(close);
    QObject::connect(close, SIGNAL(clicked()), &dialog, SLOT(accept()));
    return row;
}

void build(QDialog& dialog, const QString& objectName, const Content& content, const QString& closeText)
{
    dialog.setObjectName(objectName);
    auto* const frame = new QHBoxLayout(&dialog);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->setSizeConstraint(QLayout::SetFixedSize); // wrapped texts are not cut, also on small screens
    auto* const background = new QWidget;
    background->setObjectName(QStringLiteral("wBackgroundWidget"));
    background->setFixedWidth(dialogWidth);
    frame->addWidget(background);
    auto* const column = new QVBoxLayout(background);
    column->setContentsMargins(1, 1, 1, 0); // the frame
    column->setSpacing(0);
    column->addWidget(new Band);
    auto* const grid = new QGridLayout;
    grid->setContentsMargins(27, 20, 20, 20);
    grid->setHorizontalSpacing(28);
    grid->setVerticalSpacing(16);
    grid->addWidget(makeLogo(content), 0, 0, Qt::AlignTop);
    grid->addLayout(makeTexts(content), 0, 1);
    grid->addLayout(makeButtons(dialog, closeText), 1, 0, 1, -1);
    column->addLayout(grid);
    auto* const close = dialog.findChild<QPushButton*>(QStringLiteral("closeButton"));
    close->setDefault(true);
    close->setFocus();
}

} // namespace

CAboutDlg::CAboutDlg(QWidget* parent)
    : CBaseDialog(parent)
{
    setWindowTitle(tr("About Trelio Frame"));
    Content content;
    content.isFamily = false;
    content.name = QStringLiteral("Trelio Frame");
    content.version = tr("Version %1").arg(QLatin1String(BuildIdentification::productVersion));
    content.copyright = tr("© Tolvan. All rights reserved.");
    content.body = QStringLiteral("<p>%1</p><p>%2</p>%3")
                       .arg(tr("Perspective, horizon and lens corrections for your photos."),
                            tr("Made with:"), libraryTable());
    content.links = licenceLinks();
    build(*this, QStringLiteral("CAboutDlg"), content, tr("Close"));
}

CAboutDlg::~CAboutDlg() = default;

CAboutOstraDlg::CAboutOstraDlg(QWidget* parent)
    : CBaseDialog(parent)
{
    setWindowTitle(tr("About the Ostra Collection"));
    Content content;
    content.isFamily = true;
    content.name = QStringLiteral("Ostra Collection");
    content.version = tr("with Trelio Frame %1").arg(QLatin1String(BuildIdentification::productVersion));
    content.copyright = tr("© Tolvan. All rights reserved.");
    content.body = tr("A family of plug-ins for photographers. Its members share their language and their "
                      "preferences, so that what you set in one holds in all.");
    content.links = licenceLinks();
    build(*this, QStringLiteral("CAboutOstraDlg"), content, tr("Close"));
}

CAboutOstraDlg::~CAboutOstraDlg() = default;
