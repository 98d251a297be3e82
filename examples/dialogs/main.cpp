#include <utilsDll/ApplicationStyle.h>
#include <utilsDll/BaseDialog.h>
#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/MessageBox.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

/// A dialog in the product's look; its frame comes with the base class.
class ExportDialog : public CBaseDialog
{
    Q_OBJECT

public:
    explicit ExportDialog(QWidget* parent = nullptr)
        : CBaseDialog(parent)
    {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(QStringLiteral("The photograph has been exported."), this));
        auto* const button = new QPushButton(QStringLiteral("Close"), this);
        layout->addWidget(button);
        connect(button, SIGNAL(clicked()), SLOT(accept()));
    }
};

/// Stands in for the user, so that the example ends by itself.
class User : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void closeDialog()
    {
        if (QWidget* const dialog = QApplication::activeModalWidget()) {
            dialog->close();
        }
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    loadFonts();
    loadAppLogoIcon();
    QApplication::setStyle(new CustomTolvanAppStyle);
    setPredefinedAppStyleSheet(QString(), &application);

    User user;
    QTimer timer;
    QObject::connect(&timer, SIGNAL(timeout()), &user, SLOT(closeDialog()));
    timer.start(300);

    ExportDialog().exec();
    CMessageBox::information(nullptr, QStringLiteral("The preset \"Skyline\" was saved."), 200);
    return 0;
}

#include "main.moc"
