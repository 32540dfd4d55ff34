#include "chartfont.h"
#include "editsession.h"
#include "languages.h"
#include "mainwindow.h"
#include "obstacle.h"
#include "themepalette.h"

#include <vdpatterndesign_version.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>
#include <initializer_list>

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
    QString saved;
    QObject::connect(window.session(), &EditSession::saved, &application,
                     [&saved](const QString& path) { saved = path; });
    QObject::connect(
        window.session(), &EditSession::ended, &application,
        [&saved] {
            QTextStream(stdout) << saved << '\n';
            QCoreApplication::exit(0);
        },
        Qt::QueuedConnection); // there is no loop to be left before
    QObject::connect(window.session(), &EditSession::failed, &application,
                     [](const QString& path, const QString& reason) {
                         const QString folder = QFileInfo(path).dir().path();
                         const QString why = obstacleText(obstacleIn(folder), folder);
                         QTextStream(stderr) << "could not be written: " << path << ' '
                                             << (why.isEmpty() ? reason : why) << '\n';
                         QCoreApplication::exit(1);
                     });
    window.addChart();
    window.session()->confirm();
    const int code = QApplication::exec();
    window.session()->end(); // after a failure too: there is nobody to go on with a draft
    return code;
}

/// Whether one of `options` is among the arguments, before any of them is parsed.
bool isAskedFor(int argc, char** argv, std::initializer_list<const char*> options)
{
    return std::any_of(argv + 1, argv + argc, [&](const char* argument) {
        return std::any_of(options.begin(), options.end(),
                           [&](const char* option) { return qstrcmp(argument, option) == 0; });
    });
}

/// Whether the toolkit would find a display, or is told to do without.
bool hasDisplay(int argc, char** argv)
{
#ifdef Q_OS_UNIX
    return isAskedFor(argc, argv, {"-platform", "--platform", "-display", "--display"}) ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

} // namespace

int main(int argc, char** argv)
{
    const bool isHeadless =
        isAskedFor(argc, argv, {"--headless", "--help", "--help-all", "-h", "--version", "-v"});
    const bool isShown = hasDisplay(argc, argv);
    if (!isShown || (isHeadless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("chartdesk"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VDPATTERNDESIGN_VERSION));
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setFont(chartFont());

    // The log is for developers, who get the editor's with QT_LOGGING_RULES="vardeno.testcharttools=true" and
    // the toolkit's with "default=true".
    QLoggingCategory::setFilterRules(
        QStringLiteral("default.debug=false\ndefault.warning=false\nvardeno.testcharttools*.debug=false"));

    const Options options = parseCommandLine(application);
    if (!isShown && !options.headless)
        refuse(QStringLiteral("There is no display; --headless makes a chart without one."));
    MainWindow window(options.folder);
    QApplication::setPalette(themePalette());
    window.switchLanguage(options.language);
    if (options.headless)
        return confirmDefaultChart(window, application);
    window.show();
    window.offerDrafts();
    return QApplication::exec();
}
