#include "display.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

QVector<Display> displays()
{
    QVector<Display> found;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const qreal scale = screen->devicePixelRatio();
        const QSize size = screen->size();
        found.append({found.size() + 1, screen->name(),
                      QSize(physicalLength(size.width(), scale), physicalLength(size.height(), scale)),
                      scale});
    }
    return found;
}

QScreen* screenNamed(const QString& name)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto it = std::find_if(screens.begin(), screens.end(),
                                 [&](const QScreen* screen) { return screen->name() == name; });
    return it == screens.end() ? nullptr : *it;
}

const Display* findDisplay(const QVector<Display>& displays, const QString& numberOrName)
{
    const auto it = std::find_if(displays.begin(), displays.end(), [&](const Display& display) {
        return QString::number(display.number) == numberOrName ||
               display.name.compare(numberOrName, Qt::CaseInsensitive) == 0;
    });
    return it == displays.end() ? nullptr : &*it;
}

QString displayLine(const Display& display)
{
    return QStringLiteral("%1   %2   %3 x %4   scale %5")
        .arg(display.number)
        .arg(display.name)
        .arg(display.pixels.width())
        .arg(display.pixels.height())
        .arg(display.scale);
}

int physicalLength(int length, qreal scale)
{
    const qreal told = length * scale;
    if (scale == std::floor(scale) && scale <= 2)
        return int(told); // nothing was lost
    return 2 * int(std::lround(told / 2));
}
