// A contact sheet of every dialog of the library: dialog x text x language x state, at the scale of
// QT_SCALE_FACTOR. Each picture is checked by rules; with a folder as argument the pictures are kept there.

#include "BoxKinds.h"
#include "HighDpi.h"
#include "ModalDialog.h"
#include "Pixels.h"
#include "TestMain.h"

#include <utilsDll/AboutDlg.h>
#include <utilsDll/controls/IconViewer.h>
#include <utilsDll/customtolvanappstyle.h>
#include <utilsDll/LanguageManager.h>
#include <utilsDll/NativeDialogs.h>
#include <utilsDll/ProgressBox.h>
#include <utilsDll/SharedUtils.h>

#include <QtWidgets>

#include <cstdio>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr double textContrast = 4.5;
constexpr double shapeContrast = 3.0;
const std::pair<const char*, QString> texts[] = {
    {"short", QStringLiteral("?")},
    {"long",
     QStringLiteral("The picture was changed. What do you want to do with the changes? ").repeated(6)},
    {"path", QStringLiteral("C:\\Users\\Anna\\Pictures\\Hochzeit_Anna_und_Paul_im_Standesamt\\"
                            "Bilder_der_zweiten_Kamera\\IMG_20240617_143512.CR3")},
    {"right to left", QString::fromUtf8("هل تريد حفظ التغييرات؟ C:\\Users\\Anna\\IMG_20240617_143512.CR3")},
};

/// One column of pictures for each dialog and language.
class Sheet
{
public:
    explicit Sheet(const QString& folder)
        : m_folder(folder)
    {
    }

    void begin(const QString& name) { m_name = name; }
    int finish() const
    {
        std::printf("%d pictures, %d faults\n", m_pictures, m_faults);
        return m_faults == 0 && m_pictures > 0 ? 0 : 1;
    }

    void verify(bool ok, const QWidget& widget, const char* rule)
    {
        if (!ok) {
            ++m_faults;
            std::fprintf(stderr, "%s: %s \"%s\": %s\n", qPrintable(m_name), widget.metaObject()->className(),
                         qPrintable(widget.objectName()), rule);
        }
    }

    void check(QWidget& dialog)
    {
        QApplication::setActiveWindow(&dialog);
        QTest::qWait(1); // scroll bars appear with an event
        m_dialog = &dialog;
        m_image = dialog.grab().toImage();
        keep(m_image, QString());
        for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->objectName().indexOf(QLatin1String("qt_")) != 0) {
                checkPlace(*widget);
                checkName(*widget);
                checkColours(*widget);
                checkSharpness(*widget);
            }
        }
        checkHover();
        checkFocus();
    }

private:
    void keep(const QImage& image, const QString& state)
    {
        ++m_pictures;
        if (!m_folder.isEmpty()) {
            const QString name = m_name + state + QStringLiteral(".png");
            image.save(m_folder + QLatin1Char('/') +
                       QString(name).replace(QLatin1Char(' '), QLatin1Char('_')));
        }
    }

    QRect placeOf(const QWidget& widget) const { return {widget.mapTo(m_dialog, QPoint()), widget.size()}; }

    static bool scrolls(const QWidget& widget)
    {
        const QWidget* above = widget.parentWidget();
        while (above && !qobject_cast<const QAbstractScrollArea*>(above)) {
            above = above->parentWidget();
        }
        return above;
    }

    static bool isCategory(const QWidget& widget)
    {
        return widget.parentWidget()->objectName() == QLatin1String("settingsCategories");
    }

    void checkPlace(const QWidget& widget)
    {
        if (scrolls(widget) || qobject_cast<const QFocusFrame*>(&widget)) {
            return;
        }
        verify(m_dialog->rect().contains(placeOf(widget)), widget, "is cut by the dialog");
        if (const auto* const label = qobject_cast<const QLabel*>(&widget);
            label && !label->text().isEmpty()) {
            const bool wraps = label->hasHeightForWidth();
            verify(wraps ? label->height() >= label->heightForWidth(label->width())
                         : label->sizeHint().width() <= label->width(),
                   widget, "is cut");
        }
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
            verify(widget.width() >= widget.sizeHint().width(), widget, "is too narrow");
            if (!widget.inherits("QToolButton")) { // shows its drawing alone
                const int drawing = isCategory(widget) ? button->iconSize().width() + 12 : 0; // of the sheet
                verify(widget.width() >= widget.fontMetrics().horizontalAdvance(button->text()) + drawing,
                       widget, "cuts its text");
            }
            verify(widget.height() >= widget.fontMetrics().height(), widget, "is too low");
        }
        if (qobject_cast<const CIconViewer*>(&widget)) {
            const QSize wanted = widget.sizeHint().expandedTo({16, 16});
            verify(widget.width() >= wanted.width() && widget.height() >= wanted.height(), widget, "shrank");
        }
    }

    void checkName(QWidget& widget)
    {
        const auto* const interface = QAccessible::queryAccessibleInterface(&widget);
        const bool needsOne = (widget.focusPolicy() & Qt::TabFocus) || qobject_cast<CIconViewer*>(&widget);
        if (needsOne && interface && !qobject_cast<QAbstractItemView*>(&widget)) {
            verify(!interface->text(QAccessible::Name).isEmpty(), widget, "has no name");
        }
    }

    QPoint placeInPicture(const QPoint& place) const { return place * m_image.devicePixelRatio(); }

    QImage part(const QRect& place) const
    {
        return m_image.copy(
            QRect(placeInPicture(place.topLeft()), place.size() * m_image.devicePixelRatio()));
    }

    void checkColours(const QWidget& widget)
    {
        const auto* const button = qobject_cast<const QPushButton*>(&widget);
        const auto* const label = qobject_cast<const QLabel*>(&widget);
        const QRect place = placeOf(widget) & m_dialog->rect();
        if ((!button && !label) || place.isEmpty() || (label && label->text().trimmed().isEmpty())) {
            return;
        }
        const QRect inner = button ? place.adjusted(4, 4, -4, -4) : place;
        const QRgb ground = Pixels::mostFrequent(part(inner));
        const bool enabled = widget.isEnabled();
        verify(Pixels::largestContrast(part(inner), ground) >= (enabled ? textContrast : shapeContrast),
               widget, "text is too faint");
        if (button && enabled && !isCategory(widget)) {
            const QRgb border =
                m_image.pixel(placeInPicture({place.left() + place.width() / 2, place.top()}));
            const QRgb around = m_image.pixel(placeInPicture(place.topLeft() + QPoint(3, -3)));
            verify(contrast(border, around) >= shapeContrast, widget, "border is too faint");
        }
    }

    /// Returns where the widget shows a picture.
    QRect pictureOf(const QWidget& widget) const
    {
        const QRect place = placeOf(widget) & m_dialog->rect();
        const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
        if (button && !button->icon().isNull()) {
            constexpr int besideText = 44;
            return button->text().isEmpty() ? place
                                            : QRect(place.topLeft(), QSize(besideText, place.height()));
        }
        return qobject_cast<const CIconViewer*>(&widget) ? place : QRect();
    }

    void checkSharpness(const QWidget& widget)
    {
        const QRect place = pictureOf(widget);
        if (m_image.devicePixelRatio() >= 2 && !place.isEmpty()) {
            verify(!Pixels::isBlurred(part(place)), widget, "is blurred");
        }
    }

    void checkHover()
    {
        for (auto* const button : m_dialog->findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || !button->isEnabled() || button->isDown()) {
                continue;
            }
            const QImage before = m_dialog->grab().toImage();
            for (const bool over : {true, false}) {
                const QPoint at = button->rect().center();
                QMouseEvent move(QEvent::MouseMove, at, button->mapToGlobal(at), Qt::NoButton, {}, {});
                button->setAttribute(Qt::WA_UnderMouse, over);
                QApplication::sendEvent(button, &move);
                m_image = m_dialog->grab().toImage();
                verify((m_image != before) == over, *button, "does not follow the mouse");
                checkColours(*button);
            }
        }
    }

    void checkFocus()
    {
        for (QWidget* const widget : m_dialog->findChildren<QWidget*>()) {
            const bool takesFocus = widget->isVisible() && widget->isEnabled() &&
                                    (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
            if (!takesFocus || widget->objectName().indexOf(QLatin1String("qt_")) == 0) {
                continue;
            }
            if (QWidget* const now = QApplication::focusWidget()) {
                now->clearFocus();
            }
            const QImage before = m_dialog->grab().toImage();
            widget->setFocus(Qt::TabFocusReason);
            QTest::qWait(1); // a focus frame follows with an event
            const QImage after = m_dialog->grab().toImage();
            keep(after, QLatin1Char(' ') + widget->objectName());
            constexpr double leastMarked = 30; // more than a text cursor has
            const double scale = after.devicePixelRatio();
            verify(Pixels::countChanges(before, after, shapeContrast) >= leastMarked * scale * scale, *widget,
                   "focus is not marked");
        }
    }

    const QString m_folder;
    QString m_name;
    QWidget* m_dialog = nullptr;
    QImage m_image;
    int m_faults = 0;
    int m_pictures = 0;
};

void checkBoxes(Sheet& sheet, const QString& language)
{
    for (const BoxKinds::Kind& kind : BoxKinds::kinds()) {
        for (const auto& [name, text] : texts) {
            for (const bool fitting : {false, true}) {
                const BoxKinds::Show& show = fitting ? kind.showFitting : kind.show;
                sheet.begin(QStringLiteral("%1 %2 %3%4")
                                .arg(language, QLatin1String(kind.name), QLatin1String(name),
                                     QLatin1String(fitting ? " fitting" : "")));
                if (show) {
                    whileOpen<CMessageBox>([&, text = text] { show(nullptr, text); },
                                           [&](CMessageBox& box) { sheet.check(box); });
                }
            }
        }
    }
}

void checkProgress(Sheet& sheet, const QString& language)
{
    for (const auto& [name, text] : texts) {
        CProgressBox box(QStringLiteral("CProgressBox"));
        box.setAppearanceDelay(0);
        QObject::connect(&box, &CProgressBox::cancelRequested, [] {}); // Cancel is enabled
        box.begin();
        box.setProgress(3, 4, text);
        while (!box.isVisible()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        for (const char* const state : {"running", "stopping"}) {
            sheet.begin(
                QStringLiteral("%1 progress %2 %3").arg(language, QLatin1String(state), QLatin1String(name)));
            sheet.check(box);
            box.reject();
        }
        CProgressBox failed(QStringLiteral("CProgressBox"));
        failed.begin();
        failed.setError(text);
        failed.end();
        sheet.begin(QStringLiteral("%1 progress failed %2").arg(language, QLatin1String(name)));
        sheet.check(failed);
    }
}

template <class Dialog>
void checkAbout(Sheet& sheet, const QString& language)
{
    Dialog dialog;
    dialog.show();
    sheet.begin(language + QLatin1Char(' ') + dialog.objectName());
    sheet.check(dialog);
}

/// Buttons of every kind and of the settings column: each state looks different.
void checkButtons(Sheet& sheet, const QString& language)
{
    sheet.begin(language + QStringLiteral(" buttons"));
    QDialog dialog;
    auto* const columns = new QHBoxLayout(&dialog);
    QList<QAbstractButton*> buttons;
    const auto addColumn = [&](const char* columnName, const QList<QAbstractButton*>& added) {
        auto* const column = new QWidget;
        column->setObjectName(QLatin1String(columnName));
        columns->addWidget(column);
        auto* const layout = new QVBoxLayout(column);
        const char* const names[] = {"performance", "general", "display", "language", "privacy"};
        for (int i = 0; i < added.size(); ++i) {
            added[i]->setText(QLatin1String(names[i]));
            added[i]->setObjectName(added[i]->text() + QStringLiteral("Button"));
            added[i]->setCheckable(i != 0);
            added[i]->setChecked(i % 2);
            layout->addWidget(added[i]);
        }
        buttons += added;
    };
    addColumn("", {new QPushButton, new QPushButton, new QToolButton, new QCheckBox, new QRadioButton});
    addColumn("settingsCategories", {new QPushButton, new QPushButton, new QPushButton});
    addColumn("settingsCategories", {new QToolButton, new QToolButton, new QToolButton});
    dialog.show();
    sheet.check(dialog);
    for (QAbstractButton* const button : buttons) {
        const auto drawing = [&](QIcon::State state) {
            return button->icon().pixmap(dialog.windowHandle(), {24, 24}, QIcon::Normal, state).toImage();
        };
        const bool bothStates = button->inherits("QToolButton") && !button->icon().isNull();
        sheet.verify(!bothStates || drawing(QIcon::On) != drawing(QIcon::Off), *button, "loses its drawing");
        QList<QImage> seen;
        const auto look = [&] {
            const QImage image = button->grab().toImage();
            sheet.verify(!seen.contains(image), *button, "looks the same in two states");
            seen += image;
        };
        button->clearFocus();
        look();
        button->setDown(true);
        look();
        button->setDown(false);
        button->setEnabled(false);
        look();
    }
}

void checkFolderPicker(Sheet& sheet, const QString& language)
{
    if (QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows) {
        return; // the system's own dialog
    }
    const QTemporaryDir folder;
    sheet.begin(language + QStringLiteral(" folder picker"));
    auto& dialogs = Singleton<CNativeDialogs>::instance();
    const auto pick = [&] { dialogs.getFileBrowserDirectory(nullptr, {}, folder.path(), {}, {}); };
    whileOpen<QFileDialog>(pick, [&](QFileDialog& dialog) { sheet.check(dialog); });
}

} // namespace

int main(int argc, char* argv[])
{
    const IsolatedProfile profile;
    TestMain::prepare();
    useHighDpiPixmaps(true);
    QApplication application(argc, argv);
    loadFonts();
    QApplication::setStyle(new CustomTolvanAppStyle);
    auto* const languages = CLanguageManager::instance();
    languages->loadLanguageForApp();
    Sheet sheet(application.arguments().value(1));
    const auto checkAll = [&](const QString& name) {
        checkBoxes(sheet, name);
        checkProgress(sheet, name);
        checkAbout<CAboutDlg>(sheet, name);
        checkAbout<CAboutOstraDlg>(sheet, name);
        checkButtons(sheet, name);
        checkFolderPicker(sheet, name);
    };
    setAppStyleSheetWithContrast(QString(), &application, Contrast::High);
    checkAll(QStringLiteral("contrast"));
    setAppStyleSheetWithContrast(QString(), &application, Contrast::Normal);
    const QHash<unsigned, QFontDatabase::WritingSystem> scripts{{12U, QFontDatabase::Japanese},
                                                                {13U, QFontDatabase::SimplifiedChinese}};
    for (const unsigned number : {2U, 0U, 5U, 12U, 13U}) { // in the product family
        if (QFontDatabase()
                .families(scripts.value(number))
                .isEmpty()) { // under Wine only empty boxes would be seen
            std::printf("no font for the language %u\n", number);
            continue;
        }
        languages->changeLanguage(languages->getLanguageIndexFromID(number));
        checkAll(languages->currentLanguageAbbrv());
    }
    return sheet.finish();
}
