#include "AboutDlg.h"

#include "BuildIdentification.h"
#include "controls/IconViewer.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CBaseDialog;
using TOLVAN_NAMESPACE::CIconViewer;

namespace
{

constexpr int dialogWidth = 560;
constexpr QSize logoSize(96, 96);
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
    const QString separator = QStringLiteral(" &nbsp;·&nbsp; ");
    return link("https://www.gnu.org/licenses/lgpl-3.0.html", QStringLiteral("GNU LGPL 3")) + separator +
           link("https://www.apache.org/licenses/LICENSE-2.0", QStringLiteral("Apache License 2.0")) +
           separator + link("https://www.qt.io/", QStringLiteral("Qt"));
}

/// The texts of an About dialog, from top to bottom.
struct Content {
    QString name;
    QString version;
    QString copyright;
    QString body;
    QString links;
};

QLabel* addLabel(QVBoxLayout* column, const QString& name, const QString& text)
{
    auto* const label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    column->addWidget(label);
    return label;
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
    auto* const links = addLabel(column, QStringLiteral("label_5"), content.links);
    links->setOpenExternalLinks(true);
    links->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    column->addStretch();
    return column;
}

QWidget* makeLogo()
{
    auto* const logo = new CIconViewer;
    logo->setObjectName(QStringLiteral("iconWidget"));
    logo->setFixedSize(logoSize);
    QIcon icon;
    for (const int size : {96, 128, 256}) {
        icon.addFile(QStringLiteral(":/icons/app_icon_trelioapp/logo_%1.png").arg(size));
    }
    logo->setIcon(icon);
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
    auto* const grid = new QGridLayout(background);
    grid->setContentsMargins(28, 28, 21, 20);
    grid->setHorizontalSpacing(28);
    grid->setVerticalSpacing(16);
    grid->addWidget(makeLogo(), 0, 0, Qt::AlignTop);
    grid->addLayout(makeTexts(content), 0, 1);
    grid->addLayout(makeButtons(dialog, closeText), 1, 0, 1, -1);
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
    content.name = QStringLiteral("Trelio Frame");
    content.version = tr("Version %1").arg(QLatin1String(BuildIdentification::productVersion));
    content.copyright = tr("© Tolvan. All rights reserved.");
    content.body = QStringLiteral("%1%2").arg(
        tr("Perspective, horizon and lens corrections for your photos. Made with:"), libraryTable());
    content.links = licenceLinks();
    build(*this, QStringLiteral("CAboutDlg"), content, tr("Close"));
}

CAboutDlg::~CAboutDlg() = default;

CAboutOstraDlg::CAboutOstraDlg(QWidget* parent)
    : CBaseDialog(parent)
{
    setWindowTitle(tr("About the Ostra Collection"));
    Content content;
    content.name = QStringLiteral("Ostra Collection");
    content.version = tr("with Trelio Frame %1").arg(QLatin1String(BuildIdentification::productVersion));
    content.copyright = tr("© Tolvan. All rights reserved.");
    content.body = tr("A family of plug-ins for photographers. Its members share their language and their "
                      "preferences, so that what you set in one holds in all.");
    content.links = licenceLinks();
    build(*this, QStringLiteral("CAboutOstraDlg"), content, tr("Close"));
}

CAboutOstraDlg::~CAboutOstraDlg() = default;
