#include "InstalledLogger.h"
#include "TestMain.h"

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
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QStringLiteral("<%1>").arg(QString::fromLatin1(text))
                                                : QString();
    }
};

class FileSizesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(QCoreApplication::installTranslator(&m_translator)); }
    void fileSizes_data();
    void fileSizes();
    void imageSizes_data();
    void imageSizes();
    void unitOfTheSettings();
    void unknownUnitIsReported();
    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_translator); }

private:
    MarkingTranslator m_translator;
};

void FileSizesTest::fileSizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](qint64 bytes, const char* text) {
        QTest::newRow(text) << bytes << QString::fromLatin1(text);
    };
    row(0, "0<B>");
    row(1024, "1024<B>");
    row(1025, "1.0<KB>");
    row(1024 * 1024 - 1, "1024.0<KB>");
    row(1024 * 1024, "1024.0<KB>");
    row(1024 * 1024 + 1, "1.0<MB>");
    row(1024 * 1024 * 3 / 2, "1.5<MB>");
    row(Q_INT64_C(5) << 40, "5242880.0<MB>");
    row(-2000000, "-2e+06<B>");
}

void FileSizesTest::fileSizes()
{
    QFETCH(qint64, bytes);
    QTEST(fileSizeToString(bytes), "text");
}

void FileSizesTest::imageSizes_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QString>("text");
    QTest::newRow("pixels") << 0 << 96 << QStringLiteral("1920 x 1080<px>");
    QTest::newRow("inches at 96") << 1 << 96 << QStringLiteral("20.00 x 11.25<in>");
    QTest::newRow("inches at 120") << 1 << 120 << QStringLiteral("16.00 x 9.00<in>");
    QTest::newRow("centimetres at 96") << 2 << 96 << QStringLiteral("50.8 x 28.6<cm>");
    QTest::newRow("millimetres at 96") << 3 << 96 << QStringLiteral("508 x 286<mm>");
}

void FileSizesTest::imageSizes()
{
    QFETCH(int, unit);
    QFETCH(int, dpi);
    QTEST(imageSizeText(QSize(1920, 1080), unit, {dpi, dpi}), "text");
    // Each direction has its own resolution.
    QCOMPARE(imageSizeText(QSize(960, 600), 1, {96, 120}), QStringLiteral("10.00 x 5.00<in>"));
}

void FileSizesTest::unitOfTheSettings()
{
    CSettings().remove(QStringLiteral("imageSizeUnits"));
    QCOMPARE(sizeToString(QSize(30, 20)), QStringLiteral("30 x 20<px>"));
    CSettings().setValue(QStringLiteral("imageSizeUnits"), 1);
    const QScreen* const screen = QGuiApplication::primaryScreen();
    QVERIFY(screen);
    const int dpi = qRound(screen->physicalDotsPerInchX());
    QVERIFY(sizeToString(QSize(dpi * 3, 20)).startsWith(QStringLiteral("3.00 x ")));
}

void FileSizesTest::unknownUnitIsReported()
{
    auto& logger = installedLogger();
    for (const int unit : {4, -1}) {
        CSettings().setValue(QStringLiteral("imageSizeUnits"), unit);
        logger.take();
        QCOMPARE(sizeToString(QSize(30, 20)), QStringLiteral("30 x 20<px>"));
        QCOMPARE(logger.take(),
                 QStringList(QStringLiteral("E TOLVAN_NAMESPACE::sizeToString: ASSERT in "
                                            "ExPluginShell\\modules\\utilsDll\\FileManagement:82")));
    }
}

TOLVAN_GUI_TEST_MAIN(FileSizesTest)
#include "tst_filesizes.moc"
