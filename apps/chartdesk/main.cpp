#include "chartfont.h"
#include "languages.h"
#include "mainwindow.h"
#include "themepalette.h"

#include <vdpatterndesign_version.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>

namespace {

struct Options
{
    QString folder;
    QString language;
    bool headless;
};

/// Ends the program as the command line parser does on an unknown option.
[[noreturn]] void refuse(const QString& problem)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << problem << '\n';
    std::exit(1);
}

Options parseCommandLine(const QCoreApplication& application)
{
    const QCommandLineOption folder(QStringLiteral("folder"), QStringLiteral("Where charts are saved."),
                                    QStringLiteral("path"),
                                    QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    const QStringList codes = languageCodes();
    const QCommandLineOption language(QStringLiteral("language"),
                                      codes.join(QStringLiteral(", ")) + QLatin1Char('.'),
                                      QStringLiteral("code"), languageFor(QLocale()));
    const QCommandLineOption headless(
        QStringLiteral("headless"),
        QStringLiteral("Without a display: confirm one default chart, print the path of "
                       "its image, and quit."));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Designs test charts for LED screens."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({folder, language, headless});
    parser.process(application);
    const QString code = parser.value(language).replace(QLatin1Char('-'), QLatin1Char('_'));
    if (!codes.contains(code))
        refuse(
            QStringLiteral("The language \"%1\" is none of %2.").arg(code, codes.join(QStringLiteral(", "))));
    return {parser.value(folder), code, parser.isSet(headless)};
}

/// Confirms one default chart; the exit code tells whether it was written.
int confirmDefaultChart(MainWindow& window, QApplication& application)
{
    using vardeno::testcharttools::VTestChartTools;
    QObject::connect(window.editor(), &VTestChartTools::sigTestToolEditDone, &application,
                     [](const auto&, const QString& path) {
                         QTextStream(stdout) << path << '\n';
                         QCoreApplication::exit(0);
                     });
    QObject::connect(window.editor(), &VTestChartTools::sigFail, &application, [&window] {
        QTextStream(stderr) << "could not be written: " << window.editor()->failedPath() << '\n';
        QCoreApplication::exit(1);
    });
    window.addChart();
    window.editor()->slotAddConfirmButtonClicked();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const bool headless = std::any_of(
        argv + 1, argv + argc, [](const char* argument) { return qstrcmp(argument, "--headless") == 0; });
    if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("chartdesk"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VDPATTERNDESIGN_VERSION));
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setFont(chartFont());

    // The editor's and the toolkit's log is for developers, who get it with QT_LOGGING_RULES="default=true".
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\ndefault.warning=false"));

    const Options options = parseCommandLine(application);
    MainWindow window(options.folder);
    QApplication::setPalette(themePalette());
    window.switchLanguage(options.language);
    if (options.headless)
        return confirmDefaultChart(window, application);
    window.show();
    return QApplication::exec();
}
