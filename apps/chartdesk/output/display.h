#pragma once

#include <QSize>
#include <QString>
#include <QVector>

class QScreen;

/// A display of the desktop, as it stands now. A plain value.
struct DeskDisplay
{
    int number = 0; ///< from 1, from left to right
    QString name;   ///< of its connector: "HDMI-1"
    QSize pixels;   ///< physical
    qreal scale = 1;
};

/// All of them.
QVector<DeskDisplay> displays();

/// The screen of that name, null while it is unplugged.
QScreen* screenNamed(const QString& name);

/// The display that `numberOrName` tells: its number, or its name in any case; null where there is none.
const DeskDisplay* findDisplay(const QVector<DeskDisplay>& displays, const QString& numberOrName);

/// "2   HDMI-1   1920 x 1080   scale 1.25", for a terminal.
QString displayLine(const DeskDisplay& display);

/// How many physical pixels a length is that the toolkit tells as `length` at `scale`: it has rounded what it
/// tells, and displays have an even number of them.
int physicalLength(int length, qreal scale);
