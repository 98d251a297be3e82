#include "Screenshots.h"

#include "MessageBoxes.h"
#include "pages/Pages.h"
#include "pages/PageWidget.h"
#include "ShowcaseWindow.h"
#include "StoredLanguage.h"

#include <utilsDll/AboutDlg.h>
#include <utilsDll/LanguageManager.h>

#include <QtWidgets>

#include <functional>

namespace
{

constexpr QSize windowSize(1280, 800);
constexpr const char* scaleVariable = "QT_SCALE_FACTOR";

/// Suppresses the offscreen platform's warning about size hints.
void writeMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.contains(QLatin1String("propagateSizeHints"))) {
        QTextStream(stderr) << text << '\n';
    }
}

bool save(const QPixmap& picture, const QDir& folder, const QString& name)
{
    return folder.mkpath(QStringLiteral(".")) && picture.save(folder.filePath(name + QStringLiteral(".png")));
}

/// Whether the page in view is no wider than the window; one that scrolls sideways is a fault.
bool fits(const ShowcaseWindow& window, const Page& page)
{
    const QWidget* const shown = window.currentPage();
    const bool fits = shown->width() <= shown->parentWidget()->width();
    QTextStream(stderr) << (fits ? QString()
                                 : QStringLiteral("%1 is too wide\n").arg(QLatin1String(page.name)));
    return fits;
}

bool writePages(const QDir& folder)
{
    ShowcaseWindow window;
    window.resize(windowSize);
    window.show();
    bool ok = true;
    int number = 0;
    for (const Page& page : pages()) {
        window.showPage(number);
        QApplication::processEvents();
        if (auto* const shown = qobject_cast<PageWidget*>(window.currentPage())) {
            shown->prepareForPicture();
        }
        QApplication::processEvents();
        const QString name =
            QStringLiteral("%1-%2").arg(++number, 2, 10, QLatin1Char('0')).arg(QLatin1String(page.name));
        ok = save(window.grab(), folder, name) && fits(window, page) && ok;
    }
    return ok;
}

/// Runs \a open, which shows a modal dialog, and saves the dialog as it stands.
bool saveDialog(const QDir& folder, const QString& name, const std::function<void()>& open)
{
    bool ok = false;
    QTimer::singleShot(0, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog) {
            QApplication::setActiveWindow(dialog); // no window manager does it here
            QApplication::processEvents();
            ok = save(dialog->grab(), folder, name);
            dialog->close();
        }
    });
    open();
    return ok;
}

bool writeDialogs(const QDir& folder)
{
    bool ok = true;
    for (const MessageBoxCall& call : messageBoxCalls()) {
        const QString text = QCoreApplication::translate("MessageBoxes", call.sample);
        constexpr int height = 165;
        ok = saveDialog(folder, QStringLiteral("box-") + QLatin1String(call.name),
                        [&] { call.show(nullptr, text, height); }) &&
             ok;
    }
    ok = saveDialog(folder, QStringLiteral("about-product"), [] { CAboutDlg().exec(); }) && ok;
    return saveDialog(folder, QStringLiteral("about-family"), [] { CAboutOstraDlg().exec(); }) && ok;
}

} // namespace

bool writeScreenshots(const QString& folder)
{
    using TOLVAN_NAMESPACE::CLanguageManager;
    qInstallMessageHandler(&writeMessage);
    const StoredLanguage storedLanguage;
    auto* const languages = CLanguageManager::instance();
    const QDir root(folder);
    bool ok = languages->langCount() > 0;
    for (int index = 0; index < languages->langCount(); ++index) {
        languages->changeLanguage(index);
        QApplication::processEvents();
        const QString language = languages->currentLanguageAbbrv();
        ok = writePages(QDir(root.filePath(language))) && ok;
        ok = writeDialogs(QDir(root.filePath(language))) && ok;
    }
    if (!qEnvironmentVariableIsSet(scaleVariable)) { // once more at double size, in a process of its own
        qputenv(scaleVariable, "2");
        const QStringList arguments{QStringLiteral("--screenshots"), root.filePath(QStringLiteral("2x"))};
        ok = QProcess::execute(QCoreApplication::applicationFilePath(), arguments) == 0 && ok;
        qunsetenv(scaleVariable);
    }
    QTextStream(stdout) << "Pictures of the showcase: " << QDir::toNativeSeparators(root.absolutePath())
                        << '\n';
    return ok;
}
