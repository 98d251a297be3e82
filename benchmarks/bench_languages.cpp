// Languages: listing them, and changing the language of a window full of widgets beside a plain swap of the
// same two translators.

#include <LanguageManager.h>
#include <Settings.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QVBoxLayout>

using namespace TOLVAN_NAMESPACE;

namespace
{

constexpr unsigned german = 0;
constexpr unsigned french = 5;

class Text : public QLabel
{
public:
    Text() { setText(QObject::tr("Error")); }

protected:
    void changeEvent(QEvent* event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::LanguageChange) {
            setText(QObject::tr("Error"));
        }
    }
};

/// A window of 300 widgets that follow the language.
class Window : public QWidget
{
public:
    Window()
    {
        auto* const layout = new QVBoxLayout(this);
        for (int i = 0; i < 300; ++i) {
            layout->addWidget(m_last = new Text);
        }
        show();
    }

    /// Delivers what a language change has posted. \return whether the last widget has its new text
    bool shows(const QString& text) const
    {
        QCoreApplication::sendPostedEvents();
        return m_last->text() == text;
    }

private:
    Text* m_last = nullptr;
};

QString errorIn(bool inGerman)
{
    return inGerman ? QStringLiteral("Fehler") : QStringLiteral("Erreur");
}

void finish(benchmark::State& state, bool shown)
{
    if (!shown) {
        state.SkipWithError("the window does not show the new language");
    }
}

/// Each change leaves the product's catalogue of the last language installed. A new manager and a clean
/// application for each iteration keep these catalogues out of the measurement.
void changeLanguage(benchmark::State& state)
{
    const Window window;
    bool inGerman = false;
    for (auto unused : state) {
        Q_UNUSED(unused)
        state.PauseTiming();
        CSettings::writeLanguageToOstraConfiguration(inGerman ? german : french);
        CLanguageManager manager;
        manager.loadLanguageForApp();
        QCoreApplication::sendPostedEvents();
        inGerman = !inGerman;
        const int row = manager.getLanguageIndexFromID(inGerman ? german : french);
        state.ResumeTiming();
        manager.changeLanguage(row);
        finish(state, window.shows(errorIn(inGerman)));
        state.PauseTiming();
        qDeleteAll(qApp->findChildren<QTranslator*>());
        QCoreApplication::sendPostedEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(changeLanguage)->Unit(benchmark::kMicrosecond);

QTranslator* install(const QString& path)
{
    auto* const translator = new QTranslator(qApp);
    translator->load(path);
    QCoreApplication::installTranslator(translator);
    return translator;
}

/// The same by hand, with the choice stored by hand as well or not at all.
void plainSwap(benchmark::State& state, bool stores)
{
    const Window window;
    bool inGerman = false;
    const auto path = [](const char* catalogue, bool wantGerman) {
        return QStringLiteral(":/translations/%1_%2.qm")
            .arg(QLatin1String(catalogue), wantGerman ? QStringLiteral("de") : QStringLiteral("fr"));
    };
    for (auto unused : state) {
        Q_UNUSED(unused)
        state.PauseTiming();
        install(path("tolvan", inGerman));
        QTranslator* const ofQt = install(path("qt", inGerman));
        QCoreApplication::sendPostedEvents();
        inGerman = !inGerman;
        state.ResumeTiming();
        if (stores) {
            QSettings(QStringLiteral("Tolvan"), QStringLiteral("Ostra Collection"))
                .setValue(QStringLiteral("currentLanguage"), inGerman ? german : french);
        }
        QCoreApplication::removeTranslator(ofQt);
        delete ofQt;
        install(path("tolvan", inGerman));
        install(path("qt", inGerman));
        finish(state, window.shows(errorIn(inGerman)));
        state.PauseTiming();
        qDeleteAll(qApp->findChildren<QTranslator*>());
        QCoreApplication::sendPostedEvents();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(plainSwap, alone, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(plainSwap, and_store, true)->Unit(benchmark::kMicrosecond);

void listLanguages(benchmark::State& state)
{
    for (auto unused : state) {
        Q_UNUSED(unused)
        CLanguageManager manager;
        manager.loadLanguages();
        if (manager.langCount() != 5) {
            state.SkipWithError("the languages are not all there");
        }
    }
}
BENCHMARK(listLanguages)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
