#pragma once

#include <QPoint>
#include <QStringList>

class QCoreApplication;

/// What the command line asks of the desk.
struct DeskOptions
{
    QString folder;
    QString language;
    QStringList paths; ///< to be opened: a folder of charts, records and pictures
    bool headless = false;
    bool listDisplays = false;
    QString shown;   ///< a record or a picture to be shown at once, empty for none
    QString display; ///< its number or name, empty for the one that suits
    QPoint at;       ///< where on it, in physical pixels
};

/// Reads the arguments; a wrong one ends the program, with a message.
DeskOptions deskOptions(const QCoreApplication& application);

/// Ends the program with `problem`, as the command line parser does on an unknown option.
[[noreturn]] void refuse(const QString& problem);
