#include "display.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

/// The toolkit's own order is another one after a display was unplugged and is back.
bool isBefore(const QScreen* a, const QScreen* b)
{
    const QPoint first = a->geometry().topLeft();
    const QPoint second = b->geometry().topLeft();
    return first.x() != second.x() ? first.x() < second.x() : first.y() < second.y();
}

} // namespace

QVector<DeskDisplay> displays()
{
    QVector<DeskDisplay> found;
    QList<QScreen*> screens = QGuiApplication::screens();
    std::stable_sort(screens.begin(), screens.end(), isBefore);
    for (const QScreen* screen : qAsConst(screens)) {
        const qreal scale = screen->devicePixelRatio();
        const QSize size = screen->size();
        found.append({int(found.size()) + 1, screen->name(),
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

const DeskDisplay* findDisplay(const QVector<DeskDisplay>& displays, const QString& numberOrName)
{
    const auto it = std::find_if(displays.begin(), displays.end(), [&](const DeskDisplay& display) {
        return QString::number(display.number) == numberOrName ||
               display.name.compare(numberOrName, Qt::CaseInsensitive) == 0;
    });
    return it == displays.end() ? nullptr : &*it;
}

QString displayLine(const DeskDisplay& display)
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
