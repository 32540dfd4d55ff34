#include "deskoptions.h"

#include "deskmemory.h"
#include "languages.h"
#include "outputplacement.h"

#include <QCommandLineParser>
#include <QLocale>
#include <QStandardPaths>
#include <QTextStream>

#include <cstdlib>

namespace {

struct Parser : QCommandLineParser
{
    const QCommandLineOption folder{QStringLiteral("folder"), QStringLiteral("Where charts are saved."),
                                    QStringLiteral("path"),
                                    QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)};
    const QCommandLineOption language{QStringLiteral("language"),
                                      languageCodes().join(QStringLiteral(", ")) + QLatin1Char('.'),
                                      QStringLiteral("code"), DeskMemory::language(languageFor(QLocale()))};
    const QCommandLineOption headless{
        QStringLiteral("headless"), QStringLiteral("Without a display: confirm one default chart, print the "
                                                   "path of its image, and quit.")};
    const QCommandLineOption show{
        QStringLiteral("show"), QStringLiteral("Show this chart, a record or a picture, on a whole display."),
        QStringLiteral("file")};
    const QCommandLineOption display{QStringLiteral("display"),
                                     QStringLiteral("With --show: the number or the name of the display."),
                                     QStringLiteral("number or name")};
    const QCommandLineOption at{QStringLiteral("at"),
                                QStringLiteral("With --show: where on the display, in its pixels; 0,0."),
                                QStringLiteral("x,y"), QStringLiteral("0,0")};
    const QCommandLineOption listDisplays{QStringLiteral("list-displays"),
                                          QStringLiteral("Print the displays, and quit.")};

    Parser()
    {
        setApplicationDescription(QStringLiteral("Designs test charts for LED screens."));
        addHelpOption();
        addVersionOption();
        addOptions({folder, language, headless, show, display, at, listDisplays});
        addPositionalArgument(QStringLiteral("paths"),
                              QStringLiteral("A folder of charts, or records and pictures, to be opened."),
                              QStringLiteral("[FOLDER | FILE …]"));
    }

    /// Without one named, the desk goes on where its user was.
    QString chosenFolder() const
    {
        return isSet(folder) || isSet(headless) ? value(folder) : DeskMemory::folder(value(folder));
    }

    QString languageCode() const
    {
        const QStringList codes = languageCodes();
        const QString code = value(language).replace(QLatin1Char('-'), QLatin1Char('_'));
        if (!codes.contains(code))
            refuse(QStringLiteral("The language \"%1\" is none of %2.")
                       .arg(code, codes.join(QStringLiteral(", "))));
        return code;
    }

    QPoint place() const
    {
        bool isValid = false;
        const QPoint place = placeFrom(value(at), &isValid);
        if (!isValid)
            refuse(QStringLiteral("The place \"%1\" is not of the form 120,40.").arg(value(at)));
        return place;
    }
};

} // namespace

void refuse(const QString& problem)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << problem << '\n';
    std::exit(1);
}

DeskOptions deskOptions(const QCoreApplication& application)
{
    Parser parser;
    parser.process(application);
    return {parser.chosenFolder(),
            parser.languageCode(),
            parser.positionalArguments(),
            parser.isSet(parser.headless),
            parser.isSet(parser.listDisplays),
            parser.value(parser.show),
            parser.value(parser.display),
            parser.place()};
}
