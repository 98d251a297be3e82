#include "StylePage.h"

#include "Pages.h"

#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QVBoxLayout>

StylePage::StylePage(QWidget* parent)
    : PageWidget(parent)
{
    auto* const columns = new QHBoxLayout;
    columns->setSpacing(16);
    columns->addLayout(makeButtonColumn());
    columns->addLayout(makeFieldColumn());
    columns->addLayout(makeViewColumn(), 1);
    column()->addLayout(columns);
    column()->addLayout(makeWindowRow());
    column()->addStretch();
}

QIcon StylePage::toolIcon(const char* name)
{
    const QString path = QStringLiteral(":/icons/toolbar/%1%2.svg").arg(QLatin1String(name));
    QIcon icon(path.arg(QString()));
    const QString disabled = path.arg(QStringLiteral("_disabled"));
    if (QFile::exists(disabled)) {
        icon.addFile(disabled, QSize(), QIcon::Disabled);
    }
    return icon;
}

QWidget* makeStylePage(QWidget* parent)
{
    return new StylePage(parent);
}
