#include "chartfont.h"
#include "deskmemory.h"
#include "deskoptions.h"
#include "deskstyle.h"
#include "desktheme.h"
#include "editsession.h"
#include "languages.h"
#include "mainwindow.h"
#include "obstacle.h"
#include "showcommand.h"
#include "themepalette.h"

#include <vdpatterndesign_version.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

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
    return isAskedFor(argc, argv, {"-platform", "--platform", "-display"}) ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

/// The arguments, with "--display" and what follows it as one: the toolkit would take them for an X server's.
std::vector<std::string> joinedArguments(int argc, char** argv)
{
    std::vector<std::string> joined(argv, argv + argc);
    const auto it = std::find(joined.begin(), joined.end(), "--display");
    if (joined.end() - it > 1) {
        *it += "=" + *(it + 1);
        joined.erase(it + 1);
    }
    return joined;
}

int run(int& argc, char** argv)
{
    const bool isHeadless =
        isAskedFor(argc, argv, {"--headless", "--help", "--help-all", "-h", "--version", "-v"});
    const bool isShown = hasDisplay(argc, argv);
    if (!isShown || (isHeadless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("chartdesk"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VDPATTERNDESIGN_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("chartdesk"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/chartdesk/icon.png")));
    QApplication::setStyle(new DeskStyle);
    QApplication::setFont(chartFont());

    // The log is for developers, who get the editor's with QT_LOGGING_RULES="vardeno.testcharttools=true" and
    // the toolkit's with "default=true".
    QLoggingCategory::setFilterRules(
        QStringLiteral("default.debug=false\ndefault.warning=false\nvardeno.testcharttools*.debug=false"));

    const DeskOptions options = deskOptions(application);
    if (!isShown && !options.headless)
        refuse(QStringLiteral("There is no display; --headless makes a chart without one."));
    chooseLanguage(options.language);
    if (options.listDisplays)
        return listDisplays();
    if (!options.shown.isEmpty())
        return showOnDisplay(options.shown, options.display, options.at);
    DeskTheme::apply();
    MainWindow window(options.folder);
    QApplication::setPalette(themePalette());
    window.switchLanguage(options.language);
    if (options.headless)
        return confirmDefaultChart(window, application);
    const DeskMemory memory(&window);
    window.show();
    window.openPaths(options.paths);
    window.offerDrafts();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> arguments = joinedArguments(argc, argv);
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    int count = int(arguments.size());
    return run(count, pointers.data());
}
