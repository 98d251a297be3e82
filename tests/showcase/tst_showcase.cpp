#include "Contrast.h"
#include "Sandbox.h"
#include "TestMain.h"
#include "Texts.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QSettings>

/// The showcase on the console, on a real profile: it passes, and a second start finds what the first one
/// left.
class ShowcaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void secondRunSeesTheFirst()
    {
        QSettings family(text("Tolvan"), text("Ostra Collection"));
        family.setValue(text("currentLanguage"), 7); // of another product, unknown to this one
        family.sync();
        const Run first = start({text("--console")});
        QVERIFY2(first.exitCode == 0, first.failures());

        const Run second = start({text("--console")});
        QVERIFY2(second.exitCode == 0, second.failures());
        QCOMPARE(rowOf(second.report, "earlier runs on this profile"), text("1"));
        QCOMPARE(rowOf(second.report, "suite file, value of the last run"),
                 rowOf(first.report, "suite file read back"));
        family.sync();
        QCOMPARE(family.value(text("currentLanguage")).toInt(), 7); // after a walk through all languages
    }

    void temporaryRunLeavesNothing()
    {
        IsolatedProfile::clearStores();
        const QByteArray usual = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", "/dev/null/nowhere"); // only known folders are not redirected, on Windows
        const Run run = start({text("--console"), text("--temporary")});
        qputenv("XDG_DATA_HOME", usual);
        const bool windows = QSysInfo::kernelType() == text("winnt");
        QVERIFY2(run.exitCode == !windows && run.report.contains(text("FAIL")) == !windows, run.failures());
        QCOMPARE(rowOf(run.report, "mode"), text("temporary file"));
        const QSettings store(text("Tolvan"), text("Trelio Frame"));
        QVERIFY(store.childGroups().isEmpty() && !store.contains(text("app_launched")));
    }

    void picturesInEveryLanguage()
    {
        IsolatedProfile::clearStores(); // no language is stored either
        QSettings(text("Tolvan"), text("Trelio Frame")).setValue(text("loggerLevel"), QString());
        QSettings(text("Tolvan"), QString())
            .setValue(text("UserID"), text("known")); // made when it is first asked for
        const auto before = stored();
        const QTemporaryDir folder;
        qputenv("QT_SCALE_FACTOR", "1"); // without the pictures of double size, which take as long again
        const Run run = start({text("--screenshots"), folder.path()});
        QVERIFY2(run.exitCode == 0, run.failures());
        QCOMPARE(stored(), before);
        QSet<QByteArray> pictures;
        for (const char* const language : {"de", "en", "fr", "ja", "zh-CN"}) {
            QFile picture(folder.filePath(text("%1/09-style.png").arg(text(language))));
            QVERIFY2(picture.open(QIODevice::ReadOnly), language);
            pictures += picture.readAll();
        }
        QCOMPARE(pictures.size(), 5);                                           // each in its own language
#ifndef Q_OS_WIN                                                                // draws with other fonts
        const char* const comparable = qVersion()[0] == '5' ? "*.png" : "none"; // Qt 6 draws otherwise
        for (const QFileInfo& shown : QDir(text(SCREENSHOTS)).entryInfoList({text(comparable)})) {
            const QString drawn = folder.filePath(shown.fileName().replace(2, 1, QLatin1Char('/')));
            const double part = differentPart(QImage(shown.filePath()), QImage(drawn));
            QVERIFY2(part < 0.02, qPrintable(text("%1: %2 of it is drawn differently now; run "
                                                  "tools/renew-screenshots.sh")
                                                 .arg(shown.fileName())
                                                 .arg(part)));
        }
#endif
    }

private:
    struct Run {
        int exitCode;
        QString report;
        /// What went wrong; the whole report is longer than a test message may be.
        QByteArray failures() const
        {
            return report.split(QLatin1Char('\n')).filter(text("FAIL")).join(QLatin1Char('\n')).toUtf8() +
                   report.right(300).toUtf8();
        }
    };

    static Run start(const QStringList& arguments)
    {
        const Outcome outcome =
            runProgram(QCoreApplication::applicationDirPath() + text("/trelio-showcase"), arguments);
        return {outcome.code, QString::fromUtf8(outcome.output)};
    }

    static QString rowOf(const QString& report, const char* name)
    {
        const QRegularExpression row(text(name) + text(" +(.*[^\\r\\n ])"));
        return row.match(report).captured(1);
    }

    /// What the product and its family keep in the native stores.
    static QMap<QString, QVariant> stored()
    {
        QMap<QString, QVariant> values;
        for (const char* const application : {"Trelio Frame", "Ostra Collection", ""}) {
            const QSettings store(text("Tolvan"), text(application));
            for (const QString& key : store.allKeys()) {
                values[text(application) + QLatin1Char('/') + key] = store.value(key);
            }
        }
        return values;
    }

    /// The part of the cells of 8 x 8 pixels whose brightness differs by more than 12 of 255, so that another rendering
    /// of the same letters does not count.
    static double differentPart(QImage first, QImage second)
    {
        if (first.isNull() || first.size() != second.size()) {
            return 1.0;
        }
        const QSize cells = first.size() / 8;
        int different = 0;
        for (QImage* const image : {&first, &second}) {
            *image = image->scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        eachPixel(first, first.rect(), [&](QPoint at, QRgb pixel) {
            different += std::abs(qGray(pixel) - qGray(second.pixel(at))) > 12;
        });
        return double(different) / (cells.width() * cells.height());
    }
};

TOLVAN_CORE_TEST_MAIN(ShowcaseTest)
#include "tst_showcase.moc"
