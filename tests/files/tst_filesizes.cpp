#include "AssertionReport.h"
#include "TestMain.h"
#include "Texts.h"

#include "FileManagement.h"
#include "files/FileSizes.h"
#include "Settings.h"

#include <QScreen>
#include <QTranslator>

using namespace TOLVAN_NAMESPACE;

/// Marks every unit word, to see that each is translated in the right context.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* unit, const char*, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? text("<%1>").arg(text(unit)) : QString();
    }
};

class FileSizesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(QCoreApplication::installTranslator(&m_translator)); }
    void fileSizes()
    {
        const QPair<qint64, const char*> sizes[] = {{0, "0<B>"},
                                                    {1024, "1024<B>"},
                                                    {1025, "1.0<KB>"},
                                                    {1024 * 1024, "1024.0<KB>"},
                                                    {1024 * 1024 + 1, "1.0<MB>"},
                                                    {Q_INT64_C(5) << 40, "5242880.0<MB>"},
                                                    {-2000000, "-2e+06<B>"}};
        for (const auto& [bytes, expected] : sizes) {
            QCOMPARE(fileSizeToString(bytes), text(expected));
        }
    }

    void imageSizes()
    {
        const QSize size(1920, 1080);
        QCOMPARE(imageSizeText(size, 0, {96, 96}), text("1920 x 1080<px>"));
        QCOMPARE(imageSizeText(size, 1, {96, 120}), text("20.00 x 9.00<in>")); // each direction its own
        QCOMPARE(imageSizeText(size, 2, {96, 96}), text("50.8 x 28.6<cm>"));
        QCOMPARE(imageSizeText(size, 3, {96, 96}), text("508 x 286<mm>"));
    }

    void unitOfTheSettings()
    {
        CSettings().remove(text("imageSizeUnits"));
        QCOMPARE(sizeToString(QSize(30, 20)), text("30 x 20<px>"));
        CSettings().setValue(text("imageSizeUnits"), 1);
        const QScreen* const screen = QGuiApplication::primaryScreen();
        QVERIFY(screen);
        const int dpi = qRound(screen->physicalDotsPerInchX());
        QVERIFY(sizeToString(QSize(dpi * 3, 20)).startsWith(text("3.00 x ")));
    }

    void unknownUnitIsReported()
    {
        for (const int unit : {4, -1}) {
            CSettings().setValue(text("imageSizeUnits"), unit);
            verifyReport("TOLVAN_NAMESPACE::sizeToString", "FileManagement", 82, nullptr,
                         [] { QCOMPARE(sizeToString(QSize(30, 20)), text("30 x 20<px>")); });
        }
    }

    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_translator); }

private:
    MarkingTranslator m_translator;
};

TOLVAN_GUI_TEST_MAIN(FileSizesTest)
#include "tst_filesizes.moc"
