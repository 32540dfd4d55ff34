#pragma once

#include <QString>

/// What a path on the command line, or a double click on a file, asks of the desk. A plain value.
struct OpenedPath
{
    QString folder;  ///< of charts, to be opened; empty for none
    QString chart;   ///< its image in that folder, to be selected; empty for none
    QString taken;   ///< a record or a picture from elsewhere, to be taken in; empty for none
    QString problem; ///< why it is none of these

    static OpenedPath of(const QString& path);
};
